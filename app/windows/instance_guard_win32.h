// Lets only one setup at a time work in a user's session.
#pragma once

#include "vela/owned_win32.h"

namespace setup {

// Taken for as long as the object lives. When Windows gives no mutex at all, the setup goes on unguarded.
class SetupInstanceGuard {
public:
    explicit SetupInstanceGuard(const wchar_t* mutexName) noexcept;
    SetupInstanceGuard(const SetupInstanceGuard&) = delete;
    SetupInstanceGuard& operator=(const SetupInstanceGuard&) = delete;
    ~SetupInstanceGuard();

    bool alreadyRunning() const noexcept { return alreadyRunning_; }

private:
    vela::OwnedKernelObject mutex_;
    bool alreadyRunning_ = false;
    bool owned_ = false;
};

} // namespace setup
