// Kept pictures of device contexts. UI thread only.
#pragma once

#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/kept_pictures.h"
#include "vela/render/gdi/pixel_layer_gdi.h"

namespace vela {

// On unless it is switched off, which changes nothing but the time that painting takes: for comparing both.
void setPicturesKept(bool kept) noexcept;
bool arePicturesKept() noexcept;

// Off while one lives: for what cannot have been painted before, or is kept as part of something larger.
class WithoutKeptPictures {
public:
    WithoutKeptPictures() noexcept { setPicturesKept(false); }
    WithoutKeptPictures(const WithoutKeptPictures&) = delete;
    WithoutKeptPictures& operator=(const WithoutKeptPictures&) = delete;
    ~WithoutKeptPictures() { setPicturesKept(before_); }

private:
    bool before_ = arePicturesKept();
};

// Brings the area, which the clip shows, to what paint() makes of it: from the kept picture, or by paint(),
// which answers whether it painted. False when it did not.
template <typename What, typename View, typename Paint>
bool paintKept(HDC dc, const Rect& area, KeptPictures<What>& pictures, const View& what, Paint&& paint)
{
    // A clip that is no rectangle would keep parts of the area as they are.
    const bool keeps = arePicturesKept() && pictures.hasRoomFor(sizeOf(area)) && isClipRectangle(dc);
    const PixelView beneath = keeps ? readPixels(dc, area) : PixelView{};
    if (!beneath.pixels)
        return paint();
    const Backdrop backdrop = backdropOf(beneath);
    if (const PixelView kept = pictures.find(what, backdrop); kept.pixels) {
        writePixels(dc, area, kept);
        return true;
    }
    if (!paint())
        return false;
    if (pictures.isWorthKeeping(backdrop))
        pictures.keep(what, backdrop, readPixels(dc, area));
    return true;
}

} // namespace vela
