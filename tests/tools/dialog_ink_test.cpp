#include "tools/dialog_check/ink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dialog_check {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using vela::Pixel;
using vela::PixelView;
using vela::Rect;
using vela::Size;

constexpr Size kWindow{200, 100};

Ink text(const wchar_t* words, const Rect& room, Size needed)
{
    return {.text = words,
            .room = room,
            .place = placeInRoom(room, needed, Side::Left, vela::TextWrap::SingleLine),
            .needed = needed};
}

TEST(DialogInk, StandsWhereTheTextIsDrawn)
{
    const Rect room{10, 20, 100, 40};
    EXPECT_EQ(placeInRoom(room, {60, 16}, Side::Left, vela::TextWrap::SingleLine), (Rect{10, 32, 60, 16}));
    EXPECT_EQ(placeInRoom(room, {60, 16}, Side::Centre, vela::TextWrap::SingleLine), (Rect{30, 32, 60, 16}));
    EXPECT_EQ(placeInRoom(room, {60, 16}, Side::Right, vela::TextWrap::Words), (Rect{50, 20, 60, 16}));
    EXPECT_EQ(placeInRoom(room, {600, 160}, Side::Centre, vela::TextWrap::SingleLine), room);
}

TEST(DialogInk, OfASoundDialogHasNothingToReport)
{
    const Ink inks[] = {text(L"Slozka", {10, 0, 80, 20}, {80, 20}), text(L"OK", {60, 45, 30, 20}, {20, 16})};
    const Box boxes[] = {{L"ok", {50, 40, 50, 30}}, {L"label", {0, 0, 90, 10}, true, false}};
    EXPECT_THAT(geometryFindings(inks, boxes, kWindow), IsEmpty());
    EXPECT_EQ(ownerOf(inks[1], boxes)->id, L"ok");
    EXPECT_EQ(ownerOf(text(L"", {150, 80, 9, 9}, {}), boxes), nullptr);
}

TEST(DialogInk, IsReportedWhenItIsCutOrCollides)
{
    const Ink wide[] = {text(L"Preinstalovat", {0, 0, 50, 20}, {51, 20})};
    EXPECT_THAT(geometryFindings(wide, {}, kWindow), ElementsAre(HasSubstr(L"is cut: it needs 51x20")));
    const Ink tall[] = {text(L"Preinstalovat", {0, 0, 60, 20}, {51, 21})};
    EXPECT_THAT(geometryFindings(tall, {}, kWindow), ElementsAre(HasSubstr(L"has 60x20")));
    const Ink outside[] = {text(L"dole", {0, 90, 60, 20}, {51, 20})};
    EXPECT_THAT(geometryFindings(outside, {}, kWindow), ElementsAre(HasSubstr(L"leaves the window")));
    const Ink two[] = {text(L"zprava", {0, 0, 60, 40}, {51, 40}),
                       text(L"popisek", {50, 30, 60, 20}, {50, 20})};
    EXPECT_THAT(geometryFindings(two, {}, kWindow), ElementsAre(HasSubstr(L"lies over \"popisek\"")));
    const Box field[] = {{L"folder", {40, 0, 60, 40}}};
    EXPECT_THAT(geometryFindings({two, 1}, field, kWindow),
                ElementsAre(HasSubstr(L"lies across the edge of folder")));
}

TEST(DialogInk, HasToStandOutAsFarAsItsKindAsks)
{
    const Ink small = text(L"a", {}, {});
    Ink mark = small;
    mark.kind = InkKind::Mark;
    EXPECT_FLOAT_EQ(requiredContrast(small, true), 4.5F);
    EXPECT_FLOAT_EQ(requiredContrast(mark, true), 3.0F);
    EXPECT_FLOAT_EQ(requiredContrast(mark, false), 2.5F);
    EXPECT_TRUE(isLargeText({L"", 18, 400}));
    EXPECT_TRUE(isLargeText({L"", 14, 700}));
    EXPECT_FALSE(isLargeText({L"", 14, 600}));
}

struct Picture {
    explicit Picture(Pixel ground) : pixels(static_cast<std::size_t>(kWindow.width * kWindow.height), ground)
    {
    }
    PixelView view() { return {pixels.data(), kWindow, kWindow.width}; }
    void fill(const Rect& rect, Pixel pixel)
    {
        for (std::int32_t y = rect.y; y < rect.y + rect.height; ++y)
            std::fill_n(view().row(y) + rect.x, rect.width, pixel);
    }

    std::vector<Pixel> pixels;
};

TEST(DialogInk, IsMeasuredOnTheGroundThatItCovers)
{
    Picture ground(0xFFFFFFFF);
    ground.fill({0, 0, 100, 100}, 0xFF000000); // the left half is black
    Picture painted = ground;
    painted.fill({110, 10, 20, 10}, 0xFF777777);
    Ink ink = text(L"a", {105, 5, 40, 20}, {40, 20});
    ink.color = vela::hexColor(0x000000);
    EXPECT_NEAR(reachedContrast(ink, painted.view(), ground.view()), 21, 0.01);
    // One letter in five stands on black.
    painted.fill({106, 10, 4, 10}, 0xFF777777);
    ground.fill({106, 10, 4, 10}, 0xFF101010);
    EXPECT_LT(reachedContrast(ink, painted.view(), ground.view()), 1.2F);
    EXPECT_EQ(reachedContrast(ink, ground.view(), ground.view()), 1);
}

TEST(DialogInk, OfTheFocusIsSeenWhenItIsALineAroundTheControl)
{
    const Rect control{20, 20, 100, 30};
    Picture rest(0xFFF9F9F9);
    Picture faint = rest;
    faint.fill({20, 20, 100, 2}, 0xFFD0D0D0); // large enough, but hardly darker
    EXPECT_EQ(strikingChanges(control, rest.view(), faint.view()), 0U);
    Picture ring = rest;
    for (const Rect& side :
         {Rect{20, 20, 100, 1}, Rect{20, 49, 100, 1}, Rect{20, 21, 1, 28}, Rect{119, 21, 1, 28}})
        ring.fill(side, 0xFF000000);
    EXPECT_EQ(strikingChanges(control, rest.view(), ring.view()), 256U);
    EXPECT_EQ(leastFocusChange(control), 195U);
}

} // namespace
} // namespace dialog_check
