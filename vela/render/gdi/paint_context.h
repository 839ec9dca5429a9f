// What painting depends on beside what is painted and where: made by whoever begins a paint, as a window
// does, and bound to the device context for the time of it. UI thread only.
#pragma once

#include "vela/platform_handles.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>

namespace vela {

struct PaintContext {
    std::uint64_t time = 0; // of lights that move, in milliseconds: one for all that a paint shows
    PerformanceProfile profile = PerformanceProfile::Full;
    bool cachesPictures = true; // false changes nothing but the time that painting takes
    HMONITOR monitor = nullptr; // that smooths letters in its own way; null: the first one
};

// The context that is bound to the device context; without one the defaults above.
const PaintContext& paintContext(HDC dc) noexcept;

// Binds it as long as this lives; what was bound before counts again afterwards.
class PaintContextBinding {
public:
    PaintContextBinding(HDC dc, const PaintContext& context) noexcept;
    ~PaintContextBinding();
    PaintContextBinding(const PaintContextBinding&) = delete;
    PaintContextBinding& operator=(const PaintContextBinding&) = delete;

private:
    friend const PaintContext& paintContext(HDC dc) noexcept;

    HDC dc_;
    PaintContext context_;
    const PaintContextBinding* outer_; // the binding that was the latest before
};

} // namespace vela
