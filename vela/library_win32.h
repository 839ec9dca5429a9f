// A library of Windows that is loaded when first needed. Only the one in the system folder can be meant: a
// file of the same name beside the program or in the current folder is never looked at.
#pragma once

#include "vela/owned_win32.h"

namespace vela {

class SystemLibrary {
public:
    // `name` is a bare file name such as L"msi.dll". A library that is not there leaves the object empty.
    explicit SystemLibrary(const wchar_t* name) noexcept;

    explicit operator bool() const noexcept { return static_cast<bool>(library_); }

    // The exported function, or null when the library or the export is missing.
    template <typename Function>
    Function* function(const char* name) const noexcept
    {
        return reinterpret_cast<Function*>(address(name));
    }

private:
    using Address = void (*)();
    Address address(const char* name) const noexcept;

    OwnedLibrary library_;
};

} // namespace vela
