#include "vela/render/text/text_dwrite.h"

#include "vela/library_win32.h"
#include "vela/render/text/glyph_cache_dwrite.h"
#include "vela/text_clusters.h"
#include "vela/toolkit_texts.h"
#include "vela/worker_thread_win32.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <utility>

#include <dwrite_3.h>

namespace vela {
namespace {

// What DirectWrite has for a font of ours.
struct Typeface {
    const Font* font;
    GlyphFace* face;                      // null: this font is GDI's alone
    ComPointer<IDWriteTextFormat> format; // for layouts, once one was wanted
    bool isFormatTried = false;
};

class Engine {
public:
    // Null when the system has no DirectWrite. Never destroyed: glyph masks that other static objects
    // still name when the process ends are its own. Any thread may be the first to ask; the others wait.
    static Engine* instance()
    {
        static Engine& engine = *new Engine;
        return engine.interop_ ? &engine : nullptr;
    }

    IDWriteFactory* factory() const noexcept { return factory_.get(); }
    IDWriteTypography* plainTypography() const noexcept { return plainTypography_.get(); }
    GlyphCache& glyphs() noexcept { return *glyphs_; }
    // Null for a font that is GDI's alone.
    Typeface* ensureTypeface(const Font& font);
    // Null when there is none, or no layout can be made with it.
    IDWriteTextFormat* ensureFormat(const Font& font);

private:
    Engine();
    GlyphFace* findFace(const Font& font);
    ComPointer<IDWriteTextFormat> makeFormat(const Typeface& typeface);
    bool makePlainTypography();
    IDWriteFontCollection* collectionOf(const std::wstring& family);
    void openPrivateFonts();

    SystemLibrary library_{L"dwrite.dll"};
    ComPointer<IDWriteFactory> factory_;
    ComPointer<IDWriteGdiInterop> interop_;
    ComPointer<IDWriteFontCollection> systemFonts_;
    ComPointer<IDWriteFontCollection> privateFonts_;
    ComPointer<IDWriteTypography> plainTypography_;
    std::optional<GlyphCache> glyphs_;
    std::deque<Typeface> typefaces_; // fonts are never let go, and neither are these
};

Engine::Engine()
{
    const auto create = library_.function<decltype(DWriteCreateFactory)>("DWriteCreateFactory");
    ComPointer<IDWriteRenderingParams> params;
    if (!create ||
        FAILED(create(DWRITE_FACTORY_TYPE_SHARED, __uuidof(IDWriteFactory),
                      reinterpret_cast<IUnknown**>(factory_.put()))) ||
        FAILED(factory_->CreateRenderingParams(params.put())) || !makePlainTypography() ||
        FAILED(factory_->GetGdiInterop(interop_.put())))
        return;
    glyphs_.emplace(factory_, std::move(params));
}

// GDI neither kerns nor joins letters; if DirectWrite did, the text would be narrower than it was measured.
bool Engine::makePlainTypography()
{
    constexpr DWRITE_FONT_FEATURE_TAG kOff[] = {
        DWRITE_FONT_FEATURE_TAG_KERNING, DWRITE_FONT_FEATURE_TAG_STANDARD_LIGATURES,
        DWRITE_FONT_FEATURE_TAG_CONTEXTUAL_LIGATURES, DWRITE_FONT_FEATURE_TAG_CONTEXTUAL_ALTERNATES};
    if (FAILED(factory_->CreateTypography(plainTypography_.put())))
        return false;
    return std::all_of(std::begin(kOff), std::end(kOff), [this](DWRITE_FONT_FEATURE_TAG tag) {
        return SUCCEEDED(plainTypography_->AddFontFeature({tag, 0}));
    });
}

// DirectWrite does not see what GDI registered for this process alone: it gets a collection of its own. An
// older system without such collections leaves these fonts to GDI.
void Engine::openPrivateFonts()
{
    ComPointer<IDWriteFactory5> factory;
    ComPointer<IDWriteFontSetBuilder1> builder;
    if (privateFontFiles().empty() || FAILED(factory_.queryTo(factory)) ||
        FAILED(factory->CreateFontSetBuilder(builder.put())))
        return;
    for (const std::wstring& path : privateFontFiles()) {
        ComPointer<IDWriteFontFile> file;
        if (SUCCEEDED(factory->CreateFontFileReference(path.c_str(), nullptr, file.put())))
            builder->AddFontFile(file.get());
    }
    ComPointer<IDWriteFontSet> set;
    ComPointer<IDWriteFontCollection1> collection;
    if (SUCCEEDED(builder->CreateFontSet(set.put())) &&
        SUCCEEDED(factory->CreateFontCollectionFromFontSet(set.get(), collection.put())))
        collection.queryTo(privateFonts_);
}

// The very face that GDI measures with. A face without a bold that GDI thickens itself gets wider with GDI,
// but not with DirectWrite: it stays GDI's. Slanting changes no width.
GlyphFace* Engine::findFace(const Font& font)
{
    const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
    const SelectedObject selected(dc.get(), font.handle);
    ComPointer<IDWriteFontFace> face;
    if (!font.owned || FAILED(interop_->CreateFontFaceFromHdc(dc.get(), face.put())) ||
        face->GetSimulations() & DWRITE_FONT_SIMULATIONS_BOLD)
        return nullptr;
    return &glyphs_->ensureFace(face, static_cast<float>(font.em));
}

Typeface* Engine::ensureTypeface(const Font& font)
{
    const auto known = std::find_if(typefaces_.begin(), typefaces_.end(),
                                    [&font](const Typeface& typeface) { return typeface.font == &font; });
    Typeface& typeface =
        known != typefaces_.end() ? *known : typefaces_.emplace_back(Typeface{&font, findFace(font), {}});
    return typeface.face ? &typeface : nullptr;
}

std::wstring firstOf(IDWriteLocalizedStrings& names)
{
    UINT32 length = 0;
    if (FAILED(names.GetStringLength(0, &length)))
        return {};
    std::wstring name(length, L'\0');
    return SUCCEEDED(names.GetString(0, name.data(), length + 1)) ? name : std::wstring();
}

bool hasFamily(IDWriteFontCollection* fonts, const std::wstring& name)
{
    UINT32 index = 0;
    BOOL exists = FALSE;
    return fonts && SUCCEEDED(fonts->FindFamilyName(name.c_str(), &index, &exists)) && exists;
}

// Opened with the first layout: the system's collection is a list of all its fonts, which takes long to make.
IDWriteFontCollection* Engine::collectionOf(const std::wstring& family)
{
    if (!systemFonts_) {
        openPrivateFonts();
        if (FAILED(factory_->GetSystemFontCollection(systemFonts_.put(), FALSE)))
            return nullptr;
    }
    for (IDWriteFontCollection* const fonts : {privateFonts_.get(), systemFonts_.get()}) {
        if (hasFamily(fonts, family))
            return fonts;
    }
    return nullptr;
}

// Lines come broken, and step as GDI's do.
bool setLines(IDWriteTextFormat& format, const Font& font)
{
    return SUCCEEDED(format.SetWordWrapping(DWRITE_WORD_WRAPPING_NO_WRAP)) &&
           SUCCEEDED(format.SetLineSpacing(DWRITE_LINE_SPACING_METHOD_UNIFORM,
                                           static_cast<float>(font.lineHeight),
                                           static_cast<float>(font.ascent)));
}

// The typeface's face under the names that DirectWrite knows it by.
ComPointer<IDWriteTextFormat> Engine::makeFormat(const Typeface& typeface)
{
    ComPointer<IDWriteTextFormat> format;
    ComPointer<IDWriteFontFace3> face;
    ComPointer<IDWriteLocalizedStrings> names;
    if (FAILED(typeface.face->face.queryTo(face)) || FAILED(face->GetFamilyNames(names.put())))
        return format;
    const std::wstring family = firstOf(*names.get());
    IDWriteFontCollection* const fonts = collectionOf(family);
    const DWRITE_FONT_STYLE style = face->GetSimulations() & DWRITE_FONT_SIMULATIONS_OBLIQUE
                                        ? DWRITE_FONT_STYLE_ITALIC
                                        : face->GetStyle();
    if (!fonts ||
        FAILED(factory_->CreateTextFormat(family.c_str(), fonts, face->GetWeight(), style, face->GetStretch(),
                                          typeface.face->em, toolkitTexts().locale, format.put())) ||
        !setLines(*format.get(), *typeface.font))
        format.reset();
    return format;
}

IDWriteTextFormat* Engine::ensureFormat(const Font& font)
{
    Typeface* const typeface = ensureTypeface(font);
    if (!typeface)
        return nullptr;
    if (!std::exchange(typeface->isFormatTried, true))
        typeface->format = makeFormat(*typeface);
    return typeface->format.get();
}

// Takes down where the glyphs of DirectWrite's layout stand. Lives on the stack for one layout, so it is not
// counted.
class GlyphCollector final : public IDWriteTextRenderer {
public:
    GlyphCollector(GlyphCache& glyphs, TextLayout& layout) : glyphs_(glyphs), layout_(layout) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        if (id != __uuidof(IUnknown) && id != __uuidof(IDWritePixelSnapping) &&
            id != __uuidof(IDWriteTextRenderer)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDWriteTextRenderer*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE IsPixelSnappingDisabled(void*, BOOL* disabled) override
    {
        *disabled = FALSE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetCurrentTransform(void*, DWRITE_MATRIX* transform) override
    {
        *transform = {1, 0, 0, 1, 0, 0};
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPixelsPerDip(void*, FLOAT* pixels) override
    {
        *pixels = kPixelsPerUnit;
        return S_OK;
    }

    // Centred lines may begin at half pixels; GDI rounds them down.
    HRESULT STDMETHODCALLTYPE DrawGlyphRun(void*, FLOAT x, FLOAT y, DWRITE_MEASURING_MODE mode,
                                           const DWRITE_GLYPH_RUN* run, const DWRITE_GLYPH_RUN_DESCRIPTION*,
                                           IUnknown*) override
    {
        if (run->isSideways)
            return E_NOTIMPL; // no text here runs from top to bottom
        GlyphFace& face = glyphs_.ensureFace(ComPointer<IDWriteFontFace>(run->fontFace), run->fontEmSize);
        const FLOAT direction = run->bidiLevel % 2 == 0 ? 1.0F : -1.0F;
        FLOAT pen = std::floor(x);
        for (UINT32 i = 0; i < run->glyphCount; ++i) {
            const DWRITE_GLYPH_OFFSET offset =
                run->glyphOffsets ? run->glyphOffsets[i] : DWRITE_GLYPH_OFFSET{};
            const GlyphMask* const mask = glyphs_.ensureGlyph(face, run->glyphIndices[i], mode);
            if (!mask)
                return E_FAIL;
            // A letter of a run to the left stands before its pen.
            const FLOAT left = direction < 0 ? pen - run->glyphAdvances[i] : pen;
            layout_.addGlyph(*mask, {rounded(left + direction * offset.advanceOffset),
                                     rounded(y - offset.ascenderOffset)});
            pen += direction * run->glyphAdvances[i];
        }
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE DrawUnderline(void*, FLOAT x, FLOAT y, const DWRITE_UNDERLINE* line,
                                            IUnknown*) override
    {
        return addLine(x, y + line->offset, line->width, line->thickness);
    }
    HRESULT STDMETHODCALLTYPE DrawStrikethrough(void*, FLOAT x, FLOAT y, const DWRITE_STRIKETHROUGH* line,
                                                IUnknown*) override
    {
        return addLine(x, y + line->offset, line->width, line->thickness);
    }
    HRESULT STDMETHODCALLTYPE DrawInlineObject(void*, FLOAT, FLOAT, IDWriteInlineObject*, BOOL, BOOL,
                                               IUnknown*) override
    {
        return E_NOTIMPL; // layouts made here hold none
    }

private:
    static std::int32_t rounded(FLOAT value) noexcept
    {
        return static_cast<std::int32_t>(std::lround(value));
    }

    HRESULT addLine(FLOAT x, FLOAT y, FLOAT width, FLOAT thickness)
    {
        layout_.addLine({rounded(x), rounded(y), rounded(width), std::max(rounded(thickness), 1)});
        return S_OK;
    }

    GlyphCache& glyphs_;
    TextLayout& layout_;
};

constexpr DWRITE_TEXT_ALIGNMENT kAlignments[] = {DWRITE_TEXT_ALIGNMENT_LEADING, DWRITE_TEXT_ALIGNMENT_CENTER,
                                                 DWRITE_TEXT_ALIGNMENT_TRAILING};

// Where a line begins that leaves so many pixels of its width.
constexpr std::int32_t alignedLeft(TextAlign align, std::int32_t room) noexcept
{
    return align == TextAlign::Left ? 0 : align == TextAlign::Center ? room / 2 : room;
}

} // namespace

void openTextEngine()
{
    // Wine sets user32 up with the first look at a window class. A library that is being loaded on another
    // thread may look first, from within the loader that this thread then waits for: neither would go on.
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    ::GetClassInfoExW(nullptr, L"Static", &known);
    static const WorkerThread thread([] { Engine::instance(); });
}

ComPointer<IDWriteTextLayout> makeDirectWriteLayout(const TextLines& lines, const Font& font,
                                                    std::int32_t width, TextAlign align)
{
    Engine* const engine = Engine::instance();
    IDWriteTextFormat* const format = engine ? engine->ensureFormat(font) : nullptr;
    ComPointer<IDWriteTextLayout> layout;
    const Size box{width, lines.count * font.lineHeight};
    const auto length = static_cast<UINT32>(lines.text.size());
    if (!format || FAILED(engine->factory()->CreateGdiCompatibleTextLayout(
                       lines.text.data(), length, format, static_cast<float>(box.width),
                       static_cast<float>(box.height), kPixelsPerUnit, nullptr, FALSE, layout.put())))
        return layout;
    if (FAILED(layout->SetTextAlignment(kAlignments[static_cast<std::size_t>(align)])) ||
        FAILED(layout->SetTypography(engine->plainTypography(), {0, length})) ||
        (font.key.underline && FAILED(layout->SetUnderline(TRUE, {0, length}))))
        layout.reset();
    return layout;
}

std::optional<TextLayout> layoutComplexText(const TextLines& lines, const Font& font, std::int32_t width,
                                            TextAlign align)
{
    const ComPointer<IDWriteTextLayout> source = makeDirectWriteLayout(lines, font, width, align);
    std::optional<TextLayout> layout;
    if (!source)
        return layout;
    GlyphCollector collector(Engine::instance()->glyphs(), layout.emplace());
    if (FAILED(source->Draw(nullptr, &collector, 0, 0)))
        layout.reset();
    return layout;
}

std::optional<TextLayout> layoutPlainText(const TextLines& lines, const Font& font, std::int32_t width,
                                          TextAlign align, const TextMeasurer& measurer)
{
    std::optional<TextLayout> layout;
    Engine* const engine = Engine::instance();
    const Typeface* const typeface = engine ? engine->ensureTypeface(font) : nullptr;
    if (!typeface)
        return layout;
    const std::vector<UINT32> letters(lines.text.begin(), lines.text.end());
    std::vector<UINT16> indices(letters.size());
    if (FAILED(typeface->face->face->GetGlyphIndices(letters.data(), static_cast<UINT32>(letters.size()),
                                                     indices.data())))
        return layout;
    layout.emplace();
    std::vector<std::int32_t> ends;
    Point pen{0, font.ascent};
    for (std::size_t begin = 0; begin < letters.size(); pen.y += font.lineHeight) {
        const std::size_t end = std::min(lines.text.find(L'\n', begin), letters.size());
        measurer.measure(std::wstring_view(lines.text).substr(begin, end - begin), ends);
        const std::int32_t left = alignedLeft(align, width - (ends.empty() ? 0 : ends.back()));
        for (std::size_t i = begin; i < end; ++i) {
            const GlyphMask* const mask =
                indices[i] == 0 ? nullptr
                                : engine->glyphs().ensureGlyph(*typeface->face, indices[i],
                                                               DWRITE_MEASURING_MODE_GDI_CLASSIC);
            if (!mask)
                return std::nullopt;
            layout->addGlyph(*mask, {left + (i == begin ? 0 : ends[i - begin - 1]), pen.y});
        }
        begin = end + 1;
    }
    return layout;
}

std::optional<TextLayout> layoutText(const TextLines& lines, const Font& font, std::int32_t width,
                                     TextAlign align, const TextMeasurer& measurer)
{
    if (!font.key.underline && isPlainText(lines.text)) {
        std::optional<TextLayout> layout = layoutPlainText(lines, font, width, align, measurer);
        if (layout)
            return layout;
    }
    return layoutComplexText(lines, font, width, align);
}

const GlyphPainter& glyphPainter() noexcept { return Engine::instance()->glyphs().painter(); }

} // namespace vela
