// Memory that is handed out piece by piece and given back all at once.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace vela {

class Arena {
public:
    // Aligned for every ordinary type. No destructor runs for what is placed there.
    void* allocate(std::size_t bytes);

private:
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    std::byte* next_ = nullptr;
    std::size_t left_ = 0; // bytes behind next_
    std::size_t blockSize_ = 1024;
};

} // namespace vela
