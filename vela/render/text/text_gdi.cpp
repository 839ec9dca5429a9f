#include "vela/render/text/text.h"

#include "vela/rect_win32.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/pixel_layer_gdi.h"
#include "vela/render/pixels/bounded_cache.h"
#include "vela/render/text/fonts_gdi.h"
#include "vela/render/text/text_dwrite.h"

#include <numeric>
#include <optional>
#include <utility>

namespace vela {
namespace {

// A window shows some dozens of texts; tooltips and progress texts come and go.
constexpr std::size_t kMaxPreparedTexts = 256;

struct TextRequest {
    std::wstring_view text;
    const Font* font; // fonts live as long as the process
    Size room;
    TextWrap wrap;
    TextAlign align;
};

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
    std::optional<TextLayout> layout; // as DirectWrite draws it
    bool isLayoutTried = false;
};

BoundedCache<TextKey, PreparedText>& preparedTexts()
{
    static BoundedCache<TextKey, PreparedText> texts(kMaxPreparedTexts);
    return texts;
}

PreparedText& prepare(const TextRequest& request)
{
    return preparedTexts().ensure(request, [&request] {
        const GdiTextMeasurer measurer(*request.font);
        return PreparedText{
            composeText(request.text, request.wrap, request.room, request.font->lineHeight, measurer),
            {},
            false};
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

bool tryDrawText(HDC dc, const Rect& rect, const TextRequest& request, PreparedText& text, Color color)
{
    if (!std::exchange(text.isLayoutTried, true))
        text.layout =
            layoutText(text.lines, *request.font, rect.width, request.align, GdiTextMeasurer(*request.font));
    if (!text.layout)
        return false;
    const Point corner{rect.x, textTop(rect, request.wrap, text.lines.count * request.font->lineHeight)};
    const Rect area = visiblePart(dc, intersection(movedBy(text.layout->inkBounds, corner), rect));
    if (isEmpty(area))
        return true;
    const PixelView pixels = readPixels(dc, area);
    if (!pixels.pixels)
        return false;
    glyphPainter().draw(pixels, {corner.x - area.x, corner.y - area.y}, *text.layout, color);
    writeScratch(dc, area);
    return true;
}

} // namespace

void render::drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                      std::int32_t dpi, TextLook look)
{
    if (text.empty() || !isVisible(dc, rect))
        return;
    const TextRequest request{text, &ensureFont(font, dpi), sizeOf(rect), look.wrap, look.align};
    PreparedText& prepared = prepare(request);
    const Color color = colorFor(font, look.tone);
    if (!tryDrawText(dc, rect, request, prepared, color))
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
    std::vector<std::int32_t> advances;
    GdiTextMeasurer(made).measure(text, advances);
    std::adjacent_difference(advances.begin(), advances.end(), advances.begin());
    // Every letter where it was measured to be, for carets and selections stand between them: GDI alone draws
    // a letter that it does not antialias as much as a pixel wider or narrower.
    const SelectedTextAttributes attributes(dc, made.handle, color);
    ::ExtTextOutW(dc, rect.x, rect.y, 0, nullptr, text.data(), static_cast<UINT>(text.size()),
                  reinterpret_cast<const INT*>(advances.data()));
}

std::int32_t render::measureText(std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                                 std::int32_t width)
{
    const Font& made = ensureFont(font, dpi);
    // Unlike DrawTextW, drawing breaks words that are longer than a line: so the lines are broken first.
    const TextLines lines = wrapText(text, width, GdiTextMeasurer(made));
    const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
    const SelectedObject selected(dc.get(), made.handle);
    RECT room{0, 0, width, 0};
    ::DrawTextW(dc.get(), lines.text.data(), static_cast<int>(lines.text.size()), &room,
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
    render::measureTextEnds(text, font, dpi, ends);
    return ends.empty() ? 0 : ends.back();
}

void render::measureTextEnds(std::wstring_view text, const FontSpec& font, std::int32_t dpi,
                             std::vector<std::int32_t>& ends)
{
    GdiTextMeasurer(ensureFont(font, dpi)).measure(text, ends);
}

TextStatistics textStatistics() noexcept { return {fontCount(), preparedTexts().made()}; }

} // namespace vela
