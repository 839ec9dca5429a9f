#include "vela/render/bitmaps/surface_bitmaps.h"

#include "vela/render/bitmaps/image_decoder_win32.h"
#include "vela/resource_folders.h"

#include <utility>

namespace vela {
namespace {

BitmapCache& cache()
{
    static BitmapCache bitmaps(pictureStore(), decodeImage, resourceFolders().bitmaps);
    return bitmaps;
}

} // namespace

void setBitmapFolder(std::wstring folder) { cache().setFolder(std::move(folder)); }

LoadedBitmaps surfaceBitmaps(const SurfaceStyle& style) { return cache().find(style); }

} // namespace vela
