// Decimal numbers as text.
#pragma once

#include <string_view>

namespace vela {

// The double nearest to a number like "-12.5e-3", of two equally near ones the even, whatever the locale.
// Infinite where it is too large, 0 where there is no digit; any part may be missing.
double nearestDouble(std::wstring_view number) noexcept;

} // namespace vela
