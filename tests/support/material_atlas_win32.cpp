#include "tests/support/material_atlas.h"

#include "tools/png_file_win32.h"

#include <windows.h>

#include <objbase.h>

namespace vela::testing {

std::vector<Pixel> readAtlas(MappingSpace mapping)
{
    // Held for the life of the process: the tests come and go.
    static const HRESULT com = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(com))
        return {};
    const std::string path = atlasPath(mapping);
    tools::Picture atlas = tools::readPng({path.begin(), path.end()}, tools::PngAlpha::Stored);
    return atlas.size == kAtlasSize ? std::move(atlas.pixels) : std::vector<Pixel>();
}

} // namespace vela::testing
