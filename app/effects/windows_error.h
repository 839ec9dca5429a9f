// How Windows says that something failed.
#pragma once

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

} // namespace setup
