// Which pairs of a style record's colours have to stand out from each other, and how far: one description for
// the tests and the skin lint.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/records/control_styles.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace vela {

// An edge is what identifies a control: its border or its fill, whichever stands out more. Separators and the
// hairlines of panels are none.
enum class Need : std::uint8_t { Text, DisabledText, Mark, Edge };

inline float ratioFor(Need need)
{
    switch (need) {
    case Need::Text: return kTextContrast;
    case Need::DisabledText: return kDisabledTextContrast;
    case Need::Mark:
    case Need::Edge: break;
    }
    return kMarkContrast;
}

// The colour that is judged: a text's, a mark's, or none where a surface itself is.
template <class Record>
struct Ink {
    constexpr Ink() = default;
    constexpr Ink(FontSpec Record::*font_) : font(font_) {}
    constexpr Ink(Color Record::*color_) : color(color_) {}

    FontSpec Record::*font = nullptr;
    Color Record::*color = nullptr;

    Color in(const Record& record, Need need) const
    {
        if (color)
            return record.*color;
        return need == Need::DisabledText ? (record.*font).disabledColor : (record.*font).color;
    }
};

inline constexpr std::size_t kMostFaces = 5;

// Judged on each of the faces; without a face on the bed; without a bed on what controls lie on. An Edge
// judges the faces themselves.
template <class Record>
struct Rule {
    std::string_view part;
    Need need;
    Ink<Record> ink;
    SurfaceStyle Record::*faces[kMostFaces] = {};
    SurfaceStyle Record::*bed = nullptr;
};

// None for kinds whose rules are not a matter of single fields: texts, buttons, tabs, panels and scroll bars.
template <class Record>
std::span<const Rule<Record>> contrastRules() noexcept;

} // namespace vela
