// Texts and marks of a painted dialog, and what can be wrong with them: plain arithmetic on rectangles and
// pixels. All lengths are pixels.
#pragma once

#include "vela/geometry.h"
#include "vela/render/pixels/pixel_buffer.h"
#include "vela/render/text/text_lines.h"
#include "vela/theme/records/theme.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace dialog_check {

enum class InkKind : std::uint8_t { Text, Mark };

// Something that was drawn to be read or to be recognised.
struct Ink {
    InkKind kind = InkKind::Text;
    std::wstring text; // of a mark its name
    vela::Rect room;   // what it was drawn in
    vela::Rect place;  // what it takes, as far as the room lets it
    vela::Size needed; // what the whole of it takes
    vela::Color color = 0;
    bool large = false; // as accessibility has it: 18 points, or 14 and bold
};

bool isLargeText(const vela::FontSpec& font) noexcept;

// Where a text of that size stands in its room: a single line in the middle of the height, wrapped ones from
// the top.
enum class Side : std::uint8_t { Left, Centre, Right };
vela::Rect placeInRoom(const vela::Rect& room, vela::Size needed, Side side, vela::TextWrap wrap) noexcept;

// A control that texts of others must keep clear of.
struct Box {
    std::wstring id;
    vela::Rect bounds;
    bool enabled = true;
    bool solid = true; // false for labels, which are nothing but their text
};

// The control that the ink belongs to; null for what the dialog itself shows.
const Box* ownerOf(const Ink& ink, std::span<const Box> boxes) noexcept;

// One sentence for each text that is cut, leaves the window, meets another or lies across a control's edge.
std::vector<std::wstring> geometryFindings(std::span<const Ink> inks, std::span<const Box> boxes,
                                           vela::Size window);

// The ratio that the ink's colour has to its ground: 1 when nothing of it was painted. The ground is the same
// picture without any ink, looked at where the ink changed it; the least 2 % of these pixels do not count,
// for single grains of a texture hide no letter.
float reachedContrast(const Ink& ink, const vela::PixelView& with, const vela::PixelView& without);

float requiredContrast(const Ink& ink, bool enabled) noexcept;

// How many pixels inside the rectangle are 3:1 or more away from what they were.
std::size_t strikingChanges(const vela::Rect& rect, const vela::PixelView& before,
                            const vela::PixelView& after);

// At 96 DPI a focus is seen when what it changes is worth a line of one pixel around the control; a quarter
// of the line may be lost at round and cut corners.
std::size_t leastFocusChange(const vela::Rect& control) noexcept;

} // namespace dialog_check
