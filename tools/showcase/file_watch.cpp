#include "tools/showcase/file_watch.h"

#include <utility>

namespace showcase {

bool FileWatch::tick(const FileStamp& now) noexcept
{
    const bool rests = std::exchange(seen_, now) == now;
    return rests && now != read_;
}

} // namespace showcase
