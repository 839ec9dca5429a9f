#include "tests/support/material_atlas.h"

#include <png.h>

namespace vela::testing {

std::vector<Pixel> readAtlas(MappingSpace mapping)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    std::vector<Pixel> pixels(static_cast<std::size_t>(kAtlasSize.width) * kAtlasSize.height);
    const bool opened = png_image_begin_read_from_file(&image, atlasPath(mapping).c_str()) != 0;
    image.format = PNG_FORMAT_BGRA;
    const bool read = opened && image.width == static_cast<png_uint_32>(kAtlasSize.width) &&
                      image.height == static_cast<png_uint_32>(kAtlasSize.height) &&
                      png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr) != 0;
    png_image_free(&image);
    return read ? pixels : std::vector<Pixel>();
}

} // namespace vela::testing
