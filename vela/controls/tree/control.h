// The base of everything a window shows: identity, geometry, state flags, properties by name and the virtual
// operations that all controls share. Bounds are pixels relative to the parent's content origin. All of it
// belongs to the thread of the window.
#pragma once

#include "vela/controls/tree/control_host.h"
#include "vela/controls/tree/control_state.h"
#include "vela/controls/tree/input_events.h"
#include "vela/controls/tree/layout.h"
#include "vela/controls/tree/painted_surface.h"
#include "vela/geometry.h"
#include "vela/platform_handles.h"
#include "vela/theme/records/theme.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

class Panel;
class StyleSheet;
struct BitmapSkin;
struct CommandEvent;

enum class DialogRole : std::uint8_t { Primary, Cancel };

class Control {
public:
    Control(std::wstring id, Rect bounds);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // The virtual operations, in the one order that every control class has.
    virtual ~Control();
    virtual void setBounds(const Rect& bounds);
    virtual bool applyStyle(const StyleSheet&) { return false; }
    virtual void onStyleApplied() {}
    virtual bool isStaticText() const { return false; }
    virtual bool isContainer() const { return false; }
    virtual const std::wstring& hint() const { return hint_; }
    virtual std::wstring text() const { return {}; }
    virtual const std::vector<Control*>& children() const { return children_; }
    virtual Size minimumSize() const;
    virtual Rect localBounds() const;
    virtual Rect contentBounds() const { return localBounds(); }
    // Everything it may paint on, in whatever state: a focus ring, glow and shadow lie around the control.
    virtual Rect damageBounds() const;
    virtual Rect focusBounds() const { return localBounds(); }
    virtual std::vector<Rect> damageRects(std::int32_t limit) const
    {
        return coalescedDamage(damage_, limit);
    }
    virtual const BitmapSkin* attachedImage() const { return nullptr; }
    virtual void captureState(ControlState& state) const;
    virtual void restoreState(const ControlState& state, bool withBounds);
    virtual void detach();
    // Origin: where the parent's content lies in the device context.
    virtual void paint(HDC, Point) {}
    virtual void onScaleChanged() {}
    virtual bool mouseButton(const MouseEvent& event);
    virtual bool mouseSecondary(const MouseEvent& event);
    virtual bool mouseMoved(Point position);
    virtual void setHot(bool hot) { setFlag(hot_, hot); }
    virtual void setPressed(bool pressed) { setFlag(pressed_, pressed); }
    virtual void mouseDragged(Point) {}
    virtual void mouseCaptureLost() {}
    virtual void activate() {}
    virtual bool characterTyped(std::wstring_view) { return false; }
    virtual void focusChanged(bool) {}
    virtual bool keyPressed(const KeyEvent&) { return false; }
    virtual bool animationTick(std::uint32_t) { return false; }
    virtual bool wantsAnimation() const;
    virtual bool containsLocal(Point point) const;
    virtual void onBoundsChanged() {}
    virtual void attachToWindow() {}
    virtual void afterAttach() {}
    virtual void onContentRefresh() {}
    virtual PropertyList properties() const { return {}; }
    virtual void setProperty(std::wstring_view, std::wstring_view) {}
    virtual void invalidateChildOrder() { childOrderDirty_ = true; }

    // Beyond the shared order.
    virtual bool acceptsFocus() const { return false; }
    // Tab has brought the keyboard here, and not a click or the window's coming to the front.
    virtual void reachedByTab() {}
    // The pointer is an I-beam over it.
    virtual bool showsTextCursor() const { return false; }
    // Where the next character will stand, in local pixels; none when the control takes no text.
    virtual std::optional<Rect> caretRect() const { return std::nullopt; }
    // What the control's outline and background are painted with at present; null when it has none.
    virtual const SurfaceStyle* paintedSurface() const { return nullptr; }
    // All surfaces that it paints with its present style, those of its other states too, but not those of its
    // children.
    virtual void visitSurfaces(const SurfaceVisitor& visit) const;
    // The control that Enter or Escape activates when nothing that has the focus takes the key; null for
    // none.
    virtual Control* dialogControl(DialogRole) const { return nullptr; }
    virtual AccessibleInfo accessibleInfo() const;

    const std::wstring& id() const noexcept { return id_; }
    const Rect& bounds() const noexcept { return bounds_; }
    const Rect& designBounds() const noexcept { return request_.design; }
    Size designParentSize() const noexcept { return request_.designParent; }
    Anchors anchors() const noexcept { return request_.anchors; }
    bool isLayoutCaptured() const noexcept { return layoutCaptured_; }
    bool isVisible() const noexcept { return visible_; }
    bool isCollapsed() const noexcept { return collapsed_; }
    bool isEnabled() const noexcept { return enabled_; }
    bool isHot() const noexcept { return hot_; }
    bool isPressed() const noexcept { return pressed_; }
    bool hasFocus() const;
    const std::wstring& styleKey() const noexcept { return styleKey_; }
    const FontSpec& textStyle() const noexcept { return textStyle_; }
    Panel* parent() const noexcept { return parent_; }
    Control* container() const noexcept { return container_; }
    ControlHost* window() const noexcept { return window_; }

    // The design is taken afresh from the current bounds.
    void setAnchors(Anchors anchors);
    void setConstraints(const Constraints& constraints);
    void setMinimumSize(Size size);
    void setStyleKey(std::wstring key) { styleKey_ = std::move(key); }
    void setTextStyle(const FontSpec& style) { textStyle_ = style; }
    void setHint(std::wstring hint) { hint_ = std::move(hint); }
    void setVisible(bool visible);
    void setEnabled(bool enabled) { setFlag(enabled_, enabled); }
    void setCollapsed(bool collapsed);

    // A plain sub-control, not owned; it must outlive this control or be removed before it goes.
    void addChild(Control& child);
    void removeChild(Control& child);

    void invalidate(InvalidationReason reason);

    // Client pixels; empty when the control is not in a window's tree.
    std::optional<Rect> windowRect() const;

    // The minimum size, computed once until something it depends on changes.
    Size cachedMinimumSize() const;
    void minimumSizeMayHaveChanged();

    // Called by the container that places this control.
    void layoutInside(const Rect& content);
    Size minimumParentHint() const;
    // Recomputes geometry from the values its creator gave; a window calls it on its root for a new DPI.
    void rescale(std::int32_t dpi);
    // For the root of a window's tree; a child gets its window from its container.
    void attach(ControlHost* window);

protected:
    // Changes a flag that shows; repaints the control only when it really changed.
    void setFlag(bool& flag, bool value);
    // A change that may let the control reach elsewhere, as one of its style: what it covered before is
    // repainted with what it covers then.
    template <typename Change>
    void changeReach(Change&& change)
    {
        const Rect before = clientDamage();
        change();
        repaintBoth(before);
    }
    // Says whose command it is, unless the event has the id of another, and offers it to the handlers at the
    // window. Any of them may destroy this control.
    void raise(CommandEvent& event);
    // Children that can be seen, in painting order; rebuilt when the order is dirty.
    const std::vector<Control*>& visibleChildren() const;
    Point contentOrigin() const noexcept;
    std::int32_t dpi() const noexcept { return dpi_; }
    std::int32_t scaled(std::int32_t designPixels) const noexcept;

private:
    friend class Panel;

    Rect clientDamage() const;
    void repaintBoth(const Rect& before);
    void captureDesign(Size parent);
    void rememberSource();
    void adopt(Control& child, Panel* owner);
    void abandon(Control& child);

    std::wstring id_;
    Rect bounds_;
    LayoutRequest request_;
    LayoutRequest source_; // as given, at sourceDpi_: scaling starts from it, so no rounding adds up
    std::int32_t sourceDpi_ = 96;
    std::int32_t dpi_ = 96;
    Size minimum_;
    Size sourceMinimum_;
    bool hasMinimum_ = false;
    bool layoutCaptured_ = false;
    bool visible_ = true;
    bool collapsed_ = false;
    bool enabled_ = true;
    bool hot_ = false;
    bool pressed_ = false;
    std::wstring styleKey_;
    std::wstring hint_;
    FontSpec textStyle_{L"Cascadia Mono"};
    std::vector<Control*> children_;
    mutable bool childOrderDirty_ = true;
    mutable std::vector<Control*> visibleChildren_;
    // For controls that note what of them is to be repainted, and for controls that scroll. There are none of
    // either yet: a panel without noted damage paints all of itself, and content begins where the control
    // does.
    std::vector<Rect> damage_;
    std::int32_t viewportMode_ = 1;
    Rect viewportRect_;
    Size viewportSize_;
    mutable std::optional<Size> cachedMinimum_;
    Panel* parent_ = nullptr;
    Control* container_ = nullptr;
    ControlHost* window_ = nullptr;
};

// Gives every control of a tree its record. One that is made of others gives them their looks after they have
// taken their own.
void styleTree(Control& control, const StyleSheet& styles);

} // namespace vela
