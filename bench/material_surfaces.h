// The surfaces on which material overlays are timed.
#pragma once

#include "vela/render/materials/material_constants.h"

namespace bench {

inline constexpr vela::Size kDialog{690, 420};

// In the order of MaterialPreset, from Glass.
inline constexpr const char* kMaterialNames[] = {
    "glass",         "frostedGlass", "gloss",       "metal",          "brushedMetal", "plastic",
    "rubber",        "paper",        "carbonFiber", "obsidianGlass",  "bloodGloss",   "amberGlass",
    "luminousGlass", "layeredGlass", "gemstone",    "obsidianRelief", "stoneGranite", "stoneMarble"};

// As a surface has it by default.
inline vela::MaterialConstants materialOf(vela::MaterialPreset material, vela::MaterialFinish finish,
                                          vela::Size size = kDialog)
{
    vela::SurfaceStyle style;
    style.material = material;
    style.materialEnabled = true;
    style.finish = finish;
    style.materialTint = vela::hexColor(0x4A8F6B);
    style.backlightOpacity = 140;
    style.innerGlow = 90;
    return vela::materialConstants(style, {0, 0, size.width, size.height}, 0.3F,
                                   vela::PerformanceProfile::Full);
}

} // namespace bench
