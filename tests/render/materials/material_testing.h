// A surface with nothing but a material.
#pragma once

#include "vela/theme/records/surface_style.h"

namespace vela {

inline SurfaceStyle carved(MaterialPreset material)
{
    SurfaceStyle style;
    style.material = material;
    style.materialEnabled = true;
    return style;
}

} // namespace vela
