#include "vela/controls/tree/layout.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace vela {
namespace {

constexpr Anchors kAll = Anchors::Left | Anchors::Top | Anchors::Right | Anchors::Bottom;

LayoutRequest anchored(Rect design, Size parent, Anchors anchors)
{
    LayoutRequest request;
    request.design = design;
    request.designParent = parent;
    request.anchors = anchors;
    return request;
}

Rect inParent(Size size) { return {0, 0, size.width, size.height}; }

TEST(Layout, AnchorsKeepMarginsAndMinimumSizesGrowAwayFromTheHeldEdge)
{
    const Rect design{300, 10, 80, 20};
    const Size parent{400, 100};
    const struct {
        Anchors anchors;
        Size minimum;
        Size parent;
        Rect expected;
    } rows[] = {
        {Anchors::Left | Anchors::Top, {}, {500, 300}, {300, 10, 80, 20}},
        {Anchors::None, {}, {500, 300}, {300, 10, 80, 20}},
        {Anchors::Right, {}, {500, 300}, {400, 10, 80, 20}},
        {Anchors::Right, {120, 0}, {500, 300}, {360, 10, 120, 20}},
        {Anchors::Left | Anchors::Right, {}, {450, 300}, {300, 10, 130, 20}},
        {Anchors::Left | Anchors::Right, {50, 0}, {310, 300}, {300, 10, 50, 20}},
        {Anchors::Left | Anchors::Right, {}, {310, 300}, {300, 10, 0, 20}},
        {kAll, {}, {500, 300}, {300, 10, 180, 220}},
        {Anchors::Bottom, {0, 40}, {400, 200}, {300, 90, 80, 40}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(layoutChild(anchored(design, parent, row.anchors), row.minimum, inParent(row.parent)),
                  row.expected);
    EXPECT_EQ(layoutChild(anchored(design, parent, Anchors::Right), {}, {7, 9, 500, 300}),
              (Rect{407, 19, 80, 20}));
}

TEST(Layout, ConstraintsPlaceByRatioAndOffset)
{
    const Size parent{200, 100};
    const Rect design{5, 6, 30, 10};
    const auto placed = [&](auto set, Size minimum = {}) {
        LayoutRequest request = anchored(design, parent, kAll);
        request.constraintsEnabled = true;
        set(request.constraints);
        return layoutChild(request, minimum, inParent(parent));
    };
    const auto horizontal = [](const Rect& rect) { return std::pair{rect.x, rect.width}; };
    using P = std::pair<std::int32_t, std::int32_t>;

    EXPECT_EQ(horizontal(placed([](Constraints& c) {
                  c.left = {0.75, 0, true};
                  c.right = {0.25, 0, true};
              })),
              (P{50, 100}));
    EXPECT_EQ(horizontal(placed([](Constraints& c) {
                  c.left = {0.1, 3, true};
                  c.width = {-4, true};
              })),
              (P{23, 0}));
    EXPECT_EQ(horizontal(placed([](Constraints& c) {
                  c.right = {1.0, -10, true};
                  c.width = {40, true};
              })),
              (P{150, 40}));
    EXPECT_EQ(horizontal(placed([](Constraints& c) {
                  c.centerX = {0.5, 0, true};
                  c.width = {41, true};
              })),
              (P{80, 41}));
    EXPECT_EQ(horizontal(placed([](Constraints& c) { c.right = {1.0, 0, true}; }, {50, 0})), (P{150, 50}));
    EXPECT_EQ(horizontal(placed([](Constraints& c) { c.centerX = {0.5, 0, true}; }, {51, 0})), (P{75, 51}));
    EXPECT_EQ(horizontal(placed([](Constraints& c) { c.width = {77, true}; })), (P{5, 77}));
    EXPECT_EQ(horizontal(placed([](Constraints&) {})), (P{5, 30})); // nothing set: the anchors' rule
    // Ratios are clamped, halves round away from zero, and what is not a number counts as nothing.
    const double rows[][2] = {{3.0, 400}, {-5.0, -200}, {0.0025, 1}, {-0.0025, -1}, {std::nan(""), 0}};
    for (const auto& [ratio, left] : rows)
        EXPECT_EQ(placed([r = ratio](Constraints& c) { c.left = {r, 0, true}; }).x, left);
}

TEST(Layout, HintsAreTheSmallestParentThatStillFits)
{
    const struct {
        Rect design;
        Size parent;
        Anchors anchors;
        Size minimum;
        Size expected;
    } rows[] = {
        {{10, 20, 50, 30}, {100, 100}, kAll, {40, 25}, {90, 95}},
        {{10, 20, 50, 30}, {100, 100}, Anchors::Right | Anchors::Bottom, {40, 25}, {80, 75}},
        {{90, 20, 5, 30}, {100, 100}, Anchors::Right, {5, 25}, {95, 45}},
        {{10, 20, 50, 30}, {0, 0}, kAll, {40, 25}, {50, 45}},
        {{-90, -20, 5, 3}, {100, 100}, Anchors::Left, {5, 3}, {0, 0}},
        {{80, 0, 50, 30}, {100, 100}, kAll, {50, 30}, {130, 100}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(minimumParentSizeHint(row.design, row.parent, row.anchors, row.minimum), row.expected);
    EXPECT_EQ(capturedParentSize({80, 10, 50, 10}, {100, 100}), (Size{130, 100}));
}

TEST(Layout, RandomChildrenKeepTheirDesignAndNeverFallBelowTheirMinimum)
{
    std::mt19937 random(7);
    const auto upTo = [&random](std::int32_t limit) {
        return std::uniform_int_distribution<std::int32_t>(0, limit)(random);
    };
    for (int round = 0; round < 5000; ++round) {
        const Size parent{upTo(800) + 1, upTo(600) + 1};
        const Rect design{upTo(parent.width), upTo(parent.height), 0, 0};
        LayoutRequest request = anchored(design, parent, static_cast<Anchors>(upTo(15)));
        request.design.width = upTo(parent.width - design.x);
        request.design.height = upTo(parent.height - design.y);
        const Size minimum{upTo(request.design.width), upTo(request.design.height)};
        EXPECT_EQ(layoutChild(request, minimum, inParent(parent)), request.design);
        const Rect other = layoutChild(request, minimum, inParent({upTo(2000), upTo(2000)}));
        EXPECT_GE(other.width, minimum.width);
        EXPECT_GE(other.height, minimum.height);
    }
}

TEST(Layout, AbsurdNumbersSaturateInsteadOfOverflowing)
{
    constexpr std::int32_t kValues[] = {std::numeric_limits<std::int32_t>::min(), -1, 0, 1,
                                        std::numeric_limits<std::int32_t>::max()};
    for (const std::int32_t a : kValues)
        for (const std::int32_t b : kValues)
            for (int anchors = 0; anchors < 16; ++anchors) {
                LayoutRequest request = anchored({a, b, b, a}, {b, a}, static_cast<Anchors>(anchors));
                for (const bool constrained : {false, true}) {
                    request.constraintsEnabled = constrained;
                    request.constraints.right = {2.0, b, (anchors & 1) != 0};
                    request.constraints.centerY = {-1.0, a, (anchors & 2) != 0};
                    const Rect rect = layoutChild(request, {a, b}, {b, a, a, b});
                    EXPECT_GE(rect.width, 0);
                    EXPECT_GE(rect.height, 0);
                }
                const Size hint =
                    minimumParentSizeHint(request.design, request.designParent, request.anchors, {a, b});
                EXPECT_GE(hint.width, 0);
                EXPECT_GE(hint.height, 0);
            }
}

TEST(Layout, DamageJoinsDownwardsUntilTheLimit)
{
    const std::vector<Rect> rects{{0, 0, 10, 4},  {0, 4, 10, 4}, {0, 8, 10, 4}, {0, 12, 10, 4},
                                  {5, 16, 10, 4}, {0, 20, 0, 4}, {5, 20, 10, 4}};
    EXPECT_EQ(coalescedDamage(rects, 8), (std::vector<Rect>{{0, 0, 10, 8}, {0, 8, 10, 8}, {5, 16, 10, 8}}));
    EXPECT_EQ(coalescedDamage(rects, 1), rects);
}

} // namespace
} // namespace vela
