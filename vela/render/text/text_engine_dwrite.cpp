#include "vela/render/text/text_engine_dwrite.h"

#include "vela/render/text/private_fonts_gdi.h"
#include "vela/worker_thread_win32.h"

#include <algorithm>
#include <utility>

#include <dwrite_3.h>

namespace vela {

TextEngine* TextEngine::instance()
{
    static TextEngine& engine = *new TextEngine;
    return engine.interop_ ? &engine : nullptr;
}

// The system's collection is a list of all its fonts, which takes long to make.
TextEngine::TextEngine()
{
    const auto create = library_.function<decltype(DWriteCreateFactory)>("DWriteCreateFactory");
    if (create &&
        SUCCEEDED(create(DWRITE_FACTORY_TYPE_SHARED, __uuidof(IDWriteFactory),
                         reinterpret_cast<IUnknown**>(factory_.put()))) &&
        SUCCEEDED(factory_->GetSystemFontCollection(systemFonts_.put(), FALSE)))
        factory_->GetGdiInterop(interop_.put());
}

// DirectWrite does not see what GDI registered for this process alone: it gets a collection of its own. An
// older system without such collections leaves these fonts to GDI.
void TextEngine::openPrivateFonts()
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

IDWriteFontCollection* TextEngine::collectionOf(const std::wstring& family)
{
    if (!std::exchange(arePrivateFontsOpen_, true))
        openPrivateFonts();
    for (IDWriteFontCollection* const fonts : {privateFonts_.get(), systemFonts_.get()}) {
        UINT32 index = 0;
        BOOL exists = FALSE;
        if (fonts && SUCCEEDED(fonts->FindFamilyName(family.c_str(), &index, &exists)) && exists)
            return fonts;
    }
    return nullptr;
}

// To GDI a family has a regular and a bold; any other weight is the regular of a family of its own. Asked for
// as what it is, GDI would thicken it.
std::optional<FontFace> TextEngine::gdiFaceOf(const std::wstring& family, std::int32_t weight, bool italic)
{
    IDWriteFontCollection* const fonts = collectionOf(family);
    ComPointer<IDWriteFontFamily> faces;
    ComPointer<IDWriteFont> font;
    UINT32 index = 0;
    BOOL exists = FALSE;
    LOGFONTW named{};
    BOOL isOfSystem = FALSE;
    if (!fonts || FAILED(fonts->FindFamilyName(family.c_str(), &index, &exists)) ||
        FAILED(fonts->GetFontFamily(index, faces.put())) ||
        FAILED(faces->GetFirstMatchingFont(directWriteWeight(weight), DWRITE_FONT_STRETCH_NORMAL,
                                           directWriteStyle(italic), font.put())) ||
        FAILED(interop_->ConvertFontToLOGFONT(font.get(), &named, &isOfSystem)) || !named.lfFaceName[0])
        return std::nullopt;
    const bool isBold =
        font->GetSimulations() & DWRITE_FONT_SIMULATIONS_BOLD || font->GetWeight() == DWRITE_FONT_WEIGHT_BOLD;
    const auto has = static_cast<std::int32_t>(font->GetWeight());
    return FontFace{named.lfFaceName, isBold ? FW_BOLD : std::min<std::int32_t>(has, FW_NORMAL)};
}

// What DirectWrite tells of a monitor is how ClearType looks there; whether the user wants it, or any
// smoothing, the system tells.
Smoothing TextEngine::makeSmoothing(HMONITOR monitor) const
{
    Smoothing smoothing;
    if ((!monitor || FAILED(factory_->CreateMonitorRenderingParams(monitor, smoothing.params.put()))) &&
        FAILED(factory_->CreateRenderingParams(smoothing.params.put())))
        return smoothing;
    BOOL isSmooth = TRUE;
    UINT type = FE_FONTSMOOTHINGCLEARTYPE;
    ::SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &isSmooth, 0);
    ::SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &type, 0);
    if (type == FE_FONTSMOOTHINGSTANDARD)
        smoothing.mode = DWRITE_TEXT_ANTIALIAS_MODE_GRAYSCALE;
    if (!isSmooth) {
        const ComPointer<IDWriteRenderingParams> told = smoothing.params;
        factory_->CreateCustomRenderingParams(told->GetGamma(), told->GetEnhancedContrast(),
                                              told->GetClearTypeLevel(), told->GetPixelGeometry(),
                                              DWRITE_RENDERING_MODE_ALIASED, smoothing.params.put());
    }
    return smoothing;
}

const Smoothing& TextEngine::ensureSmoothing(HMONITOR monitor)
{
    auto known = std::find_if(smoothings_.begin(), smoothings_.end(),
                              [monitor](const SmoothingOfMonitor& one) { return one.monitor == monitor; });
    if (known == smoothings_.end())
        known = smoothings_.insert(known, {monitor, makeSmoothing(monitor)});
    return known->smoothing;
}

void openTextEngine()
{
    // The first look at a window class loads what user32 has put off. Were it another library's, from within
    // the loader on the other thread, it could wait for this thread while this one waits for the loader.
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    ::GetClassInfoExW(nullptr, L"Static", &known);
    static const WorkerThread thread([] { TextEngine::instance(); });
}

DWRITE_FONT_WEIGHT directWriteWeight(std::int32_t weight) noexcept
{
    return static_cast<DWRITE_FONT_WEIGHT>(std::clamp(weight, kMinFontWeight, kMaxFontWeight));
}

} // namespace vela
