// Fonts of the process: made from font records when first asked for, cached until it ends. UI thread only.
#pragma once

#include "vela/platform_handles.h"
#include "vela/theme/records/theme.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace vela {

// The GDI font of the record for a window of that DPI; null when the system can make none. Borrowed.
HFONT fontFor(const FontSpec& font, std::int32_t dpi);

// Registers the files in the resource folder of fonts, for this process alone. The first font request does it
// too; only the first call has an effect.
void loadPrivateFonts();

} // namespace vela
