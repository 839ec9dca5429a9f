// A text: a heading, a caption, a status line. The mouse passes through it unless it has a hint to show.
#pragma once

#include "vela/controls/tree/control.h"
#include "vela/render/text/text_look.h"

namespace vela {

class Label : public Control {
public:
    Label(std::wstring id, Rect bounds, std::wstring text);

    bool applyStyle(const StyleSheet& styles) override;
    bool isStaticText() const override { return true; }
    std::wstring text() const override { return text_; }
    void paint(HDC dc, Point origin) override;
    bool containsLocal(Point point) const override;
    AccessibleInfo accessibleInfo() const override;

    void setText(std::wstring text);
    void setAlign(TextAlign align);

private:
    std::wstring text_;
    TextAlign align_ = TextAlign::Left;
};

} // namespace vela
