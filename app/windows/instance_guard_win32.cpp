#include "app/windows/instance_guard_win32.h"

namespace setup {

SetupInstanceGuard::SetupInstanceGuard(const wchar_t* mutexName) noexcept
    : mutex_(::CreateMutexW(nullptr, TRUE, mutexName))
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
