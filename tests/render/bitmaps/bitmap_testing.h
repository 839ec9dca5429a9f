// Pictures drawn as rows of letters.
#pragma once

#include "vela/render/bitmaps/bitmap_image.h"

#include <string>
#include <vector>

namespace vela {

// '.' transparent, 'r', 'g', 'b', 'w' opaque colours, 'h' half-transparent
// white.
inline BitmapImage pictureOf(const std::vector<std::string>& rows)
{
    BitmapImage image{{static_cast<std::int32_t>(rows[0].size()), static_cast<std::int32_t>(rows.size())},
                      {}};
    for (const std::string& row : rows)
        for (const char letter : row)
            image.pixels.push_back(letter == 'r'   ? 0xFFFF0000
                                   : letter == 'g' ? 0xFF00FF00
                                   : letter == 'b' ? 0xFF0000FF
                                   : letter == 'w' ? 0xFFFFFFFF
                                   : letter == 'h' ? 0x80FFFFFF
                                                   : 0x00000000);
    return image;
}

// With a notch in its third row.
inline const std::vector<std::string> kNotched{"..rr..", ".rrrr.", "rr..rr", "rrrrrr"};

} // namespace vela
