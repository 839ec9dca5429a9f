// The pixel shader of the material overlay, translated line by line into plain C++: what the software overlay
// is held against, and the pace it has to beat.
#pragma once

#include "vela/render/materials/material_constants.h"
#include "vela/render/pixels/pixel_buffer.h"

namespace vela {

// The shader's output for one pixel: premultiplied, 0 to 1.
struct ReferenceColor {
    float red;
    float green;
    float blue;
    float alpha;
};

ReferenceColor referenceMaterialAt(const MaterialConstants& constants, std::int32_t x, std::int32_t y);

// The same for every pixel of the target, rounded as a render target of 8 bits a channel rounds.
void renderReferenceMaterial(const MaterialConstants& constants, const LayerTarget& target);

} // namespace vela
