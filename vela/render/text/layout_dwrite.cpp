#include "vela/render/text/layout_dwrite.h"

#include "vela/render/text/text_engine_dwrite.h"
#include "vela/toolkit_texts.h"

#include <algorithm>
#include <deque>
#include <optional>

#include <dwrite_3.h>

namespace vela {
namespace {

// A face under the names that DirectWrite knows it by.
struct FaceName {
    std::wstring family;
    IDWriteFontCollection* fonts;
    DWRITE_FONT_WEIGHT weight;
    DWRITE_FONT_STYLE style;
    DWRITE_FONT_STRETCH stretch;
};

struct FormatOfFont {
    const Font* font;
    ComPointer<IDWriteTextFormat> format; // null: this font is GDI's alone
};

std::wstring firstOf(IDWriteLocalizedStrings& names)
{
    UINT32 length = 0;
    if (FAILED(names.GetStringLength(0, &length)))
        return {};
    std::wstring name(length, L'\0');
    return SUCCEEDED(names.GetString(0, name.data(), length + 1)) ? name : std::wstring();
}

// Names that are GDI's alone ("Segoe UI Semibold") stand for a face of another family; for a name that nobody
// knows GDI has the default face.
std::optional<FaceName> faceThatGdiChose(TextEngine& engine, const Font& font)
{
    const SelectedObject selected(measuringDc(), font.handle);
    ComPointer<IDWriteFontFace> anyFace;
    ComPointer<IDWriteFontFace3> face;
    ComPointer<IDWriteLocalizedStrings> names;
    if (!font.owned || FAILED(engine.interop()->CreateFontFaceFromHdc(measuringDc(), anyFace.put())) ||
        FAILED(anyFace.queryTo(face)) || FAILED(face->GetFamilyNames(names.put())))
        return std::nullopt;
    std::wstring family = firstOf(*names.get());
    IDWriteFontCollection* const fonts = engine.collectionOf(family);
    if (!fonts)
        return std::nullopt;
    return FaceName{std::move(family), fonts, face->GetWeight(), directWriteStyle(font.key.italic),
                    face->GetStretch()};
}

// DirectWrite knows a family by all its weights, so the record's own is asked for.
std::optional<FaceName> faceFor(TextEngine& engine, const Font& font)
{
    const std::wstring family = font.key.family.empty() ? kDefaultFace : font.key.family;
    IDWriteFontCollection* const fonts = engine.collectionOf(family);
    if (!fonts)
        return faceThatGdiChose(engine, font);
    return FaceName{family, fonts, directWriteWeight(font.key.weight), directWriteStyle(font.key.italic),
                    DWRITE_FONT_STRETCH_NORMAL};
}

ComPointer<IDWriteTextFormat> makeFormat(TextEngine& engine, const Font& font)
{
    ComPointer<IDWriteTextFormat> format;
    const std::optional<FaceName> face = faceFor(engine, font);
    // Lines come broken, and step as GDI's do.
    if (!face ||
        FAILED(engine.factory()->CreateTextFormat(face->family.c_str(), face->fonts, face->weight,
                                                  face->style, face->stretch, static_cast<float>(font.em),
                                                  toolkitTexts().locale, format.put())) ||
        FAILED(format->SetWordWrapping(DWRITE_WORD_WRAPPING_NO_WRAP)) ||
        FAILED(format->SetLineSpacing(DWRITE_LINE_SPACING_METHOD_UNIFORM, static_cast<float>(font.lineHeight),
                                      static_cast<float>(font.ascent))))
        format.reset();
    return format;
}

IDWriteTextFormat* ensureFormat(TextEngine& engine, const Font& font)
{
    static std::deque<FormatOfFont>& formats = *new std::deque<FormatOfFont>; // fonts are never let go either
    const auto known = std::find_if(formats.begin(), formats.end(),
                                    [&font](const FormatOfFont& one) { return one.font == &font; });
    if (known != formats.end())
        return known->format.get();
    return formats.emplace_back(FormatOfFont{&font, makeFormat(engine, font)}).format.get();
}

// GDI neither kerns nor joins letters; if DirectWrite did, the text would be narrower than it was measured.
ComPointer<IDWriteTypography> makePlainTypography(IDWriteFactory& factory)
{
    constexpr DWRITE_FONT_FEATURE_TAG kOff[] = {
        DWRITE_FONT_FEATURE_TAG_KERNING, DWRITE_FONT_FEATURE_TAG_STANDARD_LIGATURES,
        DWRITE_FONT_FEATURE_TAG_CONTEXTUAL_LIGATURES, DWRITE_FONT_FEATURE_TAG_CONTEXTUAL_ALTERNATES};
    ComPointer<IDWriteTypography> typography;
    if (FAILED(factory.CreateTypography(typography.put())) ||
        !std::all_of(std::begin(kOff), std::end(kOff), [&typography](DWRITE_FONT_FEATURE_TAG tag) {
            return SUCCEEDED(typography->AddFontFeature({tag, 0}));
        }))
        typography.reset();
    return typography;
}

constexpr DWRITE_TEXT_ALIGNMENT kAlignments[] = {DWRITE_TEXT_ALIGNMENT_LEADING, DWRITE_TEXT_ALIGNMENT_CENTER,
                                                 DWRITE_TEXT_ALIGNMENT_TRAILING};

// Half of what is left of an odd height would be half a pixel: GDI takes the whole pixel above.
constexpr std::int32_t heightWithMiddle(std::int32_t height, std::int32_t lineHeight) noexcept
{
    return lineHeight + static_cast<std::int32_t>((std::int64_t{height} - lineHeight) / 2 * 2);
}

} // namespace

ComPointer<IDWriteTextLayout> makeDirectWriteLayout(const TextLines& lines, const Font& font, Size room,
                                                    TextWrap wrap, TextAlign align)
{
    TextEngine* const engine = TextEngine::instance();
    IDWriteTextFormat* const format = engine ? ensureFormat(*engine, font) : nullptr;
    ComPointer<IDWriteTextLayout> layout;
    if (!format)
        return layout;
    static const ComPointer<IDWriteTypography>& plain =
        *new ComPointer<IDWriteTypography>(makePlainTypography(*engine->factory()));
    const bool isCentred = wrap == TextWrap::SingleLine && room != kNoRoom;
    const std::int32_t height = isCentred ? heightWithMiddle(room.height, font.lineHeight) : room.height;
    const auto length = static_cast<UINT32>(lines.text.size());
    if (FAILED(engine->factory()->CreateGdiCompatibleTextLayout(
            lines.text.data(), length, format, static_cast<float>(std::max(room.width, 0)),
            static_cast<float>(std::max(height, 0)), kPixelsPerUnit, nullptr, FALSE, layout.put())))
        return layout;
    if (FAILED(layout->SetTextAlignment(kAlignments[static_cast<std::size_t>(align)])) ||
        FAILED(layout->SetParagraphAlignment(isCentred ? DWRITE_PARAGRAPH_ALIGNMENT_CENTER
                                                       : DWRITE_PARAGRAPH_ALIGNMENT_NEAR)) ||
        FAILED(layout->SetTypography(plain.get(), {0, length})) ||
        (font.key.underline && FAILED(layout->SetUnderline(TRUE, {0, length}))))
        layout.reset();
    return layout;
}

} // namespace vela
