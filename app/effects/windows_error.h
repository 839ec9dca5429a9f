// How Windows says that something failed, and what an effect gives that can.
#pragma once

#include "vela/outcome.h"

#include <cstdint>

namespace setup {

// A GetLastError value or the bits of a failed HRESULT; 0 means done.
using WindowsError = std::uint32_t;
inline constexpr WindowsError kNoError = 0;
inline constexpr WindowsError kErrorFileNotFound = 2;
inline constexpr WindowsError kErrorInvalidData = 13;
inline constexpr WindowsError kErrorGenFailure = 31;
inline constexpr WindowsError kWaitTimeout = 258;
inline constexpr WindowsError kErrorNoMoreItems = 259;
inline constexpr WindowsError kErrorRevisionMismatch = 1306;

template <typename Value>
using WindowsOutcome = vela::Outcome<Value, WindowsError>;

// A failure for which Windows left no error is a failure all the same.
template <typename Value>
WindowsError errorOf(const WindowsOutcome<Value>& outcome) noexcept
{
    if (outcome)
        return kNoError;
    return outcome.error() != kNoError ? outcome.error() : kErrorGenFailure;
}

} // namespace setup
