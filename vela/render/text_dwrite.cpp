#include "vela/render/text_dwrite.h"

#include "vela/library_win32.h"
#include "vela/owned_win32.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <dwrite_3.h>
#include <process.h>

namespace vela {
namespace {

// Font sizes and rectangles are pixels already, so to DirectWrite a pixel is its unit.
constexpr float kPixelsPerUnit = 1.0F;

// Measured with this locale, drawn with it: it decides nothing but the shapes of a few letters.
constexpr wchar_t kLocale[] = L"cs-cz";

struct Format {
    const Font* font;
    ComPointer<IDWriteTextFormat> format; // empty: this font is GDI's alone
};

class Engine {
public:
    // Null when the system has no DirectWrite. Never destroyed: layouts that other static objects still hold
    // when the process ends need the library. Any thread may be the first to ask; the others wait.
    static Engine* instance()
    {
        static Engine& engine = *new Engine;
        return engine.interop_ ? &engine : nullptr;
    }

    IDWriteFactory* factory() const noexcept { return factory_.get(); }
    IDWriteRenderingParams* params() const noexcept { return params_.get(); }
    IDWriteTypography* plainTypography() const noexcept { return plainTypography_.get(); }
    IDWriteTextFormat* ensureFormat(const Font& font);
    IDWriteBitmapRenderTarget* ensureTarget(HDC dc, Size size);

private:
    Engine();
    ComPointer<IDWriteTextFormat> makeFormat(const Font& font);
    bool makePlainTypography();
    IDWriteFontCollection* ensurePrivateFonts();
    void openPrivateFonts();

    SystemLibrary library_{L"dwrite.dll"};
    ComPointer<IDWriteFactory> factory_;
    ComPointer<IDWriteGdiInterop> interop_;
    ComPointer<IDWriteFontCollection> systemFonts_;
    ComPointer<IDWriteFontCollection> privateFonts_;
    bool privateFontsOpened_ = false;
    ComPointer<IDWriteRenderingParams> params_;
    ComPointer<IDWriteTypography> plainTypography_;
    ComPointer<IDWriteBitmapRenderTarget> target_;
    Size targetSize_;
    std::vector<Format> formats_;
};

Engine::Engine()
{
    const auto create = library_.function<decltype(DWriteCreateFactory)>("DWriteCreateFactory");
    if (!create || FAILED(create(DWRITE_FACTORY_TYPE_SHARED, __uuidof(IDWriteFactory),
                                 reinterpret_cast<IUnknown**>(factory_.put()))))
        return;
    if (FAILED(factory_->GetSystemFontCollection(systemFonts_.put(), FALSE)) ||
        FAILED(factory_->CreateRenderingParams(params_.put())) ||
        FAILED(factory_->GetGdiInterop(interop_.put())) || !makePlainTypography())
        interop_.reset();
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

// Not part of opening the engine: the list of these fonts belongs to the UI thread.
IDWriteFontCollection* Engine::ensurePrivateFonts()
{
    if (!std::exchange(privateFontsOpened_, true))
        openPrivateFonts();
    return privateFonts_.get();
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

// The very face that GDI measures with, under the names that DirectWrite knows it by.
struct ChosenFace {
    std::wstring family; // empty: it has none
    DWRITE_FONT_WEIGHT weight = DWRITE_FONT_WEIGHT_NORMAL;
    DWRITE_FONT_STRETCH stretch = DWRITE_FONT_STRETCH_NORMAL;
    DWRITE_FONT_STYLE style = DWRITE_FONT_STYLE_NORMAL;
};

std::wstring firstOf(IDWriteLocalizedStrings& names)
{
    UINT32 length = 0;
    if (FAILED(names.GetStringLength(0, &length)))
        return {};
    std::wstring name(length, L'\0');
    return SUCCEEDED(names.GetString(0, name.data(), length + 1)) ? name : std::wstring();
}

ChosenFace chosenFace(IDWriteGdiInterop& interop, const Font& font)
{
    const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
    const SelectedObject selected(dc.get(), font.handle);
    ComPointer<IDWriteFontFace> face;
    ComPointer<IDWriteFontFace3> described;
    ComPointer<IDWriteLocalizedStrings> names;
    if (FAILED(interop.CreateFontFaceFromHdc(dc.get(), face.put())) || FAILED(face.queryTo(described)) ||
        FAILED(described->GetFamilyNames(names.put())))
        return {};
    ChosenFace chosen{firstOf(*names.get()), described->GetWeight(), described->GetStretch(),
                      described->GetStyle()};
    // A face without a bold that GDI thickens itself gets wider with GDI, but not with DirectWrite: it stays
    // GDI's. Slanting changes no width.
    const DWRITE_FONT_SIMULATIONS simulated = face->GetSimulations();
    if (simulated & DWRITE_FONT_SIMULATIONS_BOLD)
        return {};
    if (simulated & DWRITE_FONT_SIMULATIONS_OBLIQUE)
        chosen.style = DWRITE_FONT_STYLE_ITALIC;
    return chosen;
}

bool hasFamily(IDWriteFontCollection* fonts, const std::wstring& name)
{
    UINT32 index = 0;
    BOOL exists = FALSE;
    return fonts && SUCCEEDED(fonts->FindFamilyName(name.c_str(), &index, &exists)) && exists;
}

// Lines come broken, and step as GDI's do.
bool setLines(IDWriteTextFormat& format, const Font& font)
{
    return SUCCEEDED(format.SetWordWrapping(DWRITE_WORD_WRAPPING_NO_WRAP)) &&
           SUCCEEDED(format.SetLineSpacing(DWRITE_LINE_SPACING_METHOD_UNIFORM,
                                           static_cast<float>(font.lineHeight),
                                           static_cast<float>(font.ascent)));
}

ComPointer<IDWriteTextFormat> Engine::makeFormat(const Font& font)
{
    ComPointer<IDWriteTextFormat> format;
    const ChosenFace face = font.owned ? chosenFace(*interop_.get(), font) : ChosenFace();
    IDWriteFontCollection* const own = ensurePrivateFonts();
    IDWriteFontCollection* const fonts = hasFamily(own, face.family) ? own : systemFonts_.get();
    if (!hasFamily(fonts, face.family))
        return format;
    if (FAILED(factory_->CreateTextFormat(face.family.c_str(), fonts, face.weight, face.style, face.stretch,
                                          static_cast<float>(font.em), kLocale, format.put())) ||
        !setLines(*format.get(), font))
        format.reset();
    return format;
}

IDWriteTextFormat* Engine::ensureFormat(const Font& font)
{
    for (const Format& known : formats_) {
        if (known.font == &font)
            return known.format.get();
    }
    return formats_.emplace_back(Format{&font, makeFormat(font)}).format.get();
}

// One target for all texts, as large as the largest so far: rarely more than a line of text.
IDWriteBitmapRenderTarget* Engine::ensureTarget(HDC dc, Size size)
{
    const Size wanted{std::max(size.width, targetSize_.width), std::max(size.height, targetSize_.height)};
    if (target_ && wanted == targetSize_)
        return target_.get();
    const auto width = static_cast<UINT32>(wanted.width);
    const auto height = static_cast<UINT32>(wanted.height);
    const HRESULT made = target_ ? target_->Resize(width, height)
                                 : interop_->CreateBitmapRenderTarget(dc, width, height, target_.put());
    if (FAILED(made) || FAILED(target_->SetPixelsPerDip(kPixelsPerUnit))) {
        target_.reset();
        targetSize_ = {};
        return nullptr;
    }
    targetSize_ = wanted;
    return target_.get();
}

// Draws a layout's glyph runs into a bitmap target. Lives on the stack for one drawing, so it is not counted.
class GlyphPainter final : public IDWriteTextRenderer {
public:
    GlyphPainter(IDWriteBitmapRenderTarget& target, IDWriteRenderingParams& params, Color color)
        : target_(target), params_(params), color_(color)
    {
    }

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
        return target_.DrawGlyphRun(std::floor(x), y, mode, run, &params_, color_, nullptr);
    }

    HRESULT STDMETHODCALLTYPE DrawUnderline(void*, FLOAT x, FLOAT y, const DWRITE_UNDERLINE* line,
                                            IUnknown*) override
    {
        return fillLine(x, y + line->offset, line->width, line->thickness);
    }
    HRESULT STDMETHODCALLTYPE DrawStrikethrough(void*, FLOAT x, FLOAT y, const DWRITE_STRIKETHROUGH* line,
                                                IUnknown*) override
    {
        return fillLine(x, y + line->offset, line->width, line->thickness);
    }
    HRESULT STDMETHODCALLTYPE DrawInlineObject(void*, FLOAT, FLOAT, IDWriteInlineObject*, BOOL, BOOL,
                                               IUnknown*) override
    {
        return E_NOTIMPL; // layouts made here hold none
    }

private:
    HRESULT fillLine(FLOAT x, FLOAT y, FLOAT width, FLOAT thickness)
    {
        const HDC dc = target_.GetMemoryDC();
        const SelectedObject brush(dc, ::GetStockObject(DC_BRUSH));
        ::SetDCBrushColor(dc, color_);
        const auto round = [](FLOAT value) { return static_cast<int>(std::lround(value)); };
        return ::PatBlt(dc, round(x), round(y), round(width), std::max(round(thickness), 1), PATCOPY)
                   ? S_OK
                   : E_FAIL;
    }

    IDWriteBitmapRenderTarget& target_;
    IDWriteRenderingParams& params_;
    Color color_;
};

constexpr DWRITE_TEXT_ALIGNMENT kAlignments[] = {DWRITE_TEXT_ALIGNMENT_LEADING, DWRITE_TEXT_ALIGNMENT_CENTER,
                                                 DWRITE_TEXT_ALIGNMENT_TRAILING};

// A line's height around the text: letters reach beyond their widths and lines by less. How far they do is
// not asked, for the answer takes as long as drawing them.
Rect inkOf(IDWriteTextLayout& layout, std::int32_t margin)
{
    DWRITE_TEXT_METRICS text{};
    layout.GetMetrics(&text);
    const auto floored = [](FLOAT value) { return static_cast<std::int32_t>(std::floor(value)); };
    const auto raised = [](FLOAT value) { return static_cast<std::int32_t>(std::ceil(value)); };
    return {floored(text.left) - margin, floored(text.top) - margin, raised(text.width) + 1 + 2 * margin,
            raised(text.height) + 1 + 2 * margin};
}

unsigned __stdcall openEngine(void*)
{
    Engine::instance();
    return 0;
}

} // namespace

void openTextEngine()
{
    static const OwnedKernelObject thread(
        reinterpret_cast<HANDLE>(::_beginthreadex(nullptr, 0, openEngine, nullptr, 0, nullptr)));
}

DirectWriteLayout makeDirectWriteLayout(const TextLines& lines, const Font& font, std::int32_t width,
                                        TextAlign align)
{
    Engine* const engine = Engine::instance();
    IDWriteTextFormat* const format = engine ? engine->ensureFormat(font) : nullptr;
    DirectWriteLayout made;
    const Size box{width, lines.count * font.lineHeight};
    const auto length = static_cast<UINT32>(lines.text.size());
    if (!format || FAILED(engine->factory()->CreateGdiCompatibleTextLayout(
                       lines.text.data(), length, format, static_cast<float>(box.width),
                       static_cast<float>(box.height), kPixelsPerUnit, nullptr, FALSE, made.layout.put())))
        return made;
    if (FAILED(made.layout->SetTextAlignment(kAlignments[static_cast<std::size_t>(align)])) ||
        FAILED(made.layout->SetTypography(engine->plainTypography(), {0, length})) ||
        (font.key.underline && FAILED(made.layout->SetUnderline(TRUE, {0, length})))) {
        made.layout.reset();
        return made;
    }
    made.ink = inkOf(*made.layout.get(), font.lineHeight);
    return made;
}

bool tryDrawDirectWrite(HDC dc, const DirectWriteLayout& layout, Point corner, const Rect& area, Color color)
{
    Engine& engine = *Engine::instance();
    IDWriteBitmapRenderTarget* const target = engine.ensureTarget(dc, sizeOf(area));
    if (!target)
        return false;
    const HDC bitmap = target->GetMemoryDC();
    if (!::BitBlt(bitmap, 0, 0, area.width, area.height, dc, area.x, area.y, SRCCOPY))
        return false;
    GlyphPainter painter(*target, *engine.params(), color);
    return SUCCEEDED(layout.layout->Draw(nullptr, &painter, static_cast<float>(corner.x - area.x),
                                         static_cast<float>(corner.y - area.y))) &&
           ::BitBlt(dc, area.x, area.y, area.width, area.height, bitmap, 0, 0, SRCCOPY);
}

} // namespace vela
