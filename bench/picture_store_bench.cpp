// A look-up of a surface's picture in a store as full as it gets: found, and in vain. The goal is less than a
// microsecond for either.
#include "vela/render/pixels/picture_store.h"
#include "vela/render/surface/face_key.h"

#include <array>
#include <memory>

#include <benchmark/benchmark.h>

namespace {

using namespace vela;

constexpr std::size_t kEntries = 1024;

FaceKeyValues valuesOf(std::size_t entry)
{
    // A few sizes, as the states and variants of a skin's controls have.
    return {{},
            {static_cast<std::int32_t>(90 + entry % 8), 34},
            {},
            PerformanceProfile::Full,
            SurfaceEdge::Antialiased,
            SurfaceLayer::Fill};
}

// Of neighbouring states only one number differs, and not one that the hash looks at.
SurfaceStyle styleOf(std::size_t entry)
{
    SurfaceStyle style;
    style.fill = static_cast<Color>(entry / 4);
    style.highlightOpacity = static_cast<std::uint8_t>(entry % 4);
    return style;
}

void lookUp(benchmark::State& state, std::size_t firstWanted)
{
    PictureStore store({std::size_t{1} << 30, kEntries});
    for (std::size_t i = 0; i < kEntries; ++i) {
        const SurfaceStyle style = styleOf(i);
        store.ensure<FacePictures>(FaceKeyView{style, valuesOf(i)}, [] {
            return std::make_shared<OwnedPixels>(Size{1, 1});
        });
    }
    std::array<SurfaceStyle, 64> wanted;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        wanted[i] = styleOf(firstWanted + i * 16);
    std::size_t i = 0;
    for (auto round : state) {
        const std::size_t at = i++ % wanted.size();
        benchmark::DoNotOptimize(
            store.find<FacePictures>(FaceKeyView{wanted[at], valuesOf(firstWanted + at * 16)}).get());
    }
}

BENCHMARK_CAPTURE(lookUp, found, 0);
BENCHMARK_CAPTURE(lookUp, inVain, 4 * kEntries);

} // namespace
