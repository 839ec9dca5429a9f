// What a skin's styles lead to: controls of every kind wear them, are laid out and paint, and the pixels of
// their surfaces are made as far as a small window shows them.
#pragma once

#include "vela/theme/records/style_sheet.h"

namespace vela {

void paintWith(const StyleSheet& styles);

} // namespace vela
