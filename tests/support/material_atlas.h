// The pictures of the material samples as Direct3D drew them, kept in the repository: one file a mapping, a
// column for each preset, a row for each finish. With TAMBER_UPDATE_GOLDEN set in the environment,
//   scripts/wine-gpu build/windows/tests/unit_tests.exe --gtest_filter=MaterialGpuTest.*
// keeps new ones.
#pragma once

#include "tests/support/material_samples.h"
#include "vela/render/pixels/pixel_buffer.h"

#include <string>
#include <vector>

namespace vela::testing {

inline constexpr Size kAtlasCell{64, 48};
inline constexpr Size kAtlasSize{kSamplePresets * kAtlasCell.width, kSampleFinishes* kAtlasCell.height};

inline std::string atlasPath(MappingSpace mapping)
{
    return std::string(TAMBER_SOURCE_DIR "/tests/render/golden/materials_") +
           (mapping == MappingSpace::Local ? "local" : "global") + ".png";
}

// The sample's picture within its atlas.
inline PixelView atlasCell(const PixelView& atlas, const MaterialSample& sample)
{
    const std::int32_t column = static_cast<std::int32_t>(sample.preset) - 1;
    const std::int32_t row = static_cast<std::int32_t>(sample.finish);
    return {atlas.row(row * kAtlasCell.height) + column * kAtlasCell.width, kAtlasCell, atlas.stride};
}

// The file's pixels with their alpha, of the atlas's size; empty when it cannot be read.
std::vector<Pixel> readAtlas(MappingSpace mapping);

} // namespace vela::testing
