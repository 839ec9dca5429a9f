// The tones that a surface really shows to what is on it: rendered with its material, light, inner shadow and
// noise, and averaged over spots of the size of a letter's parts, for no eye reads single pixels of grain.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/records/surface_style.h"

namespace vela::testing {

Tones renderedGroundTones(const SurfaceStyle& surface, const Tones& under); // a dialog's, nearly to its edges
Tones renderedFaceTones(const SurfaceStyle& surface, const Tones& under);   // a button's, where its text is

} // namespace vela::testing
