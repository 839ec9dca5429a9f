#include "vela/controls/system/taskbar_list_win32.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

// The real thing, where there may or may not be a taskbar: it must at least come and go.
TEST(TaskbarListTest, IsHarmlessForAWindowWithoutAButton)
{
    TaskbarList list;
    list.show(nullptr, {TaskbarProgress::Running, 50});
    list.show(nullptr, {TaskbarProgress::None, 0});
}

} // namespace
} // namespace vela
