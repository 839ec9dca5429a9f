#include "tools/dialog_check/paint_witness_gdi.h"

#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/surface/control_painter.h"
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

// The names are those that the compiler gives the functions; the build hands them to the linker as well.
#define VELA_WITNESSED(name, symbol, ...)                                                                    \
    void real##name(__VA_ARGS__) __asm__("__real_" symbol);                                                  \
    void witness##name(__VA_ARGS__) __asm__("__wrap_" symbol)

namespace vela {

using dialog_check::PaintWitness;

VELA_WITNESSED(Text, WITNESS_DRAW_TEXT, HDC, const Rect&, std::wstring_view, const FontSpec&, std::int32_t,
               TextLook);
VELA_WITNESSED(Line, WITNESS_DRAW_LINE, HDC, const Rect&, std::wstring_view, const FontSpec&, std::int32_t,
               Color);
VELA_WITNESSED(Glyph, WITNESS_PAINT_GLYPH, HDC, Glyph, const Rect&, std::int32_t, Color);

void witnessText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                 TextLook look)
{
    if (text.empty() || PaintWitness::see(dialog_check::inkOf(rect, text, font, dpi, look)))
        realText(dc, rect, text, font, dpi, look);
}

void witnessLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                 Color color)
{
    if (text.empty() || PaintWitness::see(dialog_check::scrolledInk(dc, rect, text, font, color)))
        realLine(dc, rect, text, font, dpi, color);
}

void witnessGlyph(HDC dc, Glyph glyph, const Rect& box, std::int32_t dpi, Color color)
{
    if (PaintWitness::see(dialog_check::markOf(box, color)))
        realGlyph(dc, glyph, box, dpi, color);
}

} // namespace vela
