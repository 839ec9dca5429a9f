// How a skin's bitmap takes the theme's colours. Each mode has its own reading of "where" (the mask) and of
// "what colour":
//   Monochrome  the colour alone; the mask is its opacity. For stencils and symbols.
//   LumaMask    from the secondary colour in the dark to the colour in the light parts.
//   AlphaMask   the picture is opaque, its alpha is a packed mask: where it is set, the colour is.
//   Colorize    the picture multiplied by the colour, as far as the mask says.
//   PaletteMap  the palette spread over the picture's luminance, as far as the mask says.
// In the last two the mask Alpha stands for "wherever the picture is", so that antialiased edges take the
// colour whole. All of them mix with the untinted picture by the amount.
#pragma once

#include "vela/render/bitmaps/bitmap_image.h"
#include "vela/theme/records/surface_style.h"

namespace vela {

// Of one pixel with straight alpha. Roles are not looked at: whoever knows the theme has put their colours
// beside them.
Channels tinted(const Channels& source, const BitmapTint& tint) noexcept;

} // namespace vela
