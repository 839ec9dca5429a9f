#include "tests/support/material_atlas.h"

#include "tools/png_file_win32.h"

namespace vela::testing {

std::vector<Pixel> readAtlas(MappingSpace mapping)
{
    const std::string path = atlasPath(mapping);
    tools::Picture atlas = tools::readPng({path.begin(), path.end()}, tools::PngAlpha::Stored);
    return atlas.size == kAtlasSize ? std::move(atlas.pixels) : std::vector<Pixel>();
}

} // namespace vela::testing
