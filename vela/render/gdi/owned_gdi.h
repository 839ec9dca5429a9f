// Owners of GDI's objects, and what a paint call borrows from a device context and must put back.
#pragma once

#include "vela/owned_win32.h"

#include <utility>

namespace vela {

template <typename Object>
struct GdiObjectTraits {
    using Handle = Object;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle object) noexcept { ::DeleteObject(object); }
};
using OwnedFont = Owned<GdiObjectTraits<HFONT>>;
using OwnedBitmap = Owned<GdiObjectTraits<HBITMAP>>;
using OwnedRegion = Owned<GdiObjectTraits<HRGN>>;

struct MemoryDcTraits {
    using Handle = HDC;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle dc) noexcept { ::DeleteDC(dc); }
};
using OwnedMemoryDc = Owned<MemoryDcTraits>;

// Holds an object selected for as long as it lives. The object must outlive it.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) noexcept : dc_(dc), previous_(::SelectObject(dc, object)) {}
    ~SelectedObject()
    {
        if (previous_)
            ::SelectObject(dc_, previous_);
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC dc_;
    HGDIOBJ previous_;
};

} // namespace vela
