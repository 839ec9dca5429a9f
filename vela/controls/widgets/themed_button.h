// A button with a caption or an icon, five looks and one action. Its click handler runs only when nobody
// subscribed at the window has handled the command first.
#pragma once

#include "vela/controls/tree/command_event.h"
#include "vela/controls/widgets/pressable.h"
#include "vela/render/shapes/icons.h"
#include "vela/theme/records/control_styles.h"

#include <functional>
#include <optional>

namespace vela {

class ThemedButton : public Pressable {
public:
    using ClickHandler = std::function<void(CommandEvent&)>;

    ThemedButton(std::wstring id, Rect bounds, std::wstring text);

    bool applyStyle(const StyleSheet& styles) override;
    std::wstring text() const override { return text_; }
    Size minimumSize() const override;
    Rect contentBounds() const override;
    const BitmapSkin* attachedImage() const override;
    void paint(HDC dc, Point origin) override;
    void activate() override;
    bool containsLocal(Point point) const override;
    AccessibleInfo accessibleInfo() const override;
    const SurfaceStyle* paintedSurface() const override { return &style_.surface[visualState()]; }
    void visitSurfaces(const SurfaceVisitor& visit) const override;

    // For buttons whose style is part of another record, as those of a title bar or a popup.
    void setStyle(const ButtonStyle& style);
    void setText(std::wstring text);
    void setIcon(std::optional<Icon> icon);
    // What the command is called; the control's id when it is empty.
    void setAction(std::wstring action) { action_ = std::move(action); }
    void setActive(bool active) { setFlag(active_, active); }
    void setClickHandler(ClickHandler handler) { clicked_ = std::move(handler); }

    // Disabled before pressed before active before hot.
    VisualState visualState() const noexcept;

private:
    std::wstring text_;
    std::wstring action_;
    ButtonStyle style_;
    std::optional<Icon> icon_;
    bool active_ = false;
    ClickHandler clicked_;
};

// The caption's room between the sides of a button of that height: an eighth of it, at least 2 and at most 6.
std::int32_t captionPadding(std::int32_t height) noexcept;

} // namespace vela
