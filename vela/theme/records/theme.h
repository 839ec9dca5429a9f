// A theme: fifteen palette roles, two fonts, the surface mode and the material profile. A plain value, copied
// into controls. Its defaults are the first skin of the default document, so that a control built before any
// skin is loaded already looks like that skin.
#pragma once

#include "vela/theme/color/color.h"
#include "vela/theme/records/surface_style.h"
#include "vela/theme/records/vocabulary.h"

#include <cstdint>
#include <string>

namespace vela {

inline constexpr std::int32_t kMinFontWeight = 100;
inline constexpr std::int32_t kMaxFontWeight = 900;

struct FontSpec {
    std::wstring family;         // empty: the renderer's default face
    std::int32_t pointSize = 10; // points
    std::int32_t weight = 400;
    Color color = hexColor(0xD3E4DD);
    Color disabledColor = hexColor(0x7A928C);
    bool italic = false;
    bool underline = false;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

// The theme-wide material settings from which control styles are derived.
struct MaterialProfile : MaterialShading, SurfaceMapping {
    bool enabled = true;
    MaterialPreset surface = MaterialPreset::None;
    MaterialPreset control = MaterialPreset::None;
    MaterialPreset accent = MaterialPreset::None;

    friend bool operator==(const MaterialProfile&, const MaterialProfile&) = default;
};

struct Theme {
    Color frame = hexColor(0xA47A45);
    Color shell = hexColor(0x050A0F);
    Color panel = hexColor(0x07161D);
    Color header = hexColor(0x0C3A36);
    Color control = hexColor(0x08161C);
    Color controlHot = hexColor(0x1F5252);
    Color controlPressed = hexColor(0x124641);
    Color border = hexColor(0x224244);
    Color accent = hexColor(0xC49452);
    Color accentHot = hexColor(0xE2AA58);
    Color text = hexColor(0xD3E4DD);
    Color textHot = hexColor(0xF6EECF);
    Color mutedText = hexColor(0xB0CCC4);
    Color disabledText = hexColor(0x7A928C);
    Color disabledFill = hexColor(0x060B0D);
    FontSpec uiFont{L"Bahnschrift", 10, 600, hexColor(0xF0F6F4), hexColor(0x6E7876)};
    FontSpec monoFont{L"Cascadia Mono", 10, 400, hexColor(0xD3E4DD), hexColor(0x7A928C)};
    SurfaceMode surfaceMode = SurfaceMode::Sculpted3d;
    MaterialProfile materials;

    friend bool operator==(const Theme&, const Theme&) = default;
};

} // namespace vela
