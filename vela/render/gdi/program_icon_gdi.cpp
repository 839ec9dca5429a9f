#include "vela/render/gdi/program_icon.h"

#include "vela/owned_win32.h"

namespace vela::render {

namespace {

// The last size asked for is cached: windows of one DPI paint one size again and again.
HICON iconOf(std::int32_t side)
{
    static OwnedIcon icon;
    static std::int32_t iconSide = 0;
    if (std::exchange(iconSide, side) != side)
        icon.reset(static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1),
                                                   IMAGE_ICON, side, side, LR_DEFAULTCOLOR)));
    return icon.get();
}

} // namespace

void paintProgramIcon(HDC dc, const Rect& box)
{
    if (isEmpty(box))
        return;
    if (const HICON icon = iconOf(box.width))
        ::DrawIconEx(dc, box.x, box.y, icon, box.width, box.height, 0, nullptr, DI_NORMAL);
}

} // namespace vela::render
