// A surface's face composed in memory: its layers over each other on transparent ground, so that the picture
// is the same whatever lies beneath the surface.
#pragma once

#include "vela/render/bitmaps/tinted_bitmap.h"
#include "vela/render/layers/paint_plan.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"

#include <functional>
#include <span>

namespace vela {

// What the layers of one face are made of.
struct FaceSource {
    const SurfaceStyle& style;
    Point origin;                                          // of the surface in its window
    Coverage coverage;                                     // what its layers may touch
    const TintedBitmap* bitmap;                            // null without one
    std::function<void(const LayerTarget&)> writeMaterial; // the material of the whole rectangle
};

// Whether layers are laid on what the picture holds, or are all that is in it.
enum class Beneath : std::uint8_t { Nothing, Picture };

// Composes the visible part of the steps, which are a plan's face or some of it but for the cut.
void composeFace(const LayerTarget& picture, std::span<const PaintStep> steps, const FaceSource& source,
                 Beneath beneath);

// The same with a layer that write(target) makes.
void composeLayer(const LayerTarget& picture, const Rect& part,
                  const std::function<void(const LayerTarget&)>& write);

} // namespace vela
