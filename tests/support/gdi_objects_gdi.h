// How many objects of GDI, and how many windows and icons, this process holds.
#pragma once

#include <windows.h>

namespace vela::testing {

inline int gdiObjectCount()
{
    if (const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(counted);
    // Wine does not count. Its handles are table indexes with a generation above them, and it takes a bare
    // index for the handle: so the table can be asked entry by entry.
    int count = 0;
    for (ULONG_PTR index = 1; index < 0x10000; ++index)
        count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0;
    return count;
}

// Windows, icons, menus. Wine tells none; there the top-level windows of the process stand in for them.
inline int userObjectCount()
{
    if (const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS))
        return static_cast<int>(counted);
    int count = 0;
    ::EnumWindows(
        [](HWND window, LPARAM counter) -> BOOL {
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            *reinterpret_cast<int*>(counter) += process == ::GetCurrentProcessId();
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace vela::testing
