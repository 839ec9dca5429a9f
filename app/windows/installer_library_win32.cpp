#include "app/windows/installer_library_win32.h"

namespace setup {

const vela::SystemLibrary& installerLibrary() noexcept
{
    static const vela::SystemLibrary library(L"msi.dll");
    return library;
}

} // namespace setup
