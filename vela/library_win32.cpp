#include "vela/library_win32.h"

namespace vela {

SystemLibrary::SystemLibrary(const wchar_t* name) noexcept
    : library_(::LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32))
{
}

SystemLibrary::Address SystemLibrary::address(const char* name) const noexcept
{
    return library_ ? reinterpret_cast<Address>(::GetProcAddress(library_.get(), name)) : nullptr;
}

} // namespace vela
