// When a watched file has to be read again: as soon as it has changed and then rested, for editors write a
// file in several steps and what stands between them is no skin.
#pragma once

#include <cstdint>

namespace showcase {

// What tells one version of a file from the next without reading it.
struct FileStamp {
    bool exists = false;
    std::uint64_t modified = 0; // any unit
    std::uint64_t size = 0;
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

class FileWatch {
public:
    // How often `tick` is to be called: a change is seen at the second tick after it, well within a second.
    static constexpr std::uint32_t kPeriod = 250; // milliseconds

    // True when the file, as it is now, differs from what was read last and was the same a tick ago. It stays
    // true until that is marked as read: a file that its writer still holds is tried again.
    bool tick(const FileStamp& now) noexcept;

    // Taken before reading, or a change in between would never be seen.
    void markRead(const FileStamp& stamp) noexcept { read_ = stamp; }

private:
    FileStamp read_;
    FileStamp seen_;
};

} // namespace showcase
