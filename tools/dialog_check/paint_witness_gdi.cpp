#include "tools/dialog_check/paint_witness_gdi.h"

#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/paint/paint.h"
#include "vela/render/surface/mark_painter.h"
#include "vela/render/text/text.h"

#include <utility>

namespace dialog_check {
namespace {

PaintWitness* present = nullptr;

constexpr Side kSides[] = {Side::Left, Side::Centre, Side::Right}; // in the order of TextAlign

Ink inkOf(const vela::Rect& rect, std::wstring_view text, const vela::FontSpec& font, std::int32_t dpi,
          vela::TextLook look)
{
    const bool wraps = look.wrap == vela::TextWrap::Words;
    const vela::Size needed{wraps ? rect.width : vela::measureTextWidth(text, font, dpi),
                            wraps ? vela::measureText(text, font, dpi, rect.width)
                                  : vela::lineHeight(font, dpi)};
    return {.text = std::wstring(text),
            .room = rect,
            .place = placeInRoom(rect, needed, kSides[static_cast<std::size_t>(look.align)], look.wrap),
            .needed = needed,
            .color = look.tone == vela::TextTone::Enabled ? font.color : font.disabledColor,
            .large = isLargeText(font)};
}

// A field scrolls a line that is longer than itself: what is not seen is not cut off.
Ink scrolledInk(HDC dc, const vela::Rect& rect, std::wstring_view text, const vela::FontSpec& font,
                vela::Color color)
{
    const vela::Rect seen = vela::visiblePart(dc, rect);
    return {.text = std::wstring(text),
            .room = seen,
            .place = seen,
            .needed = vela::sizeOf(seen),
            .color = color,
            .large = isLargeText(font)};
}

Ink markOf(const vela::Rect& box, vela::Color color)
{
    return {.kind = InkKind::Mark,
            .text = L"mark",
            .room = box,
            .place = box,
            .needed = vela::sizeOf(box),
            .color = color};
}

} // namespace

PaintWitness::PaintWitness(Ink ink) : ink_(ink) { present = this; }

PaintWitness::~PaintWitness() { present = nullptr; }

bool PaintWitness::see(dialog_check::Ink ink)
{
    if (!present)
        return true;
    present->inks_.push_back(std::move(ink));
    return present->ink_ == Ink::Painted;
}

} // namespace dialog_check

// What stands in the place of the product's own, and passes on to the same renderer.
namespace vela {

using dialog_check::PaintWitness;

void drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look)
{
    if (text.empty() || PaintWitness::see(dialog_check::inkOf(rect, text, font, dpi, look)))
        render::drawText(dc, rect, text, font, dpi, look);
}

void drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                       std::int32_t dpi, Color color)
{
    if (text.empty() || PaintWitness::see(dialog_check::scrolledInk(dc, rect, text, font, color)))
        render::drawUnclippedLine(dc, rect, text, font, dpi, color);
}

void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color)
{
    if (PaintWitness::see(dialog_check::markOf(box, color)))
        render::paintIcon(dc, icon, box, dpi, color);
}

} // namespace vela
