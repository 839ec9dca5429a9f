// Arithmetic of the tests that say which pixels a shape has. They compare real numbers exactly: both sides
// are scaled to whole numbers, doubled where halves occur, so that no rounding can move a pixel that lies on
// the outline.
#pragma once

#include <cstdint>

namespace vela {

using Wide = std::int64_t; // products of two lengths

// Twice the distance from a doubled position to the range between two doubled limits; 0 inside it.
constexpr Wide distanceToRange(Wide position, Wide low, Wide high) noexcept
{
    return position < low ? low - position : position > high ? position - high : 0;
}

} // namespace vela
