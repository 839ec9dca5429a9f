// What the user waits for before the first window: from the bytes of the default document to the wanted skin
// and its style sheet, all seventeen skins read on the way.
#include "bench/default_document.h"
#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

class DefaultDocumentHost final : public vela::SkinHost {
public:
    std::vector<std::wstring> fileNames(const std::wstring&) override { return {L"default.json"}; }
    std::optional<std::string> readFile(const std::wstring&, std::size_t) override
    {
        return bench::defaultDocument();
    }
    std::optional<std::uint32_t> appsUseLightTheme() override { return 1; }
};

const std::vector<std::wstring> kFolders{L"skins"};

void skinCatalogFromBytes(benchmark::State& state)
{
    DefaultDocumentHost host;
    for (auto round : state) {
        const vela::SkinCatalog catalog(host, kFolders);
        benchmark::DoNotOptimize(&catalog.find(L"win11-auto"));
    }
}
BENCHMARK(skinCatalogFromBytes)->Unit(benchmark::kMicrosecond);

void skinSheetFromBytes(benchmark::State& state)
{
    DefaultDocumentHost host;
    for (auto round : state) {
        const vela::SkinCatalog catalog(host, kFolders);
        const vela::StyleSheet sheet = vela::buildStyleSheet(catalog.find(L"win11-auto"));
        benchmark::DoNotOptimize(&sheet);
    }
}
BENCHMARK(skinSheetFromBytes)->Unit(benchmark::kMicrosecond);

// The richest skin of the document, alone.
void skinSheet(benchmark::State& state)
{
    DefaultDocumentHost host;
    const vela::SkinCatalog catalog(host, kFolders);
    for (auto round : state) {
        const vela::StyleSheet sheet = vela::buildStyleSheet(catalog.find(L"codex-forge"));
        benchmark::DoNotOptimize(&sheet);
    }
}
BENCHMARK(skinSheet)->Unit(benchmark::kMicrosecond);

} // namespace
