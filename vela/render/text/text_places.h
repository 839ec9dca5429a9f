// Where the letters of one line stand: for carets, clicks and selections. Pixels from the line's left edge.
// Text may run both ways in one line, so what follows in the text need not stand to the right; a cluster (a
// letter with its marks, an emoji) is one place and never split.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vela {

// A run of glyphs of one direction, as a text engine has laid it out. Clusters and advances are in the order
// of the text, whichever way it runs.
struct GlyphRunPlaces {
    std::size_t begin = 0; // the run's first unit in the text
    float x = 0;           // its beginning: its right edge when it runs to the left
    bool runsLeft = false;
    std::vector<std::uint16_t> clusters; // of each unit, its first glyph
    std::vector<float> advances;         // of each glyph, pixels
};

struct TextSpan {
    std::int32_t left = 0;
    std::int32_t right = 0;
    friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

class TextPlaces {
public:
    TextPlaces() = default;
    TextPlaces(std::wstring_view text, const std::vector<GlyphRunPlaces>& runs);
    // Letters from left to right; ends[i] is the width of the text up to and including unit i.
    TextPlaces(std::wstring_view text, const std::vector<std::int32_t>& ends);

    std::int32_t width() const noexcept;

    // Where a caret before that unit stands: at the letter's beginning, which is its right edge when it runs
    // to the left; behind the last letter at its end.
    std::int32_t caretX(std::size_t index) const noexcept;

    // The caret's index for a click: before or behind the letter that stands there, whichever end is nearer.
    std::size_t indexAt(std::int32_t x) const noexcept;

    // What the units from `begin` to `end` cover, from left to right; several spans where directions mix.
    std::vector<TextSpan> spans(std::size_t begin, std::size_t end) const;

private:
    struct Place {
        std::size_t begin; // unit
        std::int32_t left;
        std::int32_t right;
        bool runsLeft;
    };

    std::size_t endOf(const Place& place) const noexcept;

    std::vector<Place> places_; // in the order of the text
    std::size_t length_ = 0;    // units
};

} // namespace vela
