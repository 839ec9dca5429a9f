// What drawing and measuring know of a made font.
#pragma once

#include "vela/render/gdi/owned_gdi.h"
#include "vela/render/text/font_choice.h"
#include "vela/render/text/text_lines.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vela {

struct Font {
    FontKey key;
    FontFace face;
    std::int32_t em = 0;  // pixels
    OwnedFont owned = {}; // empty when the stock font stands in
    HFONT handle = nullptr;
    std::int32_t lineHeight = 0; // pixels, as GDI steps from line to line
    std::int32_t ascent = 0;     // pixels from the top of a line to its base line
};

// The one memory context for asking GDI about fonts while nothing is being painted.
HDC measuringDc();

// The widths of a font. It outlives the measurer; a measurer made meanwhile goes before this one.
class GdiTextMeasurer final : public TextMeasurer {
public:
    explicit GdiTextMeasurer(const Font& font) : selected_(measuringDc(), font.handle) {}
    void measure(std::wstring_view text, std::vector<std::int32_t>& ends) const override;

private:
    SelectedObject selected_;
};

// Where a piece of a text ends that begins there. GDI's calls take 8,192 units at most; pieces are smaller,
// for of a long line few are in sight.
std::size_t endOfPiece(std::wstring_view text, std::size_t begin) noexcept;

// Never fails: a font that cannot be made is the stock GUI font. Valid until the process ends.
const Font& ensureFont(const FontSpec& font, std::int32_t dpi);

// Every font made so far stays; this many there are. For textStatistics.
std::size_t fontCount() noexcept;

} // namespace vela
