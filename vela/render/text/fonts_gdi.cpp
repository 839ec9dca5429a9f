#include "vela/render/text/fonts_gdi.h"

#include "vela/render/text/fonts.h"
#include "vela/render/text/private_fonts_gdi.h"
#include "vela/render/text/text_engine_dwrite.h"
#include "vela/text_clusters.h"

#include <algorithm>
#include <deque>

namespace vela {
namespace {

int CALLBACK stopAtFirst(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found)
{
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

// GDI itself never says no: CreateFontW puts some font in the place of an unknown one.
bool isFamilyInstalled(const std::wstring& family)
{
    LOGFONTW wanted{};
    if (family.size() >= std::size(wanted.lfFaceName))
        return false;
    wanted.lfCharSet = DEFAULT_CHARSET;
    std::copy(family.begin(), family.end(), wanted.lfFaceName);
    bool found = false;
    ::EnumFontFamiliesExW(measuringDc(), &wanted, stopAtFirst, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

// DirectWrite draws the record's weight of the family, and GDI measures with the same face under the names
// that GDI has for it: were it left to choose by itself, it would take the bold for a semibold.
FontFace gdiFaceFor(const FontSpec& spec)
{
    TextEngine* const engine = TextEngine::instance();
    return chooseFace(spec.family, [&](const std::wstring& family) -> std::optional<FontFace> {
        std::optional<FontFace> face;
        if (engine)
            face = engine->gdiFaceOf(family, spec.weight, spec.italic);
        if (!face && isFamilyInstalled(family))
            face = FontFace{family, spec.weight};
        return face;
    });
}

Font makeFont(const FontSpec& spec, std::int32_t dpi)
{
    Font font{FontKey(spec, dpi), gdiFaceFor(spec), emPixels(spec.pointSize, dpi)};
    font.owned.reset(::CreateFontW(-font.em, 0, 0, 0, font.face.weight, spec.italic, spec.underline, FALSE,
                                   DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                   CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_DONTCARE, font.face.family.c_str()));
    font.handle = font.owned ? font.owned.get() : static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    const SelectedObject selected(measuringDc(), font.handle);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(measuringDc(), &metrics);
    font.lineHeight = metrics.tmHeight;
    font.ascent = metrics.tmAscent;
    return font;
}

// A deque: fonts are handed out by reference and never move.
std::deque<Font>& fonts()
{
    static std::deque<Font> all;
    return all;
}

} // namespace

HDC measuringDc()
{
    static const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
    return dc.get();
}

std::size_t endOfPiece(std::wstring_view text, std::size_t begin) noexcept
{
    constexpr std::size_t kLongestPiece = 1000;
    if (text.size() - begin <= kLongestPiece)
        return text.size();
    const std::size_t stop = nearestCaretStop(text, begin + kLongestPiece);
    return stop > begin ? stop : begin + kLongestPiece;
}

void GdiTextMeasurer::measure(std::wstring_view text, std::vector<std::int32_t>& ends) const
{
    static_assert(sizeof(INT) == sizeof(std::int32_t));
    ends.assign(text.size(), 0);
    std::int64_t before = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = endOfPiece(text, begin);
        SIZE size;
        ::GetTextExtentExPointW(measuringDc(), text.data() + begin, static_cast<int>(end - begin), 0, nullptr,
                                reinterpret_cast<INT*>(ends.data() + begin), &size);
        for (; begin < end; ++begin)
            ends[begin] =
                static_cast<std::int32_t>(std::min<std::int64_t>(before + ends[begin], kWidestText));
        before = ends[end - 1];
    }
}

const Font& ensureFont(const FontSpec& spec, std::int32_t dpi)
{
    loadPrivateFonts();
    for (const Font& font : fonts()) {
        if (font.key.matches(spec, dpi))
            return font;
    }
    return fonts().emplace_back(makeFont(spec, dpi));
}

std::size_t fontCount() noexcept { return fonts().size(); }

HFONT fontFor(const FontSpec& font, std::int32_t dpi) { return ensureFont(font, dpi).owned.get(); }

void loadPrivateFonts() { privateFontFiles(); }

} // namespace vela
