// The software overlay against what Direct3D drew: pictures kept in the repository.
#include "tests/support/material_atlas.h"
#include "tests/support/picture_difference.h"
#include "vela/render/materials/material_overlay.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

using testing::kAtlasCell;
using testing::kAtlasSize;
using testing::MaterialSample;

TEST(MaterialGolden, ShowsTheSameInSoftwareAsDirect3dDrew)
{
    for (const MappingSpace mapping : {MappingSpace::Local, MappingSpace::Global}) {
        std::vector<Pixel> atlas = testing::readAtlas(mapping);
        ASSERT_FALSE(atlas.empty());
        std::vector<Pixel> pixels(static_cast<std::size_t>(kAtlasCell.width) * kAtlasCell.height);
        const PixelView picture{pixels.data(), kAtlasCell, kAtlasCell.width};
        testing::forEachMaterialSample([&](const MaterialSample& sample) {
            if (sample.mapping != mapping)
                return;
            renderMaterialOverlay(testing::constantsOf(sample, kAtlasCell), {picture, {0, 0}});
            EXPECT_TRUE(testing::looksTheSame(
                picture, testing::atlasCell({atlas.data(), kAtlasSize, kAtlasSize.width}, sample)))
                << sample.name();
        });
    }
}

} // namespace
} // namespace vela
