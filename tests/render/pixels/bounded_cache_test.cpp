#include "vela/render/pixels/bounded_cache.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(BoundedCacheTest, MakesAValueOnceAndForgetsTheOneUnusedLongest)
{
    BoundedCache<int, int> cache(2);
    const auto ask = [&](int key) { return cache.ensure(key, [key] { return key * 10; }); };
    EXPECT_EQ(ask(1), 10);
    EXPECT_EQ(ask(2), 20);
    EXPECT_EQ(ask(1), 10);
    EXPECT_EQ(cache.made(), 2u);
    EXPECT_EQ(ask(3), 30); // 2 goes
    EXPECT_EQ(ask(1), 10);
    EXPECT_EQ(cache.made(), 3u);
    EXPECT_EQ(ask(2), 20);
    EXPECT_EQ(cache.made(), 4u);
    EXPECT_EQ(cache.size(), 2u);
}

} // namespace
} // namespace vela
