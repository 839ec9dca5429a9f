// Judges a whole style sheet by the contrast rules.
#pragma once

#include "vela/theme/style_sheet.h"

#include <string>
#include <vector>

namespace vela {

// One pair, judged. Reached is the ratio at the worst place: the worst stop of a gradient, and what shines
// through a translucent face. What bitmaps and materials add is not seen.
struct ContrastCheck {
    ControlKind kind = ControlKind::Text;
    std::wstring variant;
    std::string part; // in words: "hot caption"
    float required = 0;
    float reached = 0;

    bool holds() const noexcept { return reached >= required; }
};

std::vector<ContrastCheck> contrastChecks(const StyleSheet& sheet);

} // namespace vela
