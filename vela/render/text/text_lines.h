// How a text is laid into the room it has: where its lines break, which of them are seen and where an
// ellipsis stands for the rest. Decided here once, from widths alone, so that every text engine draws the
// same lines and measuring agrees with drawing. No cluster (a letter with its marks, an emoji) is ever split.
#pragma once

#include "vela/geometry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

// Pixels. No text is measured wider, so that a place in a text can be added to one on a screen.
inline constexpr std::int32_t kWidestText = 1 << 28;

enum class TextWrap : std::uint8_t { SingleLine, Words };

// Knows the widths of a font.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;
    // ends[i] becomes the width in pixels of the text up to and including unit i.
    virtual void measure(std::wstring_view text, std::vector<std::int32_t>& ends) const = 0;

protected:
    TextMeasurer() = default;
    TextMeasurer(const TextMeasurer&) = default;
    TextMeasurer& operator=(const TextMeasurer&) = default;
};

struct TextLines {
    std::wstring text; // the visible lines, a line feed between each two
    std::int32_t count = 0;
};

// A single line is cut to the room's width, whatever its height. Wrapped text breaks at blanks, and inside a
// word that is longer than a whole line; lines that would begin below the room's last full line are not
// shown, but one always is. The last line shown ends in an ellipsis when text is left over.
TextLines composeText(std::wstring_view text, TextWrap wrap, Size room, std::int32_t lineHeight,
                      const TextMeasurer& measurer);

// The wrapped text with all its lines, however many.
TextLines wrapText(std::wstring_view text, std::int32_t width, const TextMeasurer& measurer);

// A line as long as it is, unit for unit, with nothing in it that would break it.
std::wstring unbrokenLine(std::wstring_view text);

} // namespace vela
