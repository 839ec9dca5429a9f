// What stands between painting and a machine without memory.
#pragma once

#include <exception>

namespace vela {

// Paints, or leaves unpainted what there is no memory for: the next paint may have it again. Nothing here
// throws but the allocation of memory.
template <typename Paint>
void paintUnlessOutOfMemory(Paint&& paint) noexcept
{
    try {
        paint();
    } catch (const std::exception&) { // std::length_error too, for what no memory could ever hold
    }
}

} // namespace vela
