#include "vela/render/dib_gdi.h"

namespace vela {

DibSurface::DibSurface(Size size) : size_(size), dc_(::CreateCompatibleDC(nullptr))
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_.reset(::CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap_)
        return;
    selected_.emplace(dc_.get(), bitmap_.get());
    pixels_ = static_cast<Pixel*>(bits);
}

} // namespace vela
