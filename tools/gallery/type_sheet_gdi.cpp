// Type specimens: faces, weights, sizes, states, wrapping, and both engines side by side.
#include "tools/gallery/gallery_gdi.h"

#include "vela/render/paint/paint.h"
#include "vela/render/text/text.h"

namespace gallery {
namespace {

using vela::FontSpec;
using vela::hexColor;
using vela::Rect;
using vela::TextAlign;
using vela::TextTone;
using vela::TextWrap;

constexpr std::wstring_view kPangram = L"Příliš žluťoučký kůň úpěl ďábelské ódy";
constexpr std::wstring_view kParagraph =
    L"Tamber se nainstaluje do složky C:\\Program Files\\Tamber\\Modely\\"
    L"VelmiDlouhýNázevSložkyBezJedinéMezery a potom se spustí. Instalace potrvá asi minutu.";

struct Writer {
    Sheet& sheet;
    FontSpec font;

    void line(const Rect& rect, std::wstring_view text, std::int32_t points, std::int32_t weight,
              vela::TextLook look = {})
    {
        FontSpec spec = font;
        spec.pointSize = points;
        spec.weight = weight;
        vela::drawText(sheet.dc(), rect, text, spec, kDpi, look);
    }
};

void drawWeights(Writer& writer, std::int32_t left, std::int32_t top)
{
    constexpr std::int32_t kWeights[] = {100, 300, 400, 500, 600, 700, 900};
    for (const std::int32_t weight : kWeights) {
        writer.sheet.caption({left, top, 40, 28}, std::to_wstring(weight));
        writer.line({left + 44, top, 480, 28}, kPangram, 13, weight);
        top += 30;
    }
}

void drawSizes(Writer& writer, std::int32_t left, std::int32_t top)
{
    constexpr std::int32_t kSizes[] = {7, 8, 9, 10, 11, 12, 14, 18, 24};
    for (const std::int32_t points : kSizes) {
        const std::int32_t height = points * 2 + 6;
        writer.sheet.caption({left, top, 40, height}, std::to_wstring(points) + L" pt");
        writer.line({left + 44, top, 560, height}, kPangram, points, 400);
        top += height;
    }
}

// The same line by drawText, which asks DirectWrite first, and by drawCenteredText, which is GDI's.
void drawEngines(Writer& writer, std::int32_t left, std::int32_t top)
{
    for (const std::int32_t points : {9, 10, 12, 16}) {
        FontSpec spec = writer.font;
        spec.pointSize = points;
        vela::drawText(writer.sheet.dc(), {left, top, 420, 30}, kPangram, spec, kDpi,
                       {.align = TextAlign::Center});
        vela::drawCenteredText(writer.sheet.dc(), {left, top + 24, 420, 30}, kPangram, spec, kDpi);
        top += 60;
    }
}

void drawWrapping(Writer& writer, std::int32_t left, std::int32_t top)
{
    struct Box {
        std::int32_t width;
        std::int32_t height;
        TextAlign align;
    };
    constexpr Box kBoxes[] = {{200, 150, TextAlign::Left},
                              {200, 150, TextAlign::Center},
                              {200, 150, TextAlign::Right},
                              {260, 44, TextAlign::Left}};
    for (const Box& box : kBoxes) {
        const Rect rect{left, top, box.width, box.height};
        vela::fillShape(writer.sheet.dc(), rect, vela::ShapeKind::Rect, hexColor(0x252C34));
        writer.line(inset(rect, 8, 4), kParagraph, 10, 400, {.align = box.align, .wrap = TextWrap::Words});
        left += box.width + 16;
    }
}

void drawOddities(Writer& writer, std::int32_t left, std::int32_t top)
{
    constexpr std::wstring_view kLines[] = {
        L"Tom & Jerry, 100 %, C:\\A&B",
        L"e\u0301 z\u030C r\u030C u\u030A",
        L"\U0001F680 \U0001F468\u200D\U0001F469 \U0001F44B\U0001F3FD",
        L"漢字 Ελληνικά Кириллица",
        L"C:\\שלום\\ملفات\\x",
        L"ﬁ ﬂ … – — „uvozovky“ ½ €",
    };
    for (const std::wstring_view text : kLines) {
        writer.line({left, top, 300, 24}, text, 11, 400);
        writer.line({left + 310, top, 90, 24}, text, 11, 400, {.tone = TextTone::Disabled});
        top += 26;
    }
}

} // namespace

bool drawTypeSheet(const std::wstring& path)
{
    Sheet sheet({1240, 760}, {});
    sheet.title({24, 20}, L"Type");
    Writer writer{sheet, {L"Segoe UI", 10, 400, sheet.colors().text, sheet.colors().faintText}};
    sheet.heading({24, 72}, L"Weights");
    drawWeights(writer, 24, 96);
    sheet.heading({620, 72}, L"Sizes");
    drawSizes(writer, 620, 96);
    sheet.heading({24, 320}, L"DirectWrite above, GDI below");
    drawEngines(writer, 24, 340);
    sheet.heading({620, 380}, L"Odd characters, enabled and disabled, cut short");
    drawOddities(writer, 620, 404);
    sheet.heading({24, 570}, L"Wrapping");
    drawWrapping(writer, 24, 594);
    return sheet.save(path);
}

} // namespace gallery
