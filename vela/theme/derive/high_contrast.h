// A style sheet in the colours of the system's high-contrast mode. The skin keeps its shapes, fonts and
// measures; every colour becomes one of the user's, and nothing is drawn but level fills and lines.
#pragma once

#include "vela/theme/records/style_sheet.h"

namespace vela {

// The colours that the user's contrast theme consists of; text stands on the colour it is named with.
struct SystemColors {
    Color window = 0;
    Color windowText = 0;
    Color hotlight = 0; // links
    Color grayText = 0; // disabled text
    Color highlight = 0;
    Color highlightText = 0;
    Color buttonFace = 0;
    Color buttonText = 0;

    friend bool operator==(const SystemColors&, const SystemColors&) = default;
};

void applyHighContrast(StyleSheet& sheet, const SystemColors& colors);

} // namespace vela
