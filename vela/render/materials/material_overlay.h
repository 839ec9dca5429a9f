// The material overlay in software: light, reflection, grain and texture of a surface, pixel for pixel what
// the pixel shader computes, so that a machine without a usable graphics card shows the same picture.
#pragma once

#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/pixel_buffer.h"

namespace vela {

// Writes every pixel of the target, which may be a part of the surface; the surface's size is in the
// constants. Shape is not considered: the overlay is cut when it is composited.
void renderMaterialOverlay(const MaterialConstants& constants, const LayerTarget& target);

} // namespace vela
