// Where a layout of DirectWrite has placed its letters.
#pragma once

#include "vela/render/text/text_places.h"

#include <optional>

#include <dwrite.h>

namespace vela {

// None when the layout cannot tell. The layout has one line.
std::optional<TextPlaces> placesOf(std::wstring_view text, IDWriteTextLayout& layout);

} // namespace vela
