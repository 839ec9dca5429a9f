// How far two pictures of the same surface are apart, all four channels of a premultiplied pixel counted.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace vela::testing {

struct PictureDifference {
    double closePixels = 0; // share of pixels with no channel off by more than two levels
    double mean = 0;        // over all channels, in levels
    int worst = 0;          // in levels
};

inline PictureDifference differenceOf(const PixelView& one, const PixelView& other)
{
    PictureDifference difference;
    std::int64_t close = 0;
    std::int64_t sum = 0;
    for (std::int32_t y = 0; y < one.size.height; ++y) {
        for (std::int32_t x = 0; x < one.size.width; ++x) {
            int most = 0;
            for (int shift = 0; shift < 32; shift += 8) {
                const int off = std::abs(static_cast<int>(one.row(y)[x] >> shift & 0xFF) -
                                         static_cast<int>(other.row(y)[x] >> shift & 0xFF));
                most = std::max(most, off);
                sum += off;
            }
            close += most <= 2;
            difference.worst = std::max(difference.worst, most);
        }
    }
    const double pixels = static_cast<double>(one.size.width) * one.size.height;
    difference.closePixels = static_cast<double>(close) / pixels;
    difference.mean = static_cast<double>(sum) / (4 * pixels);
    return difference;
}

// What the eye takes for one picture: grain may differ in single pixels, for no two processors compute the
// shader's hash alike to the last bit.
inline ::testing::AssertionResult looksTheSame(const PixelView& one, const PixelView& other)
{
    if (one.size != other.size)
        return ::testing::AssertionFailure() << "pictures of different sizes";
    const PictureDifference difference = differenceOf(one, other);
    if (difference.closePixels >= 0.99 && difference.mean <= 0.5)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << difference.closePixels * 100 << " % of the pixels agree, mean "
                                         << difference.mean << ", worst " << difference.worst;
}

} // namespace vela::testing
