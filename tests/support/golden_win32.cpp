#include "tests/support/golden_win32.h"

#include "tools/png_file_win32.h"

#include <windows.h>

#include <objbase.h>

#include <algorithm>
#include <cstdlib>

namespace vela::testing {
namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionSuccess;

int channelDistance(Pixel a, Pixel b) noexcept
{
    int distance = 0;
    for (int shift = 0; shift < 24; shift += 8)
        distance = std::max(
            distance, std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)));
    return distance;
}

struct Comparison {
    int worst = 0;
    int pixels = 0; // beyond the tolerance
    std::vector<Pixel> difference;
};

Comparison compare(const PixelView& picture, const std::vector<Pixel>& golden, int tolerance)
{
    Comparison result;
    auto wanted = golden.begin();
    for (std::int32_t y = 0; y < picture.size.height; ++y) {
        for (std::int32_t x = 0; x < picture.size.width; ++x) {
            const int distance = channelDistance(picture.row(y)[x], *wanted++);
            result.worst = std::max(result.worst, distance);
            result.pixels += distance > tolerance;
            // Amplified: a difference nobody sees should be seen here.
            const auto shown =
                static_cast<unsigned>(distance > tolerance ? std::min(64 + 8 * distance, 255) : distance);
            result.difference.push_back(makePixel(shown, shown, shown, 255));
        }
    }
    return result;
}

} // namespace

::testing::AssertionResult matchesGolden(const std::wstring& name, const PixelView& picture, int tolerance)
{
    static const HRESULT com = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(com))
        return AssertionFailure() << "COM does not start";
    const std::wstring goldenPath =
        std::wstring(L"" TAMBER_SOURCE_DIR) + L"/tests/render/golden/" + name + L".png";
    const std::wstring failedPath = std::wstring(L"" TAMBER_BINARY_DIR) + L"/" + name;
    if (std::getenv("TAMBER_UPDATE_GOLDEN"))
        return tools::writePng(goldenPath, picture) ? AssertionSuccess()
                                                    : AssertionFailure() << "cannot write";
    const tools::Picture golden = tools::readPng(goldenPath);
    if (golden.pixels.empty() || golden.size != picture.size) {
        tools::writePng(failedPath + L".png", picture);
        return AssertionFailure() << "no golden picture of this size";
    }
    Comparison result = compare(picture, golden.pixels, tolerance);
    if (result.pixels == 0)
        return AssertionSuccess();
    tools::writePng(failedPath + L".png", picture);
    tools::writePng(failedPath + L".difference.png",
                    {result.difference.data(), picture.size, picture.size.width});
    return AssertionFailure() << result.pixels << " pixels differ, by up to " << result.worst
                              << "; see the .difference.png beside the test program,"
                              << " and run with TAMBER_UPDATE_GOLDEN=1 if it should look so now";
}

} // namespace vela::testing
