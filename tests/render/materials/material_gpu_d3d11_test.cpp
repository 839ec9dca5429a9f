// The material overlay on the graphics card. Where Direct3D has its shader compiler these tests need it to
// work; everywhere else the machine without one is tested.
#include "tests/support/material_atlas.h"
#include "tests/support/picture_difference.h"
#include "tools/png_file_win32.h"
#include "vela/render/materials/material_gpu_d3d11.h"
#include "vela/render/materials/material_overlay.h"
#include "vela/render/materials/shader_compiler_d3d11.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include <objbase.h>

namespace vela {
namespace {

using testing::atlasCell;
using testing::constantsOf;
using testing::kAtlasCell;
using testing::kAtlasSize;
using testing::MaterialSample;

class MaterialGpuTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!std::getenv("TAMBER_SHADER_COMPILER"))
            GTEST_SKIP() << "no shader compiler here";
    }
};

PixelView viewOf(std::vector<Pixel>& pixels, Size size) { return {pixels.data(), size, size.width}; }

std::vector<Pixel> pixelsFor(Size size)
{
    return std::vector<Pixel>(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
}

// The atlas of that mapping as the card draws it now.
std::vector<Pixel> drawnAtlas(MappingSpace mapping)
{
    std::vector<Pixel> drawn = pixelsFor(kAtlasSize);
    testing::forEachMaterialSample([&](const MaterialSample& sample) {
        if (sample.mapping != mapping)
            return;
        EXPECT_TRUE(renderMaterialOnGpu(constantsOf(sample, kAtlasCell),
                                        atlasCell(viewOf(drawn, kAtlasSize), sample)))
            << sample.name();
    });
    return drawn;
}

TEST(MaterialWithoutGpuTest, IsLookedForOnce)
{
    if (std::getenv("TAMBER_SHADER_COMPILER"))
        GTEST_SKIP() << "there is a shader compiler here";
    constexpr Pixel kUntouched = 0x12345678;
    std::vector<Pixel> pixels(4, kUntouched);
    const MaterialConstants constants = constantsOf({}, {2, 2});
    ASSERT_FALSE(renderMaterialOnGpu(constants, viewOf(pixels, {2, 2})));
    const std::size_t attempts = shadersCompiled();
    for (int call = 0; call < 3; ++call)
        ASSERT_FALSE(renderMaterialOnGpu(constants, viewOf(pixels, {2, 2})));
    EXPECT_EQ(shadersCompiled(), attempts);
    EXPECT_EQ(pixels, std::vector<Pixel>(4, kUntouched));
}

TEST_F(MaterialGpuTest, DrawsNothingForASurfaceWithoutPixels)
{
    EXPECT_FALSE(renderMaterialOnGpu(constantsOf({}, {0, 48}), {nullptr, {0, 48}, 0}));
    EXPECT_FALSE(renderMaterialOnGpu(constantsOf({}, {64, 0}), {nullptr, {64, 0}, 64}));
    std::vector<Pixel> pixels = pixelsFor({7, 5});
    EXPECT_TRUE(renderMaterialOnGpu(constantsOf({}, {7, 5}), viewOf(pixels, {7, 5})));
}

TEST_F(MaterialGpuTest, DrawsWhatTheKeptPicturesShow)
{
    ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    for (const MappingSpace mapping : {MappingSpace::Local, MappingSpace::Global}) {
        std::vector<Pixel> drawn = drawnAtlas(mapping);
        if (std::getenv("TAMBER_UPDATE_GOLDEN")) {
            const std::string path = testing::atlasPath(mapping);
            ASSERT_TRUE(tools::writePng({path.begin(), path.end()}, viewOf(drawn, kAtlasSize),
                                        tools::PngAlpha::Stored));
        }
        std::vector<Pixel> kept = testing::readAtlas(mapping);
        ASSERT_FALSE(kept.empty());
        EXPECT_TRUE(testing::looksTheSame(viewOf(drawn, kAtlasSize), viewOf(kept, kAtlasSize)));
    }
    ::CoUninitialize();
}

// Odd widths too: then rows on the card are longer than those of the picture.
TEST_F(MaterialGpuTest, LooksTheSameInSoftwareAtEverySize)
{
    for (const Size size : {Size{120, 34}, Size{33, 21}, Size{7, 90}, Size{157, 91}}) {
        std::vector<Pixel> onCard = pixelsFor(size);
        std::vector<Pixel> inSoftware = pixelsFor(size);
        testing::forEachMaterialSample([&](const MaterialSample& sample) {
            const MaterialConstants constants = constantsOf(sample, size);
            ASSERT_TRUE(renderMaterialOnGpu(constants, viewOf(onCard, size)));
            renderMaterialOverlay(constants, {viewOf(inSoftware, size), {0, 0}});
            EXPECT_TRUE(testing::looksTheSame(viewOf(onCard, size), viewOf(inSoftware, size)))
                << sample.name() << ", " << size.width << " x " << size.height;
        });
    }
}

// As large as the setup's window, one finish a preset.
TEST_F(MaterialGpuTest, LooksTheSameInSoftwareOverAWholeWindow)
{
    constexpr Size kWindow{690, 420};
    std::vector<Pixel> onCard = pixelsFor(kWindow);
    std::vector<Pixel> inSoftware = pixelsFor(kWindow);
    testing::forEachMaterialSample([&](const MaterialSample& sample) {
        if (static_cast<int>(sample.preset) % testing::kSampleFinishes != static_cast<int>(sample.finish))
            return;
        const MaterialConstants constants = constantsOf(sample, kWindow);
        ASSERT_TRUE(renderMaterialOnGpu(constants, viewOf(onCard, kWindow)));
        renderMaterialOverlay(constants, {viewOf(inSoftware, kWindow), {0, 0}});
        EXPECT_TRUE(testing::looksTheSame(viewOf(onCard, kWindow), viewOf(inSoftware, kWindow)))
            << sample.name();
    });
}

} // namespace
} // namespace vela
