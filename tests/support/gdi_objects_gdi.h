// What this process holds: objects of GDI, windows and other objects of the user interface, memory.
#pragma once

#include <algorithm>
#include <cstddef>

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

// Windows, menus, icons and cursors.
inline int userObjectCount()
{
    if (const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS))
        return static_cast<int>(counted);
    // Wine does not count these either; its handles are every other number from the first one on, and freed
    // ones are given out again, so that thousands of them are far away.
    constexpr ULONG_PTR kFirst = 0x20;
    constexpr ULONG_PTR kEnd = 0x2000;
    int count = 0;
    for (ULONG_PTR handle = kFirst; handle < kEnd; handle += 2) {
        DWORD owner = 0;
        if (::GetWindowThreadProcessId(reinterpret_cast<HWND>(handle), &owner))
            count += owner == ::GetCurrentProcessId();
        else if (::IsMenu(reinterpret_cast<HMENU>(handle)))
            ++count;
        else if (ICONINFO icon{}; ::GetIconInfo(reinterpret_cast<HICON>(handle), &icon)) {
            ::DeleteObject(icon.hbmColor);
            ::DeleteObject(icon.hbmMask);
            ++count;
        }
    }
    return count;
}

// What is allocated on all heaps of the process at this moment, in bytes.
inline std::size_t heapBytes()
{
    std::size_t bytes = 0;
    HANDLE heaps[64];
    const DWORD count = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[i], &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData;
        }
    }
    return bytes;
}

} // namespace vela::testing
