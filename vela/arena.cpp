#include "vela/arena.h"

#include <algorithm>
#include <utility>

namespace vela {

void* Arena::allocate(std::size_t bytes)
{
    constexpr std::size_t kAlignment = alignof(std::max_align_t);
    constexpr std::size_t kLargestBlock = std::size_t{64} * 1024;
    const std::size_t rounded = (bytes + kAlignment - 1) / kAlignment * kAlignment;
    if (rounded > left_) {
        left_ = std::max(rounded, blockSize_);
        blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(left_));
        next_ = blocks_.back().get();
        blockSize_ = std::min(blockSize_ * 2, kLargestBlock);
    }
    left_ -= rounded;
    return std::exchange(next_, next_ + rounded);
}

} // namespace vela
