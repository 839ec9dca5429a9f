// DirectWrite, as far as it does not depend on a font of ours. Everything here may fail, and then says so:
// GDI draws instead. UI thread only, but for its opening.
#pragma once

#include "vela/com_pointer_win32.h"
#include "vela/library_win32.h"
#include "vela/render/text/font_choice.h"
#include "vela/render/text/text_engine.h"

#include <deque>
#include <optional>
#include <string>

#include <dwrite_1.h>

namespace vela {

// How the letters of a monitor are smoothed.
struct Smoothing {
    ComPointer<IDWriteRenderingParams> params; // null when they cannot be told
    DWRITE_TEXT_ANTIALIAS_MODE mode = DWRITE_TEXT_ANTIALIAS_MODE_CLEARTYPE;
};

class TextEngine {
public:
    // Null when the system has no DirectWrite. Never destroyed: layouts that other static objects still hold
    // when the process ends are its own. Any thread may be the first to ask; the others wait.
    static TextEngine* instance();

    IDWriteFactory* factory() const noexcept { return factory_.get(); }
    IDWriteGdiInterop* interop() const noexcept { return interop_.get(); }

    // The private fonts or the system's, whichever have a family of that name; null: neither has.
    IDWriteFontCollection* collectionOf(const std::wstring& family);

    // GDI's name for the face that DirectWrite has for a weight of a family.
    std::optional<FontFace> gdiFaceOf(const std::wstring& family, std::int32_t weight, bool italic);

    // Of the first monitor where none is named. Valid until the settings change.
    const Smoothing& ensureSmoothing(HMONITOR monitor);
    void forgetSmoothing() noexcept { smoothings_.clear(); }

private:
    struct SmoothingOfMonitor {
        HMONITOR monitor;
        Smoothing smoothing;
    };

    TextEngine();
    void openPrivateFonts();
    Smoothing makeSmoothing(HMONITOR monitor) const;

    SystemLibrary library_{L"dwrite.dll"};
    ComPointer<IDWriteFactory> factory_;
    ComPointer<IDWriteGdiInterop> interop_;
    ComPointer<IDWriteFontCollection> systemFonts_;
    ComPointer<IDWriteFontCollection> privateFonts_;
    bool arePrivateFontsOpen_ = false;
    std::deque<SmoothingOfMonitor> smoothings_;
};

// A weight of a record as DirectWrite takes it.
DWRITE_FONT_WEIGHT directWriteWeight(std::int32_t weight) noexcept;
constexpr DWRITE_FONT_STYLE directWriteStyle(bool italic) noexcept
{
    return italic ? DWRITE_FONT_STYLE_ITALIC : DWRITE_FONT_STYLE_NORMAL;
}

} // namespace vela
