#include "vela/render/bitmaps/bitmap_path.h"

#include "vela/text.h"

#include <algorithm>
#include <iterator>

namespace vela {
namespace {

constexpr std::wstring_view kSeparators = L"/\\";
constexpr std::wstring_view kForbidden = L":*?\"<>|";

// With any ending, these names mean a device and not a file. A digit follows those that end in '#'.
constexpr std::wstring_view kDeviceNames[] = {L"con",  L"prn",  L"aux",    L"nul",
                                              L"com#", L"lpt#", L"conin$", L"conout$"};

// Longer paths need a spelling that the functions used here do not take.
constexpr std::size_t kMostUnits = 200;

bool isDeviceDigit(wchar_t c) noexcept
{
    return isDigit(c) || c == L'\u00B9' || c == L'\u00B2' || c == L'\u00B3';
}

bool isDeviceName(std::wstring_view name) noexcept
{
    name = trimmed(name.substr(0, name.find(L'.')));
    return std::any_of(std::begin(kDeviceNames), std::end(kDeviceNames), [name](std::wstring_view device) {
        return device.size() == name.size() &&
               std::equal(device.begin(), device.end(), name.begin(), [](wchar_t pattern, wchar_t c) {
                   return pattern == L'#' ? isDeviceDigit(c) : pattern == lowerAscii(c);
               });
    });
}

// Windows drops dots and blanks at the end of a name: "..  " would be "..".
bool isPlainName(std::wstring_view name) noexcept
{
    return !name.empty() && name.back() != L'.' && name.back() != L' ' &&
           name.find_first_of(kForbidden) == std::wstring_view::npos && !isDeviceName(name) &&
           std::none_of(name.begin(), name.end(),
                        [](wchar_t c) { return static_cast<std::uint32_t>(c) < 0x20; });
}

} // namespace

bool isSafeBitmapPath(std::wstring_view path) noexcept
{
    if (path.size() > kMostUnits)
        return false;
    while (true) {
        const std::size_t end = path.find_first_of(kSeparators);
        if (!isPlainName(path.substr(0, end)))
            return false;
        if (end == std::wstring_view::npos)
            return true;
        path.remove_prefix(end + 1);
    }
}

std::wstring bitmapFile(std::wstring_view folder, std::wstring_view path)
{
    if (folder.empty() || !isSafeBitmapPath(path))
        return {};
    std::wstring file(path);
    std::replace(file.begin(), file.end(), L'/', L'\\');
    return std::wstring(folder).append(L"\\").append(file);
}

} // namespace vela
