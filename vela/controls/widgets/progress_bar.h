// How far something has come, in percent.
#pragma once

#include "vela/controls/tree/control.h"
#include "vela/theme/records/control_styles.h"

namespace vela {

class ProgressBar : public Control {
public:
    using Control::Control;

    bool applyStyle(const StyleSheet& styles) override;
    std::wstring text() const override; // the value and a percent sign
    void paint(HDC dc, Point origin) override;
    bool containsLocal(Point point) const override;
    // "value": a decimal number, clamped to 0 to 100; text without one changes nothing.
    PropertyList properties() const override;
    void setProperty(std::wstring_view name, std::wstring_view value) override;
    AccessibleInfo accessibleInfo() const override;
    const SurfaceStyle* paintedSurface() const override { return &style_.frame; }
    void visitSurfaces(const SurfaceVisitor& visit) const override;

    std::int32_t value() const noexcept { return value_; }
    void setValue(std::int32_t percent);
    // Whether the percentage is written beside the bar: not for a bar that only shows that work goes on.
    void setShowsLabel(bool shows) { setFlag(showsLabel_, shows); }
    bool showsLabel() const noexcept { return showsLabel_; }

private:
    std::int32_t labelRoom() const noexcept;
    // Local pixels: the bar without its label, and the track in it.
    Rect barRect() const noexcept;
    Rect trackRect() const noexcept;

    ProgressBarStyle style_;
    std::int32_t value_ = 0;
    bool showsLabel_ = true;
};

// The part of a progress bar's track that a percentage fills; its end is a fraction of a pixel.
float progressEnd(std::int32_t trackWidth, std::int32_t percent) noexcept;

} // namespace vela
