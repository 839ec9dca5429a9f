// The glyphs that DirectWrite has rasterised, cached until the process ends as fonts are. UI thread only.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/render/text/glyph_painter.h"

#include <deque>
#include <optional>

#include <dwrite.h>

namespace vela {

// Font sizes and rectangles are pixels already, so to DirectWrite a pixel is its unit.
inline constexpr float kPixelsPerUnit = 1.0F;

struct CachedGlyph {
    UINT16 index;
    const GlyphMask* mask; // null: it could not be rasterised
};

// A face at one size, and those of its glyphs that were rasterised so far.
struct GlyphFace {
    ComPointer<IDWriteFontFace> face;
    float em;                        // pixels
    std::vector<CachedGlyph> glyphs; // by index
};

class GlyphCache {
public:
    GlyphCache(ComPointer<IDWriteFactory> factory, ComPointer<IDWriteRenderingParams> params) noexcept;

    GlyphFace& ensureFace(const ComPointer<IDWriteFontFace>& face, float em);

    // Null when DirectWrite cannot rasterise it.
    const GlyphMask* ensureGlyph(GlyphFace& face, UINT16 index, DWRITE_MEASURING_MODE mode);

    // What draws the masks; there is one once there is a mask.
    const GlyphPainter& painter() const noexcept { return *painter_; }

private:
    bool rasterise(const GlyphFace& face, UINT16 index, DWRITE_MEASURING_MODE mode, GlyphMask& mask);
    void arrangeChannels(std::vector<std::uint8_t>& coverage) const;

    ComPointer<IDWriteFactory> factory_;
    ComPointer<IDWriteRenderingParams> params_;
    std::optional<GlyphPainter> painter_;
    // Deques: both are named by address.
    std::deque<GlyphFace> faces_;
    std::deque<GlyphMask> masks_;
};

} // namespace vela
