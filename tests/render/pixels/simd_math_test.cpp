#include "vela/render/pixels/simd_math.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vela {
namespace {

TEST(SimdMath, IsAsExactAsItSays)
{
    const auto at = [](float value) { return simd::splat(value); };
    const auto expectWithin = [](float is, double should, double tolerance, double where) {
        EXPECT_LE(std::abs(is - should), tolerance) << "at " << where;
    };
    for (int i = 0; i <= 4000; ++i) {
        const double base = i / 1000.0;
        for (const double exponent : {1.25, 2.4, 6.0}) {
            const double exact = std::pow(base, exponent);
            expectWithin(simd::pow(at(static_cast<float>(base)), static_cast<float>(exponent))[0], exact,
                         3e-5 * exact + 1e-20, base);
        }
        const float angle = static_cast<float>(i - 2000) * 5.003F;
        expectWithin(simd::sin(at(angle))[0], std::sin(static_cast<double>(angle)), 2e-6, angle);
        const float phase = static_cast<float>(i - 2000) * 0.01F;
        expectWithin(simd::cos(at(phase))[0], std::cos(static_cast<double>(phase)), 4e-6, phase);
        const auto fading = static_cast<float>(-i / 80.0);
        const double exact = std::exp(static_cast<double>(fading));
        expectWithin(simd::exp(at(fading))[0], exact, 1e-5 * exact, fading);
        const float high = static_cast<float>(i) * 0.05F - 90;
        const double two = std::exp2(std::max(static_cast<double>(high), -80.0));
        expectWithin(simd::exp2(at(high))[0], two, 3e-6 * two, high);
    }
    EXPECT_LT(simd::pow(at(0), 1.25F)[0], 1e-20F);
    EXPECT_LT(simd::pow(at(-3), 1.25F)[0], 1e-20F);
    const simd::Float4 floors = simd::floor(simd::Float4{-1.5F, -1.0F, 0.99F, 7.0F});
    EXPECT_EQ(floors[0], -2);
    EXPECT_EQ(floors[1], -1);
    EXPECT_EQ(floors[2], 0);
    EXPECT_EQ(floors[3], 7);
}

} // namespace
} // namespace vela
