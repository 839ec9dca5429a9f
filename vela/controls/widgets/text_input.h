// A text field of one line. The model decides what an edit does; the field measures, paints, keeps the caret
// in sight and turns keys and the mouse into edits. A change by the user is the command "change", with the
// old and the new text.
#pragma once

#include "vela/controls/tree/control.h"
#include "vela/controls/widgets/text_edit_model.h"
#include "vela/controls/widgets/text_services.h"
#include "vela/controls/widgets/wheel_acceleration.h"
#include "vela/render/text/text_places.h"
#include "vela/theme/records/control_styles.h"

#include <functional>
#include <optional>

namespace vela {

// Something attached to the field, shown as a chip before the text.
struct TextAttachment {
    std::wstring id;
    std::wstring name;
    friend bool operator==(const TextAttachment&, const TextAttachment&) = default;
};

class TextInput : public Control {
public:
    TextInput(std::wstring id, Rect bounds, std::wstring_view text);

    bool applyStyle(const StyleSheet& styles) override;
    std::wstring text() const override { return model_.text(); }
    Size minimumSize() const override;
    Rect contentBounds() const override;
    void paint(HDC dc, Point origin) override;
    bool mouseButton(const MouseEvent& event) override;
    bool mouseSecondary(const MouseEvent& event) override;
    void mouseDragged(Point position) override;
    void mouseCaptureLost() override;
    bool characterTyped(std::wstring_view text) override;
    void focusChanged(bool focused) override;
    // All of it is selected, so that typing replaces it.
    void reachedByTab() override { perform(TextCommand::SelectAll); }
    bool keyPressed(const KeyEvent& event) override;
    bool animationTick(std::uint32_t elapsed) override;
    bool wantsAnimation() const override;
    bool containsLocal(Point point) const override;
    void onBoundsChanged() override;
    // "text", "caretIndex", "textScrollOffset", "attachmentCount"; the last cannot be set.
    PropertyList properties() const override;
    void setProperty(std::wstring_view name, std::wstring_view value) override;
    bool acceptsFocus() const override { return true; }
    bool showsTextCursor() const override { return true; }
    std::optional<Rect> caretRect() const override;
    AccessibleInfo accessibleInfo() const override;
    const SurfaceStyle* paintedSurface() const override { return &surface(); }
    void visitSurfaces(const SurfaceVisitor& visit) const override;

    const TextEditModel& model() const noexcept { return model_; }
    // By the program: raises nothing and is allowed while the field is locked.
    void setText(std::wstring_view text);
    // While locked the user can select and copy, but not change the text.
    void setEditLock(bool locked);
    void setPlaceholder(std::wstring text);
    std::int32_t scrollOffset() const noexcept { return scroll_; }
    void setScrollOffset(std::int32_t pixels);

    const std::vector<TextAttachment>& attachments() const noexcept { return attachments_; }
    void setAttachments(std::vector<TextAttachment> attachments);

    // Does nothing when the command does not apply. Also what the context menu and the keys come to.
    void perform(TextCommand command);
    TextCommandSet enabledCommands() const;

private:
    struct Chip {
        Rect body;
        Rect image;
        Rect name;
        Rect remove; // empty when it cannot be removed
    };

    TextServices* services() const;
    std::vector<Chip> chips() const;
    Rect textArea() const;
    std::vector<Rect> selectedRects() const; // as much of the text as is selected, seen or not
    const FontSpec& font() const noexcept;
    const TextPlaces& places() const;
    std::size_t indexAt(Point position) const;
    const SurfaceStyle& surface() const;
    bool pressChip(Point position);
    bool scrollByWheel(const MouseEvent& event);
    bool erasesChip() const noexcept;
    void removeAttachment(std::size_t index);
    // After every edit and every move of the caret.
    void edited(const std::wstring& before);
    void caretMoved();
    void measureAgain();
    void paintChips(HDC dc, Point at);
    void paintText(HDC dc, Point at);
    void paintLine(HDC dc, Point at, const Rect& area, const Rect& line);

    TextEditModel model_;
    std::int32_t scroll_ = 0;
    WheelAcceleration wheel_;
    std::vector<TextAttachment> attachments_;
    std::wstring placeholder_;
    TextInputStyle style_;
    mutable std::optional<TextPlaces> places_; // of the text in its font, once they were asked for
    std::size_t dragOrigin_ = 0;
    std::int32_t dragClicks_ = 0; // 0: no selection is being dragged
    bool caretShown_ = true;
    std::uint32_t blinkElapsed_ = 0;
};

} // namespace vela
