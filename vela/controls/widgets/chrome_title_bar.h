// The drawn title bar of a window with a frame of its own: icon, title, header actions and caption buttons.
// It reports what is asked of the window as commands: "drag", "minimize", "maximize" or "restore",
// "reset-size", "close", and "header-action-" with the action's number.
#pragma once

#include "vela/controls/widgets/drag_area.h"
#include "vela/controls/widgets/themed_button.h"

#include <array>
#include <memory>
#include <vector>

namespace vela {

// From left to right.
enum class CaptionButton : std::uint8_t { ResetSize, Minimize, Maximize, Close };
inline constexpr int kCaptionButtonCount = 4;

class ChromeTitleBar : public Control {
public:
    ChromeTitleBar(std::wstring id, Rect bounds, std::wstring title, Theme theme);
    ChromeTitleBar(const ChromeTitleBar&) = delete;
    ChromeTitleBar& operator=(const ChromeTitleBar&) = delete;
    ~ChromeTitleBar() override;

    bool applyStyle(const StyleSheet& styles) override;
    void onStyleApplied() override;
    std::wstring text() const override { return title_; }
    Rect contentBounds() const override;
    const BitmapSkin* attachedImage() const override;
    void paint(HDC dc, Point origin) override;
    bool mouseSecondary(const MouseEvent& event) override;
    bool containsLocal(Point point) const override;
    void onBoundsChanged() override { layoutChildren(); }
    // The window may have been maximised or restored.
    void onContentRefresh() override { showMaximisedState(); }
    AccessibleInfo accessibleInfo() const override;
    const SurfaceStyle* paintedSurface() const override { return &style_.surface; }
    Control* dialogControl(DialogRole role) const override;

    // As high as its buttons and the room above them, taken once more below, ask for.
    std::int32_t preferredHeight() const noexcept { return 2 * style_.buttonTop + style_.buttonHeight; }

    void setTitle(std::wstring title);
    // Only closing is offered at first.
    void showButton(CaptionButton which, bool shown);
    ThemedButton& button(CaptionButton which) noexcept;
    // To the left of the caption buttons, in the order of their addition.
    ThemedButton& addHeaderAction(std::int32_t number, std::wstring caption);

private:
    void layoutChildren();
    void showMaximisedState();
    Rect titleRect() const noexcept;

    std::wstring title_;
    ChromeTitleBarStyle designStyle_; // at 96 DPI, as the buttons take it
    ChromeTitleBarStyle style_;
    DragArea dragArea_;
    std::array<std::unique_ptr<ThemedButton>, kCaptionButtonCount> captions_;
    std::vector<std::unique_ptr<ThemedButton>> headerActions_;
    std::int32_t buttonsLeft_ = 0; // where the title must end
};

} // namespace vela
