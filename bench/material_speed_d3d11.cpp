// The material overlay drawn and read back through Direct3D beside the one in software, for every preset: one
// line each, in megapixels a second by the clock and in a second of processor time, all threads together
// (what else the machine does spoils the first). Under Wine Direct3D is software too, its shader compiled for
// this processor:
//   taskset -c 0 scripts/wine-gpu build/windows/bench/material_speed.exe
#include "bench/material_surfaces.h"
#include "vela/render/materials/material_gpu_d3d11.h"
#include "vela/render/materials/material_overlay.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <vector>

#include <windows.h>

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;
using vela::MaterialConstants;
using vela::PixelView;

bool onCard(const MaterialConstants& constants, const PixelView& target)
{
    return vela::renderMaterialOnGpu(constants, target);
}

bool inSoftware(const MaterialConstants& constants, const PixelView& target)
{
    vela::renderMaterialOverlay(constants, {target, {}});
    return true;
}

// Of this process, all threads.
double processorSeconds()
{
    FILETIME started{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(::GetCurrentProcess(), &started, &ended, &kernel, &user);
    const auto seconds = [](const FILETIME& time) {
        return static_cast<double>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime) / 1e7;
    };
    return seconds(kernel) + seconds(user);
}

struct Cost {
    double byClock = 0; // seconds; the least of all rounds
    double processor = 0;
};

template <typename Render>
Cost costOf(const MaterialConstants& constants, const PixelView& target, Render&& render)
{
    constexpr double kLeastSample = 0.4; // seconds: processor time is counted in hundredths
    render(constants, target);
    Cost cost{1e9, 0};
    int rounds = 0;
    const double before = processorSeconds();
    while (processorSeconds() - before < kLeastSample) {
        const auto start = Clock::now();
        render(constants, target);
        cost.byClock = std::min(cost.byClock, Seconds(Clock::now() - start).count());
        ++rounds;
    }
    cost.processor = (processorSeconds() - before) / rounds;
    return cost;
}

} // namespace

int main()
{
    constexpr vela::Size kSizes[] = {bench::kDialog, {128, 34}};
    std::vector<vela::Pixel> pixels(static_cast<std::size_t>(bench::kDialog.width) * bench::kDialog.height);
    const auto start = Clock::now();
    if (!onCard(bench::materialOf(vela::MaterialPreset::Glass, vela::MaterialFinish::Default),
                {pixels.data(), bench::kDialog, bench::kDialog.width})) {
        std::fputs("no Direct3D, or no shader compiler\n", stderr);
        return 1;
    }
    std::printf("first overlay through Direct3D: %.0f ms\n", 1000 * Seconds(Clock::now() - start).count());
    for (const vela::Size size : kSizes) {
        std::printf("%d x %d, Mpix/s        Direct3D  (processor)  software  (processor)\n", size.width,
                    size.height);
        const PixelView target{pixels.data(), size, size.width};
        const double megapixels = size.width * size.height / 1e6;
        for (std::size_t i = 0; i < std::size(bench::kMaterialNames); ++i) {
            const MaterialConstants constants = bench::materialOf(static_cast<vela::MaterialPreset>(i + 1),
                                                                  vela::MaterialFinish::Default, size);
            const Cost card = costOf(constants, target, onCard);
            const Cost software = costOf(constants, target, inSoftware);
            std::printf("  %-18s %9.1f %9.1f %13.1f %9.1f\n", bench::kMaterialNames[i],
                        megapixels / card.byClock, megapixels / card.processor, megapixels / software.byClock,
                        megapixels / software.processor);
        }
    }
}
