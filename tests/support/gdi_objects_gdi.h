// How many GDI objects this process holds.
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

} // namespace vela::testing
