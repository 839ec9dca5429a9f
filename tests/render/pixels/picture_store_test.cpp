#include "vela/render/pixels/picture_store.h"

#include <gtest/gtest.h>

#include <string>

namespace vela {
namespace {

struct Number {
    int value;
    std::size_t hash() const noexcept { return static_cast<std::size_t>(value % 3); } // some share one
    friend bool operator==(const Number&, const Number&) = default;
};

// Keys of both kinds are alike; their values are not.
struct Texts {
    using Key = Number;
    using Value = std::string;
    static std::size_t weigh(const std::string& text) noexcept { return text.size(); }
};
struct Weights {
    using Key = Number;
    using Value = std::size_t;
    static std::size_t weigh(std::size_t weight) noexcept { return weight; }
};

std::string textOf(PictureStore& store, int key)
{
    return *store.ensure<Texts>(Number{key},
                                [key] { return std::make_shared<std::string>(std::to_string(key)); });
}

bool has(PictureStore& store, int key) { return store.find<Weights>(Number{key}) != nullptr; }

void keep(PictureStore& store, int key, std::size_t weight)
{
    store.ensure<Weights>(Number{key}, [weight] { return std::make_shared<std::size_t>(weight); });
}

TEST(PictureStore, TellsKeysAndKindsApart)
{
    PictureStore store({1 << 20, 100});
    for (int round = 0; round < 2; ++round)
        for (int key = 0; key < 20; ++key)
            EXPECT_EQ(textOf(store, key), std::to_string(key));
    EXPECT_EQ(store.made(), 20U);
    EXPECT_FALSE(has(store, 3));
    keep(store, 3, 7);
    EXPECT_TRUE(has(store, 3));
    EXPECT_EQ(textOf(store, 3), "3");
}

TEST(PictureStore, LetsGoOfWhatWasAskedForLongestAgoByNumberAndByWeight)
{
    PictureStore few({1 << 20, 3});
    for (const int key : {1, 2, 3})
        keep(few, key, 1);
    EXPECT_TRUE(has(few, 1));
    keep(few, 4, 1); // 2 goes
    EXPECT_EQ(few.size(), 3U);
    EXPECT_TRUE(has(few, 1) && !has(few, 2) && has(few, 3) && has(few, 4));

    PictureStore small({100'000, 100});
    for (const int key : {1, 2, 3})
        keep(small, key, 30'000);
    keep(small, 4, 30'000);
    EXPECT_TRUE(!has(small, 1) && has(small, 2) && has(small, 4));
    EXPECT_LE(small.weight(), 100'000U);
    // One that is heavier than all the room leaves a quarter of it to others.
    keep(small, 5, 500'000);
    keep(small, 6, 10'000);
    keep(small, 7, 10'000);
    EXPECT_TRUE(has(small, 5) && has(small, 6) && has(small, 7) && !has(small, 4));
    // Another such one takes its place.
    keep(small, 8, 500'000);
    EXPECT_TRUE(has(small, 8) && !has(small, 5));
}

TEST(PictureStore, WhatIsHandedOutOutlivesItsPlace)
{
    PictureStore store({1 << 20, 1});
    const auto text = store.ensure<Texts>(Number{1}, [] { return std::make_shared<std::string>("one"); });
    textOf(store, 2);
    EXPECT_EQ(store.find<Texts>(Number{1}), nullptr);
    EXPECT_EQ(*text, "one");
}

TEST(PictureStore, KnowsWhatIsWantedAgain)
{
    PictureStore store({1 << 20, 10});
    EXPECT_FALSE(store.isWantedAgain<Texts>(Number{1}));
    EXPECT_TRUE(store.isWantedAgain<Texts>(Number{1}));
    EXPECT_FALSE(store.isWantedAgain<Weights>(Number{1}));
}

} // namespace
} // namespace vela
