#include "tools/showcase/commands.h"

#include <gtest/gtest.h>

namespace showcase {
namespace {

TEST(ShowcaseCommandsTest, KeysReachTheirCommandsUnlessAFieldNeedsThem)
{
    const vela::KeyEvent right{vela::kKeyRight, {}};
    EXPECT_EQ(commandFor(right, false), Command::NextSkin);
    EXPECT_EQ(commandFor(right, true), std::nullopt);
    EXPECT_EQ(commandFor({vela::kKeyTab, {.control = true, .shift = true, .alt = false}}, true),
              Command::PreviousSkin);
    EXPECT_EQ(commandFor({vela::kKeyTab, {}}, false), std::nullopt) << "Tab moves the focus";
    EXPECT_EQ(commandFor({vela::kKeyF12, {}}, false), std::nullopt) << "F12 is the overlay's";
}

TEST(ShowcaseCommandsTest, StepsGoThroughTheScalesOfWindowsAndStopAtTheEnds)
{
    EXPECT_EQ(steppedDpi(96, true), 120);
    EXPECT_EQ(steppedDpi(100, true), 120);
    EXPECT_EQ(steppedDpi(100, false), 96);
    EXPECT_EQ(steppedDpi(96, false), 96);
    EXPECT_EQ(steppedDpi(480, true), 480);
}

} // namespace
} // namespace showcase
