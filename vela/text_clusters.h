// Where a caret may stand: never inside a surrogate pair, never between a letter and the marks that ride on
// it. Positions are indexes of units; an index past the end counts as the end.
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

namespace vela {

std::size_t nextCaretStop(std::wstring_view text, std::size_t index) noexcept;
std::size_t previousCaretStop(std::wstring_view text, std::size_t index) noexcept;

// The caret stop at or before the index.
std::size_t nearestCaretStop(std::wstring_view text, std::size_t index) noexcept;

// Where Ctrl+Right and Ctrl+Left go: to the start of the next word, of this or the previous one.
std::size_t nextWordStart(std::wstring_view text, std::size_t index) noexcept;
std::size_t previousWordStart(std::wstring_view text, std::size_t index) noexcept;

// First and past-the-last index of the run of like characters around the index: what a double click selects.
std::pair<std::size_t, std::size_t> wordAround(std::wstring_view text, std::size_t index) noexcept;

} // namespace vela
