// The tones that a surface really shows to what is on it: rendered with its material, light, inner shadow and
// noise, and averaged over spots of the size of a letter's parts, for no eye reads single pixels of grain.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/records/surface_style.h"

namespace vela::testing {

// Of a dialog, nearly to its edges.
ToneRange renderedContainerTones(const SurfaceStyle& surface, const ToneRange& backdrop);
// Of a button, where its text is.
ToneRange renderedFaceTones(const SurfaceStyle& surface, const ToneRange& backdrop);

} // namespace vela::testing
