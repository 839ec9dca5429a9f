// Checks a whole style sheet against the contrast rules.
#pragma once

#include "vela/theme/records/style_sheet.h"
#include "vela/theme/records/surface_tones.h"

#include <string>
#include <vector>

namespace vela {

// How the tones are found that a surface shows when it lies on a backdrop.
struct ToneFinders {
    using Finder = ToneRange (*)(const SurfaceStyle& surface, const ToneRange& backdrop);

    Finder ofContainer = surfaceTones; // what controls lie on
    Finder ofControl = surfaceTones;   // controls and their parts
};

// One pair, checked. Reached is the ratio at the worst place.
struct ContrastCheck {
    ControlKind kind = ControlKind::Text;
    std::wstring variant;
    std::string part; // in words: "hot caption"
    float required = 0;
    float reached = 0;

    bool holds() const noexcept { return reached >= required; }
};

// As far as the records tell, unless told otherwise: then the worst place is the worst stop of a gradient and
// what shines through a translucent face, and what bitmaps and materials add is not seen.
std::vector<ContrastCheck> contrastChecks(const StyleSheet& sheet, const ToneFinders& tones = {});

} // namespace vela
