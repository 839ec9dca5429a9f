// From a font record to the font that is asked for: its size in pixels, and the face that is really there.
#pragma once

#include "vela/theme/records/theme.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vela {

inline constexpr wchar_t kDefaultFace[] = L"Segoe UI";

// What makes two fonts the same font: the record without its colours, and the DPI it is made for.
struct FontKey {
    FontKey(const FontSpec& font, std::int32_t windowDpi)
        : family(font.family), pointSize(font.pointSize), weight(font.weight), dpi(windowDpi),
          italic(font.italic), underline(font.underline)
    {
    }

    bool matches(const FontSpec& font, std::int32_t windowDpi) const noexcept
    {
        return dpi == windowDpi && pointSize == font.pointSize && weight == font.weight &&
               italic == font.italic && underline == font.underline && family == font.family;
    }

    std::wstring family;
    std::int32_t pointSize;
    std::int32_t weight;
    std::int32_t dpi;
    bool italic;
    bool underline;
};

// Pixels from the top of a capital with its accent to the bottom of a descender, more or less: the em.
std::int32_t emPixels(std::int32_t pointSize, std::int32_t dpi) noexcept;

// What GDI is asked for.
struct FontFace {
    std::wstring family;
    std::int32_t weight = 400;
};

// The face of the family when there is one, else that of the default face. `find` knows what is installed.
FontFace chooseFace(std::wstring_view family,
                    const std::function<std::optional<FontFace>(const std::wstring& family)>& find);

// Whether a file name ends like those of the fonts Windows can register, in any letter case.
bool isFontFileName(std::wstring_view name) noexcept;

} // namespace vela
