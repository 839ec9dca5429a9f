// Runs pixel layers into buffers that tests can look at: each is held against the same layer computed pixel
// by pixel from its formulas.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/shapes/coverage.h"
#include "vela/render/shapes/shape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace vela {

struct Picture {
    Size size;
    std::vector<Pixel> pixels;

    Pixel at(std::int32_t x, std::int32_t y) const
    {
        return pixels[static_cast<std::size_t>(y * size.width + x)];
    }
};

// What fill(target) writes for the visible part. The buffer is dirty before, so a layer that leaves pixels
// unwritten shows.
template <typename Fill>
Picture drawLayer(const Rect& visible, Fill&& fill)
{
    const Size size = sizeOf(visible);
    Picture picture{size, std::vector<Pixel>(static_cast<std::size_t>(size.width * size.height), 0xDEADBEEF)};
    fill(LayerTarget{{picture.pixels.data(), size, size.width}, {visible.x, visible.y}});
    return picture;
}

// In whole pixels.
inline double coveredArea(const Picture& picture)
{
    double area = 0;
    for (const Pixel pixel : picture.pixels)
        area += alphaOf(pixel) / 255.0;
    return area;
}

inline int channelOf(Pixel pixel, int channel) { return static_cast<int>(pixel >> (8 * channel) & 0xFF); }

inline int largestDifference(Pixel a, Pixel b)
{
    int largest = 0;
    for (int channel = 0; channel < 4; ++channel)
        largest = std::max(largest, std::abs(channelOf(a, channel) - channelOf(b, channel)));
    return largest;
}

// Holds every pixel of the visible part against expected(x, y), in the surface's coordinates.
template <typename Expected>
testing::AssertionResult matches(const Picture& picture, const Rect& visible, int tolerance,
                                 Expected&& expected)
{
    for (std::int32_t y = visible.y; y < visible.y + visible.height; ++y)
        for (std::int32_t x = visible.x; x < visible.x + visible.width; ++x) {
            const Pixel is = picture.at(x - visible.x, y - visible.y);
            const Pixel should = expected(x, y);
            if (largestDifference(is, should) > tolerance)
                return testing::AssertionFailure()
                       << "at " << x << "," << y << std::hex << " is " << is << " instead of " << should;
        }
    return testing::AssertionSuccess();
}

// Sizes and visible parts that every layer is tried with: whole small surfaces, thin ones, a part of a large
// one.
struct LayerCase {
    Size size;
    Rect visible;
};

inline const std::vector<LayerCase>& layerCases()
{
    static const std::vector<LayerCase> cases = {
        {{1, 1}, {0, 0, 1, 1}},      {{1, 9}, {0, 0, 1, 9}},           {{7, 1}, {0, 0, 7, 1}},
        {{33, 18}, {0, 0, 33, 18}},  {{18, 33}, {0, 0, 18, 33}},       {{200, 40}, {0, 0, 200, 40}},
        {{200, 40}, {13, 7, 90, 5}}, {{300, 170}, {250, 100, 50, 70}},
    };
    return cases;
}

inline std::string nameOf(ShapeKind kind, const LayerCase& layer)
{
    return "shape " + std::to_string(static_cast<int>(kind)) + " size " + std::to_string(layer.size.width) +
           "x" + std::to_string(layer.size.height) + " from " + std::to_string(layer.visible.x) + "," +
           std::to_string(layer.visible.y);
}

inline constexpr ShapeKind kAllShapes[] = {ShapeKind::Rect,    ShapeKind::RoundedRect, ShapeKind::Pill,
                                           ShapeKind::Diamond, ShapeKind::Bevel,       ShapeKind::Octagon,
                                           ShapeKind::Hexagon, ShapeKind::SlantRight,  ShapeKind::SlantLeft};

// Calls test(shape, case) for every combination.
template <typename Test>
void forEveryShape(Test&& test)
{
    for (const ShapeKind shape : kAllShapes)
        for (const LayerCase& layer : layerCases()) {
            SCOPED_TRACE(nameOf(shape, layer));
            test(shape, layer);
        }
}

inline bool covers(ShapeKind shape, Size size, std::int32_t x, std::int32_t y)
{
    return pointInShape(shape, size.width, size.height, {x, y});
}

// From 0 at the first pixel to 1 at the last.
inline double positionIn(std::int32_t at, std::int32_t length)
{
    return length > 1 ? double(at) / (length - 1) : 0.0;
}

} // namespace vela
