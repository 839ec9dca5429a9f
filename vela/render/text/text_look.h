// How a text stands in its rectangle and which of its font's colours it has.
#pragma once

#include "vela/render/text/text_lines.h"

#include <cstdint>

namespace vela {

enum class TextAlign : std::uint8_t { Left, Center, Right };

// Which of a font record's two colours is used.
enum class TextTone : std::uint8_t { Enabled, Disabled };

struct TextLook {
    TextTone tone = TextTone::Enabled;
    TextAlign align = TextAlign::Left;
    TextWrap wrap = TextWrap::SingleLine;
    friend bool operator==(const TextLook&, const TextLook&) = default;
};

} // namespace vela
