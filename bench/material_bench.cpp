// The software material overlay in megapixels a second, for every preset as a surface has it by default and
// for every finish on gloss, beside a plain scalar translation of the same shader. One thread.
#include "bench/material_surfaces.h"
#include "tests/support/material_reference.h"
#include "vela/render/materials/material_overlay.h"

#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

using namespace vela;
using bench::kDialog;

using Render = void (*)(const MaterialConstants&, const LayerTarget&);

void measure(benchmark::State& state, Render render, const MaterialConstants& constants)
{
    std::vector<Pixel> pixels(static_cast<std::size_t>(kDialog.width * kDialog.height));
    const LayerTarget target{{pixels.data(), kDialog, kDialog.width}, {}};
    for (auto round : state) {
        render(constants, target);
        benchmark::ClobberMemory();
    }
    state.counters["Mpix/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * kDialog.width * kDialog.height / 1e6,
                           benchmark::Counter::kIsRate);
}

void add(const std::string& name, MaterialPreset material, MaterialFinish finish)
{
    const MaterialConstants constants = bench::materialOf(material, finish);
    benchmark::RegisterBenchmark((name + "/vela").c_str(), measure, renderMaterialOverlay, constants)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((name + "/scalar").c_str(), measure, renderReferenceMaterial, constants)
        ->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    const char* const finishes[] = {"polished", "brushed",  "satin",  "matte",   "rough",
                                    "cracked",  "hammered", "etched", "frosted", "wetGloss"};
    int number = 0;
    for (const char* const preset : bench::kMaterialNames)
        add(preset, static_cast<MaterialPreset>(++number), MaterialFinish::Default);
    number = 0;
    for (const char* const finish : finishes)
        add(std::string("gloss-") + finish, MaterialPreset::Gloss, static_cast<MaterialFinish>(++number));
    return true;
}();

} // namespace
