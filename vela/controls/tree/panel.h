// A control that owns its children: it lays them out by their anchors or constraints, paints them in the
// order in which they were added and destroys them in that order.
#pragma once

#include "vela/boxed.h"
#include "vela/controls/tree/control.h"

#include <memory>

namespace vela {

class Panel : public Control {
public:
    using Control::Control;
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;
    ~Panel() override;

    bool isContainer() const override { return true; }
    const std::vector<Control*>& children() const override { return order_; }
    Size minimumSize() const override;
    void detach() override;
    void paint(HDC dc, Point origin) override;
    void onBoundsChanged() override { layoutChildren(); }
    void attachToWindow() override;
    void afterAttach() override;

    // Takes the child over and lays it out at once, so that its design is captured against the current size.
    Control* add(std::unique_ptr<Control> child);
    // Gives the child back, detached; null when it is not a child of this panel.
    std::unique_ptr<Control> remove(Control& child);

    template <typename T>
    T& addControl(std::unique_ptr<T> child)
    {
        T& added = *child;
        add(std::move(child));
        return added;
    }

    const SurfaceStyle* paintedSurface() const override { return surface_ ? &*surface_ : nullptr; }

    // What the panel paints under its children; none until it is set.
    void setSurface(const SurfaceStyle& surface);

    // The smallest content in which every visible child still fits.
    Size minimumContentSizeHint() const;

private:
    void layoutChildren();

    std::vector<std::unique_ptr<Control>> owned_;
    std::vector<Control*> order_; // the same, as plain pointers
    Boxed<SurfaceStyle> surface_;
};

// Depth first: the first control with that id below the root, the root included; null when there is none.
Control* findControl(Control& root, std::wstring_view id);

} // namespace vela
