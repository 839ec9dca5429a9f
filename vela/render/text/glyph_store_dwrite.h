// The letters that DirectWrite has drawn, kept until the process ends as fonts are. UI thread only.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/render/text/glyph_picture.h"

#include <deque>
#include <optional>

#include <dwrite.h>

namespace vela {

// Font sizes and rectangles are pixels already, so to DirectWrite a pixel is its unit.
inline constexpr float kPixelsPerUnit = 1.0F;

struct KnownGlyph {
    UINT16 index;
    const GlyphPicture* picture; // null: it could not be drawn
};

// A face at one size, and those of its letters that were drawn so far.
struct GlyphFace {
    ComPointer<IDWriteFontFace> face;
    float em;                       // pixels
    std::vector<KnownGlyph> glyphs; // by index
};

class GlyphStore {
public:
    GlyphStore(ComPointer<IDWriteFactory> factory, ComPointer<IDWriteRenderingParams> params) noexcept;

    GlyphFace& ensureFace(const ComPointer<IDWriteFontFace>& face, float em);

    // Null when DirectWrite cannot draw it.
    const GlyphPicture* ensureGlyph(GlyphFace& face, UINT16 index, DWRITE_MEASURING_MODE mode);

    // What draws the pictures; there is one once there is a picture.
    const TextInk& ink() const noexcept { return *ink_; }

private:
    bool draw(const GlyphFace& face, UINT16 index, DWRITE_MEASURING_MODE mode, GlyphPicture& picture);
    void arrangeChannels(std::vector<std::uint8_t>& coverage) const;

    ComPointer<IDWriteFactory> factory_;
    ComPointer<IDWriteRenderingParams> params_;
    std::optional<TextInk> ink_;
    // Deques: both are named by address.
    std::deque<GlyphFace> faces_;
    std::deque<GlyphPicture> pictures_;
};

} // namespace vela
