#include "vela/render/text/font_choice.h"

#include "vela/mul_div.h"
#include "vela/text.h"

#include <algorithm>
#include <iterator>

namespace vela {
namespace {

struct WeightSuffix {
    std::int32_t weight;
    std::wstring_view suffix;
};

constexpr WeightSuffix kWeightSuffixes[] = {
    {100, L" Thin"},      {200, L" ExtraLight"}, {200, L" UltraLight"}, {300, L" Light"},
    {350, L" Semilight"}, {500, L" Medium"},     {600, L" Semibold"},   {600, L" Demibold"},
    {800, L" ExtraBold"}, {800, L" UltraBold"},  {900, L" Black"},      {900, L" Heavy"},
};

constexpr std::int32_t kRegularWeight = 400;

// GDI cuts longer names: the system's own "Segoe UI Variable Display Semib" is one.
constexpr std::size_t kLongestFamily = 31;

constexpr std::wstring_view kFontExtensions[] = {L".ttf", L".otf", L".ttc", L".otc"};

// A point size comes from a skin and may be anything; beyond this no text fits a screen.
constexpr std::int32_t kMaxPointSize = 400;
constexpr std::int32_t kPointsPerInch = 72;

} // namespace

std::int32_t emPixels(std::int32_t pointSize, std::int32_t dpi) noexcept
{
    return mulDiv(std::clamp(pointSize, 1, kMaxPointSize), std::clamp(dpi, 1, 9600), kPointsPerInch);
}

FontFace chooseFace(std::wstring_view family, std::int32_t weight,
                    const std::function<bool(const std::wstring& family)>& isInstalled)
{
    for (const std::wstring_view wanted : {family, std::wstring_view(kDefaultFace)}) {
        if (wanted.empty())
            continue;
        for (const WeightSuffix& row : kWeightSuffixes) {
            if (row.weight != weight)
                continue;
            std::wstring ofWeight = std::wstring(wanted).append(row.suffix).substr(0, kLongestFamily);
            if (isInstalled(ofWeight)) // asked for more than regular, GDI might thicken what is heavy already
                return {std::move(ofWeight), std::min(weight, kRegularWeight)};
        }
        if (isInstalled(std::wstring(wanted)))
            return {std::wstring(wanted), weight};
    }
    return {kDefaultFace, weight};
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
