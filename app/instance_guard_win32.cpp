#include "app/instance_guard_win32.h"

#include "app/identity.h"

namespace setup {

SetupInstanceGuard::SetupInstanceGuard() noexcept : mutex_(::CreateMutexW(nullptr, TRUE, kMutexName.data()))
{
    const DWORD error = ::GetLastError();
    alreadyRunning_ = mutex_ && error == ERROR_ALREADY_EXISTS;
    owned_ = mutex_ && !alreadyRunning_;
}

SetupInstanceGuard::~SetupInstanceGuard()
{
    if (owned_)
        ::ReleaseMutex(mutex_.get());
}

} // namespace setup
