// Premultiplied pixels laid over each other in memory, as compositing lays them on a device context.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

namespace vela {

// Source over what the target holds; both of one size.
void blendOver(const PixelView& source, const PixelView& target) noexcept;

} // namespace vela
