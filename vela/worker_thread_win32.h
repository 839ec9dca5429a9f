// A thread for one piece of work.
#pragma once

#include "vela/owned_win32.h"

#include <functional>

namespace vela {

// Begins at once and is waited for at the latest when the object goes. Empty when Windows gives no thread:
// then the work has not been done.
class WorkerThread {
public:
    // The work must not throw.
    explicit WorkerThread(std::function<void()> work);
    WorkerThread(const WorkerThread&) = delete;
    WorkerThread& operator=(const WorkerThread&) = delete;
    ~WorkerThread();

    explicit operator bool() const noexcept { return static_cast<bool>(thread_); }
    // Signalled when the work is done; borrowed.
    HANDLE handle() const noexcept { return thread_.get(); }

private:
    std::function<void()> work_;
    OwnedKernelObject thread_;
};

} // namespace vela
