// COM on one thread, for as long as the object lives there.
#pragma once

#include <objbase.h>

namespace vela {

// A thread that already runs in another kind of apartment will do, but is not ours to end.
class ComApartment {
public:
    ComApartment() noexcept
        : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))
    {
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment()
    {
        if (SUCCEEDED(result_))
            ::CoUninitialize();
    }

    HRESULT result() const noexcept { return result_ == RPC_E_CHANGED_MODE ? S_OK : result_; }

private:
    HRESULT result_;
};

} // namespace vela
