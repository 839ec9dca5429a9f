#include "vela/render/text/text.h"

#include "vela/rect_win32.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/pixels/bounded_cache.h"
#include "vela/render/text/fonts_gdi.h"
#include "vela/render/text/layout_dwrite.h"
#include "vela/render/text/layout_painter_dwrite.h"
#include "vela/render/text/layout_places_dwrite.h"
#include "vela/render/text/text_engine_dwrite.h"

#include <cmath>
#include <optional>

namespace vela {
namespace {

// Longer than any path. What is longer still is GDI's, which draws it without looking at all of it first.
constexpr std::size_t kLongestLayout = 32'768;

struct TextRequest {
    std::wstring_view text;
    const Font* font; // fonts live as long as the process
    Size room;
    TextWrap wrap;
    TextAlign align;
};

// A line that is neither cut nor clipped.
TextRequest unclipped(std::wstring_view text, const Font& font) noexcept
{
    return {text, &font, kNoRoom, TextWrap::SingleLine, TextAlign::Left};
}

struct TextKey {
    explicit TextKey(const TextRequest& request)
        : text(request.text), font(request.font), room(request.room), wrap(request.wrap), align(request.align)
    {
    }
    friend bool operator==(const TextRequest& request, const TextKey& key) noexcept
    {
        return request.font == key.font && request.room == key.room && request.wrap == key.wrap &&
               request.align == key.align && request.text == key.text;
    }

    std::wstring text;
    const Font* font;
    Size room;
    TextWrap wrap;
    TextAlign align;
};

struct PreparedText {
    TextLines lines;
    ComPointer<IDWriteTextLayout> layout; // null: GDI draws
    Rect box;                             // around all ink, from the room's top left corner
    std::size_t weight;
};

// A text takes memory by its length, and some for being one.
constexpr std::size_t kWeightOfText = 256;

struct WeightOfText {
    std::size_t operator()(const PreparedText& text) const noexcept { return text.weight; }
};
using PreparedTexts = BoundedCache<TextKey, PreparedText, WeightOfText>;

// A window shows some dozens of texts; tooltips and progress texts come and go.
PreparedTexts& preparedTexts()
{
    constexpr std::size_t kMostTexts = 256;
    static PreparedTexts texts(kMostTexts * kWeightOfText);
    return texts;
}

TextLines compose(const TextRequest& request)
{
    if (request.room == kNoRoom)
        return {unbrokenLine(request.text), 1};
    return composeText(request.text, request.wrap, request.room, request.font->lineHeight,
                       GdiTextMeasurer(*request.font));
}

// Letters reach out of their lines: slanted ones to the side, those of other fonts and stacked marks above.
Rect inkBoxOf(const DWRITE_TEXT_METRICS& metrics, const Font& font)
{
    const auto down = [](FLOAT value) { return static_cast<std::int32_t>(std::floor(value)); };
    const auto up = [](FLOAT value) { return static_cast<std::int32_t>(std::ceil(value)); };
    const Rect lines{down(metrics.left), down(metrics.top), up(metrics.widthIncludingTrailingWhitespace) + 1,
                     up(metrics.height) + 1};
    return grownBy(lines, 2 * font.em);
}

PreparedText& prepare(const TextRequest& request)
{
    return preparedTexts().ensure(request, [&request] {
        PreparedText text{compose(request), {}, {}, kWeightOfText};
        text.weight += request.text.size() + text.lines.text.size();
        if (text.lines.text.size() <= kLongestLayout)
            text.layout =
                makeDirectWriteLayout(text.lines, *request.font, request.room, request.wrap, request.align);
        DWRITE_TEXT_METRICS metrics{};
        if (text.layout && SUCCEEDED(text.layout->GetMetrics(&metrics)))
            text.box = inkBoxOf(metrics, *request.font);
        else
            text.layout.reset();
        return text;
    });
}

constexpr UINT kAlignFlags[] = {DT_LEFT, DT_CENTER, DT_RIGHT};

// GDI would take an ampersand for the mark of an access key and swallow it, from paths too.
constexpr UINT kCommonFlags = DT_NOPREFIX;

UINT flagsFor(TextWrap wrap, TextAlign align) noexcept
{
    const UINT breaking = wrap == TextWrap::Words ? DT_WORDBREAK : DT_SINGLELINE | DT_VCENTER;
    return kCommonFlags | DT_END_ELLIPSIS | breaking | kAlignFlags[static_cast<std::size_t>(align)];
}

// A context that draws text in that font and colour over what is there, for as long as this lives.
class SelectedTextAttributes {
public:
    SelectedTextAttributes(HDC dc, HFONT font, Color color)
        : dc_(dc), selected_(dc, font), oldMode_(::SetBkMode(dc, TRANSPARENT)),
          oldColor_(::SetTextColor(dc, color))
    {
    }
    SelectedTextAttributes(const SelectedTextAttributes&) = delete;
    SelectedTextAttributes& operator=(const SelectedTextAttributes&) = delete;
    ~SelectedTextAttributes()
    {
        ::SetTextColor(dc_, oldColor_);
        ::SetBkMode(dc_, oldMode_);
    }

private:
    HDC dc_;
    SelectedObject selected_;
    int oldMode_;
    COLORREF oldColor_;
};

void drawGdi(HDC dc, const Rect& rect, std::wstring_view text, HFONT font, UINT flags, Color color)
{
    const SelectedTextAttributes attributes(dc, font, color);
    RECT room = toRECT(rect);
    ::DrawTextW(dc, text.data(), static_cast<int>(text.size()), &room, flags);
}

Color colorFor(const FontSpec& font, TextTone tone) noexcept
{
    return tone == TextTone::Enabled ? font.color : font.disabledColor;
}

// What of the text falls into the rectangle; the room begins at the corner.
bool tryDrawText(HDC dc, const Rect& within, Point corner, const Font& font, const PreparedText& text,
                 Color color)
{
    if (!text.layout)
        return false;
    const Rect area = visiblePart(dc, intersection(movedBy(text.box, corner), within));
    return isEmpty(area) || paintLayout(dc, area, corner, font, *text.layout.get(), color);
}

// The pieces of the line that can be seen.
void drawUnclippedByGdi(HDC dc, Point corner, std::wstring_view line, const Font& font, Color color)
{
    std::vector<std::int32_t> ends;
    GdiTextMeasurer(font).measure(line, ends);
    for (std::size_t begin = 0, end = 0; begin < line.size(); begin = end) {
        end = endOfPiece(line, begin);
        const std::int32_t left = begin == 0 ? 0 : ends[begin - 1];
        const Rect room{corner.x + left, corner.y, ends[end - 1] - left, font.lineHeight};
        if (isVisible(dc, grownBy(room, 2 * font.em)))
            drawGdi(dc, room, line.substr(begin, end - begin), font.handle,
                    kCommonFlags | DT_SINGLELINE | DT_NOCLIP, color);
    }
}

} // namespace

void render::drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                      std::int32_t dpi, TextLook look)
{
    if (text.empty() || !isVisible(dc, rect))
        return;
    const TextRequest request{text, &ensureFont(font, dpi), sizeOf(rect), look.wrap, look.align};
    const PreparedText& prepared = prepare(request);
    const Color color = colorFor(font, look.tone);
    if (!tryDrawText(dc, rect, {rect.x, rect.y}, *request.font, prepared, color))
        drawGdi(dc, rect, prepared.lines.text, request.font->handle, flagsFor(look.wrap, look.align), color);
}

void drawCenteredText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                      std::int32_t dpi, TextTone tone)
{
    if (text.empty() || !isVisible(dc, rect))
        return;
    const TextRequest request{text, &ensureFont(font, dpi), sizeOf(rect), TextWrap::SingleLine,
                              TextAlign::Center};
    drawGdi(dc, rect, prepare(request).lines.text, request.font->handle,
            flagsFor(TextWrap::SingleLine, TextAlign::Center), colorFor(font, tone));
}

void render::drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                               std::int32_t dpi, Color color)
{
    if (text.empty())
        return;
    const Font& made = ensureFont(font, dpi);
    const PreparedText& prepared = prepare(unclipped(text, made));
    const Point corner{rect.x, rect.y};
    if (!tryDrawText(dc, movedBy(prepared.box, corner), corner, made, prepared, color))
        drawUnclippedByGdi(dc, corner, prepared.lines.text, made, color);
}

std::int32_t render::measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                                 std::int32_t width)
{
    const Font& made = ensureFont(font, dpi);
    // Unlike DrawTextW, drawing breaks words that are longer than a line: so the lines are broken first.
    const TextLines lines = wrapText(text, width, GdiTextMeasurer(made));
    const SelectedObject selected(measuringDc(), made.handle);
    RECT room{0, 0, width, 0};
    ::DrawTextW(measuringDc(), lines.text.data(), static_cast<int>(lines.text.size()), &room,
                kCommonFlags | DT_CALCRECT | DT_WORDBREAK);
    return room.bottom;
}

std::int32_t render::lineHeight(const FontSpec& font, std::int32_t dpi)
{
    return ensureFont(font, dpi).lineHeight;
}

std::int32_t render::measureTextWidth(std::wstring_view text, const FontSpec& font, std::int32_t dpi)
{
    std::vector<std::int32_t> ends;
    GdiTextMeasurer(ensureFont(font, dpi)).measure(text, ends);
    return ends.empty() ? 0 : ends.back();
}

TextPlaces render::measureTextPlaces(std::wstring_view text, const FontSpec& font, std::int32_t dpi)
{
    const Font& made = ensureFont(font, dpi);
    const PreparedText& prepared = prepare(unclipped(text, made));
    std::optional<TextPlaces> places;
    if (prepared.layout)
        places = placesOf(text, *prepared.layout.get());
    if (places)
        return *std::move(places);
    std::vector<std::int32_t> ends;
    GdiTextMeasurer(made).measure(prepared.lines.text, ends);
    return TextPlaces(text, ends);
}

void render::textSettingsChanged()
{
    if (TextEngine* const engine = TextEngine::instance())
        engine->forgetSmoothing();
    preparedTexts().clear();
}

TextStatistics textStatistics() noexcept
{
    return {fontCount(), preparedTexts().made(), preparedTexts().size()};
}

} // namespace vela
