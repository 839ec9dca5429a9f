// The text of a tooltip on its surface, and the size it needs.
#pragma once

#include "vela/controls/tree/control.h"
#include "vela/controls/widgets/cast_shadow.h"
#include "vela/theme/records/control_styles.h"

namespace vela {

class TooltipView : public Control {
public:
    TooltipView(std::wstring id, Rect bounds) : Control(std::move(id), bounds) {}

    bool applyStyle(const StyleSheet& styles) override;
    std::wstring text() const override { return text_; }
    Rect contentBounds() const override;
    void paint(HDC dc, Point origin) override;
    void visitSurfaces(const SurfaceVisitor& visit) const override;

    void setText(std::wstring text) { text_ = std::move(text); }
    // As wide as the text needs, but no wider than the style allows; then it wraps.
    Size preferredSize() const;

private:
    std::int32_t textLeft() const noexcept;
    // Local pixels; empty where the style has none.
    Rect railRect() const;
    Rect iconRect() const;
    std::int32_t innerHeight() const;

    std::wstring text_;
    TooltipStyle style_;
    CastShadow shadow_;
};

} // namespace vela
