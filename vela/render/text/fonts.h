// Fonts of the process: made from font records when first asked for, kept until it ends. UI thread only.
#pragma once

#include "vela/platform_handles.h"
#include "vela/theme/records/theme.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace vela {

// The GDI font of the record for a window of that DPI; null when the system can make none. Borrowed.
HFONT fontFor(const FontSpec& font, std::int32_t dpi);

// The folder whose font files become known to this process alone when the first font is asked for. To be
// called before that, once; without it there are no private fonts.
void setPrivateFontFolder(std::wstring folder);

// Registers the files of that folder. The first font request does it too; only the first call has an effect.
void loadPrivateFonts();

} // namespace vela
