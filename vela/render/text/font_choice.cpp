#include "vela/render/text/font_choice.h"

#include "vela/mul_div.h"
#include "vela/text.h"

#include <algorithm>
#include <iterator>

namespace vela {
namespace {

constexpr std::wstring_view kFontExtensions[] = {L".ttf", L".otf", L".ttc", L".otc"};

// A point size comes from a skin and may be anything; beyond this no text fits a screen.
constexpr std::int32_t kMaxPointSize = 400;
constexpr std::int32_t kPointsPerInch = 72;

} // namespace

std::int32_t emPixels(std::int32_t pointSize, std::int32_t dpi) noexcept
{
    // Asked for no pixels, GDI would choose a size of its own.
    return std::max(mulDiv(std::clamp(pointSize, 1, kMaxPointSize), std::clamp(dpi, 1, 9600), kPointsPerInch),
                    1);
}

FontFace chooseFace(std::wstring_view family,
                    const std::function<std::optional<FontFace>(const std::wstring& family)>& find)
{
    for (const std::wstring_view wanted : {family, std::wstring_view(kDefaultFace)}) {
        std::optional<FontFace> face;
        if (!wanted.empty())
            face = find(std::wstring(wanted));
        if (face)
            return *std::move(face);
    }
    return {kDefaultFace};
}

bool isFontFileName(std::wstring_view name) noexcept
{
    return std::any_of(
        std::begin(kFontExtensions), std::end(kFontExtensions), [name](std::wstring_view extension) {
            return name.size() > extension.size() &&
                   equalsIgnoringAsciiCase(name.substr(name.size() - extension.size()), extension);
        });
}

} // namespace vela
