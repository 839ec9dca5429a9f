// The content of a dialog: an icon and a title in a header that can be dragged, a message under it, a row of
// action buttons and a close button. Other controls may stand on it. It reports commands: "drag", "close" and
// the actions' own ids.
#pragma once

#include "vela/controls/widgets/cast_shadow.h"
#include "vela/controls/widgets/drag_area.h"
#include "vela/controls/widgets/themed_button.h"

#include <memory>
#include <optional>
#include <vector>

namespace vela {

struct PopupAction {
    std::wstring label;
    std::wstring id; // empty: the popup's id, ".action." and the action's index from 0
    bool primary = false;
};

class DesignedPopup : public Control {
public:
    DesignedPopup(std::wstring id, Rect bounds);
    DesignedPopup(const DesignedPopup&) = delete;
    DesignedPopup& operator=(const DesignedPopup&) = delete;
    ~DesignedPopup() override;

    bool applyStyle(const StyleSheet& styles) override;
    void onStyleApplied() override;
    std::wstring text() const override { return title_; }
    const BitmapSkin* attachedImage() const override;
    void paint(HDC dc, Point origin) override;
    void setHot(bool) override {} // its buttons are hot, never itself
    // Arrow keys go along the actions; Ctrl+C copies title, message and actions as text.
    bool keyPressed(const KeyEvent& event) override;
    void onBoundsChanged() override { layoutChildren(); }
    AccessibleInfo accessibleInfo() const override;
    const SurfaceStyle* paintedSurface() const override { return &style_.surface; }
    void visitSurfaces(const SurfaceVisitor& visit) const override;
    Control* dialogControl(DialogRole role) const override;

    // The first text names the popup; a drag carries it.
    void setTitle(std::wstring title);
    // "i", "!" or "X"; any other text is drawn as it is.
    void setIconText(std::wstring text);
    void setMessage(std::wstring message);
    // In their order from left to right; the row ends at the right. Enter presses the primary one, or the
    // first when none is.
    void setActions(std::vector<PopupAction> actions);
    void setClosable(bool closable);
    // Where title, message and actions begin and end, from the popup's left and right side in 96-DPI pixels,
    // for popups on which other controls stand in the same column. The icon takes the middle of the room
    // before it. Without it all of them keep the style's padding, and the icon stands before the title.
    void setContentColumn(std::int32_t left, std::int32_t right);
    // A popup that is the background of its window has neither corners nor a border of its own: the window
    // has them.
    void setFramed(bool framed);
    // By how many 96-DPI pixels the popup must grow for its whole message to be seen at every usual scale, 0
    // when it is: letters do not grow evenly, and a line more at one scale is a line cut.
    std::int32_t missingHeight() const;
    void setOpen(bool open);
    bool isOpen() const noexcept { return open_; }

    ThemedButton& closeButton() noexcept { return *close_; }
    ThemedButton& actionButton(std::size_t index) noexcept { return *buttons_[index]; }

private:
    struct ContentColumn {
        std::int32_t left;
        std::int32_t right;
    };

    void layoutChildren();
    void styleButtons();
    void setPart(std::wstring& part, std::wstring text);
    std::int32_t contentLeft() const noexcept;
    std::int32_t contentRight() const noexcept;
    std::int32_t footerHeight() const noexcept;
    void paintBackground(HDC dc, const Rect& box) const;
    void paintHeaderIcon(HDC dc, Point at) const;
    std::wstring copiedText() const;
    bool moveAlongActions(const KeyEvent& event);
    std::int32_t titleLeft() const noexcept;
    // The insets of one part of what stands on the popup.
    Insets around(Insets SurfaceGeometry::*part) const noexcept;
    Rect headerRoom() const noexcept;
    Rect iconRect() const noexcept;
    Rect headerRect() const noexcept;
    Rect footerRect() const noexcept;
    Rect messageRect() const noexcept;

    std::wstring title_;
    std::wstring iconText_;
    std::wstring message_;
    std::vector<PopupAction> actions_;
    std::optional<ContentColumn> column_;
    bool framed_ = true;
    bool open_ = true;
    PopupStyle designStyle_; // at 96 DPI, as the buttons take it
    PopupStyle style_;
    CastShadow shadow_;
    DragArea header_;
    std::unique_ptr<ThemedButton> close_;
    std::vector<std::unique_ptr<ThemedButton>> buttons_;
};

} // namespace vela
