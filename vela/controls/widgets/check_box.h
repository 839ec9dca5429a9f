// An option that is on or off: a box with a mark, and a caption that can be clicked too.
#pragma once

#include "vela/controls/tree/command_event.h"
#include "vela/controls/widgets/pressable.h"
#include "vela/theme/records/control_styles.h"

#include <functional>
#include <optional>

namespace vela {

class CheckBox : public Pressable {
public:
    using ChangeHandler = std::function<void(const CommandEvent&)>;

    CheckBox(std::wstring id, Rect bounds, std::wstring text);

    bool applyStyle(const StyleSheet& styles) override;
    std::wstring text() const override { return text_; }
    void paint(HDC dc, Point origin) override;
    // Toggles and raises "change", with the old and the new value as texts and as booleans.
    void activate() override;
    Rect focusBounds() const override;
    void visitSurfaces(const SurfaceVisitor& visit) const override;
    void onScaleChanged() override { captionWidth_.reset(); }
    // "checked": true, 1, yes or false, 0, no; anything else changes nothing.
    PropertyList properties() const override;
    void setProperty(std::wstring_view name, std::wstring_view value) override;
    AccessibleInfo accessibleInfo() const override;

    bool isChecked() const noexcept { return checked_; }
    // By the program: raises nothing.
    void setChecked(bool checked) { setFlag(checked_, checked); }
    void setChangeHandler(ChangeHandler handler) { changed_ = std::move(handler); }

private:
    const SurfaceStyle& boxSurface() const noexcept;
    Rect boxRect() const noexcept;
    std::int32_t captionWidth() const;

    std::wstring text_;
    CheckBoxStyle style_;
    mutable std::optional<std::int32_t> captionWidth_; // measured once
    bool checked_ = false;
    ChangeHandler changed_;
};

} // namespace vela
