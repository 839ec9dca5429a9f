#include "vela/render/layers/noise.h"

#include "tests/render/layers/layer_testing.h"

namespace vela {
namespace {

std::uint32_t noiseByFormula(std::uint32_t px, std::uint32_t py, std::uint32_t s)
{
    const std::uint32_t h1 = (px + ((s << 6) + (s >> 2) + 0x9E3779B9U)) ^ s;
    std::uint32_t h = (py + ((h1 << 6) + (h1 >> 2) + 0x85EBCA6BU)) ^ h1;
    h ^= h >> 16;
    h *= 0x7FEB352DU;
    h ^= h >> 15;
    h *= 0x846CA68BU;
    h ^= h >> 16;
    return h & 0xFF;
}

TEST(Noise, IsTheHashOfSeedAndPositionExactly)
{
    SurfaceStyle style;
    style.noise = hexColor(0xC08040);
    for (const std::uint32_t seed : {0U, 1U, 0xFFFFFFF0U})
        for (const std::uint8_t opacity : {std::uint8_t{0}, std::uint8_t{12}, std::uint8_t{255}})
            forEveryShape([&](ShapeKind shape, const LayerCase& layer) {
                style.noiseSeed = seed;
                style.noiseOpacity = opacity;
                const Picture picture = drawLayer(layer.visible, [&](const LayerTarget& target) {
                    fillNoise(target, {shape, layer.size}, style, {40, 50});
                });
                EXPECT_TRUE(matches(picture, layer.visible, 0, [&](std::int32_t x, std::int32_t y) {
                    const unsigned a =
                        noiseByFormula(static_cast<unsigned>(x), static_cast<unsigned>(y), seed) * opacity /
                        255;
                    const Pixel grain = makePixel(0xC0 * a / 255, 0x80 * a / 255, 0x40 * a / 255, a);
                    return covers(shape, layer.size, x, y) ? grain : 0U;
                }));
            });
}

TEST(Noise, ContinuesAcrossSurfacesWhenMappedToTheWindow)
{
    SurfaceStyle style;
    style.noiseOpacity = 255;
    style.uvMapping = MappingSpace::Global;
    style.uvOffsetX = -100;
    const Rect left{0, 0, 20, 8};
    const auto grainAt = [&](Point origin) {
        return drawLayer(left, [&](const LayerTarget& target) {
            fillNoise(target, {ShapeKind::Rect, {20, 8}}, style, origin);
        });
    };
    const Picture here = grainAt({5, 3});
    const Picture further = grainAt({10, 4});
    for (std::int32_t y = 0; y < 7; ++y)
        for (std::int32_t x = 0; x < 15; ++x)
            ASSERT_EQ(further.at(x, y), here.at(x + 5, y + 1));
    // uvOffsetX + origin + x is negative here; the hash takes it modulo 2^32.
    EXPECT_EQ(alphaOf(here.at(0, 0)), noiseByFormula(static_cast<std::uint32_t>(-95), 3, style.noiseSeed));
}

} // namespace
} // namespace vela
