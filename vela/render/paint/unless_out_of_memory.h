// What stands between painting and a machine without memory.
#pragma once

#include <exception>

namespace vela {

// Paints, or leaves unpainted what there is no memory for, until it is damaged the next time: then it is
// false. Nothing in painting throws but the allocation of memory.
template <typename Paint>
bool paintUnlessOutOfMemory(Paint&& paint) noexcept
{
    try {
        paint();
        return true;
    } catch (const std::exception&) { // std::length_error too, for what no memory could ever hold
        return false;
    }
}

} // namespace vela
