#include "vela/render/text/glyph_cache_dwrite.h"

#include "vela/rect_win32.h"

#include <algorithm>
#include <utility>

#include <dwrite_3.h>

namespace vela {
namespace {

// Every layout may have an object of its own for the same face.
bool isSameFace(IDWriteFontFace* one, IDWriteFontFace* other)
{
    if (one == other)
        return true;
    ComPointer<IDWriteFontFace5> comparing;
    return SUCCEEDED(one->QueryInterface(__uuidof(IDWriteFontFace5), comparing.putVoid())) &&
           comparing->Equals(other);
}

} // namespace

GlyphCache::GlyphCache(ComPointer<IDWriteFactory> factory, ComPointer<IDWriteRenderingParams> params) noexcept
    : factory_(std::move(factory)), params_(std::move(params))
{
}

GlyphFace& GlyphCache::ensureFace(const ComPointer<IDWriteFontFace>& face, float em)
{
    for (GlyphFace& known : faces_) {
        if (known.em == em && isSameFace(known.face.get(), face.get()))
            return known;
    }
    return faces_.emplace_back(GlyphFace{face, em, {}});
}

// DirectWrite rasterises a glyph anew each time it is asked; under Wine that takes longer than the rest of
// painting.
const GlyphMask* GlyphCache::ensureGlyph(GlyphFace& face, UINT16 index, DWRITE_MEASURING_MODE mode)
{
    const auto place =
        std::lower_bound(face.glyphs.begin(), face.glyphs.end(), index,
                         [](const CachedGlyph& known, UINT16 wanted) { return known.index < wanted; });
    if (place != face.glyphs.end() && place->index == index)
        return place->mask;
    GlyphMask mask;
    const bool rasterised = rasterise(face, index, mode, mask);
    return face.glyphs.insert(place, {index, rasterised ? &masks_.emplace_back(std::move(mask)) : nullptr})
        ->mask;
}

bool GlyphCache::rasterise(const GlyphFace& face, UINT16 index, DWRITE_MEASURING_MODE mode, GlyphMask& mask)
{
    const FLOAT advance = 0;
    const DWRITE_GLYPH_RUN run{face.face.get(), face.em, 1, &index, &advance, nullptr, FALSE, 0};
    DWRITE_RENDERING_MODE rendering{};
    ComPointer<IDWriteGlyphRunAnalysis> analysis;
    if (FAILED(face.face->GetRecommendedRenderingMode(face.em, kPixelsPerUnit, mode, params_.get(),
                                                      &rendering)) ||
        FAILED(factory_->CreateGlyphRunAnalysis(&run, kPixelsPerUnit, nullptr, rendering, mode, 0, 0,
                                                analysis.put())))
        return false;
    const bool antialiased = rendering != DWRITE_RENDERING_MODE_ALIASED;
    const DWRITE_TEXTURE_TYPE texture =
        antialiased ? DWRITE_TEXTURE_CLEARTYPE_3x1 : DWRITE_TEXTURE_ALIASED_1x1;
    RECT bounds{};
    FLOAT gamma = 1;
    FLOAT contrast = 0; // none in the modes that match GDI
    FLOAT clearType = 1;
    if (FAILED(analysis->GetAlphaTextureBounds(texture, &bounds)) ||
        FAILED(analysis->GetAlphaBlendParams(params_.get(), &gamma, &contrast, &clearType)))
        return false;
    if (!painter_)
        painter_.emplace(gamma);
    mask.box = toRect(bounds);
    if (isEmpty(mask.box))
        return true;
    mask.coverage.resize(static_cast<std::size_t>(mask.box.width) *
                         static_cast<std::size_t>(mask.box.height) * 3);
    const auto size = static_cast<UINT32>(antialiased ? mask.coverage.size() : mask.coverage.size() / 3);
    if (FAILED(analysis->CreateAlphaTexture(texture, &bounds, mask.coverage.data(), size)))
        return false;
    if (antialiased)
        arrangeChannels(mask.coverage);
    else
        for (std::size_t i = mask.coverage.size(); i-- > 0;)
            mask.coverage[i] = mask.coverage[i / 3];
    return true;
}

// From the order of a colour screen's stripes to red, green and blue; screens without stripes get greys.
void GlyphCache::arrangeChannels(std::vector<std::uint8_t>& coverage) const
{
    const DWRITE_PIXEL_GEOMETRY stripes = params_->GetPixelGeometry();
    const bool grey = stripes == DWRITE_PIXEL_GEOMETRY_FLAT || params_->GetClearTypeLevel() <= 0;
    for (std::size_t i = 0; i + 2 < coverage.size(); i += 3) {
        std::uint8_t* const pixel = &coverage[i];
        if (grey)
            std::fill_n(pixel, 3, static_cast<std::uint8_t>((pixel[0] + pixel[1] + pixel[2]) / 3));
        else if (stripes == DWRITE_PIXEL_GEOMETRY_BGR)
            std::swap(pixel[0], pixel[2]);
    }
}

} // namespace vela
