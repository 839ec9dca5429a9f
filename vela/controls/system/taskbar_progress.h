// What a window's button on the taskbar says of its work.
#pragma once

#include <cstdint>

namespace vela {

enum class TaskbarProgress : std::uint8_t { None, Indeterminate, Running, Paused, Failed };

struct TaskbarStatus {
    TaskbarProgress state = TaskbarProgress::None;
    std::int32_t percent = 0; // 0 to 100; means nothing without a measured progress
    friend constexpr bool operator==(const TaskbarStatus&, const TaskbarStatus&) = default;
};

} // namespace vela
