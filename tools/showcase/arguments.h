// The showcase's command line: a skin's id, a skin file and a DPI, in any order, each told by its form.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace showcase {

inline constexpr std::int32_t kSmallestDpi = 72;
inline constexpr std::int32_t kLargestDpi = 480;

struct Arguments {
    std::wstring skinId;  // empty: the first skin there is
    std::wstring file;    // the file that is watched; empty: none
    std::int32_t dpi = 0; // 0: that of the monitor
    friend bool operator==(const Arguments&, const Arguments&) = default;
};

// Empty when a word says nothing, or a second time what another has said.
std::optional<Arguments> parseArguments(std::span<const std::wstring_view> words);

} // namespace showcase
