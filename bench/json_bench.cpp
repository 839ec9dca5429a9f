// The JSON reader against two well-known ones on the same bytes: all start from UTF-8 and end with a tree,
// which is destroyed within the measured time. Those that say "Text" start from wide text instead.
#include "bench/default_document.h"
#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"

#include <string>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>

namespace {

using WideRapidDocument = rapidjson::GenericDocument<rapidjson::UTF16<char16_t>>;

void countBytes(benchmark::State& state, const std::string& bytes)
{
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(bytes.size()));
}

// An array of default documents of about so many bytes.
std::string documentsOfSize(std::size_t size)
{
    std::string bytes = "[";
    while (bytes.size() < size)
        bytes += bench::defaultDocument() + ',';
    bytes.back() = ']';
    return bytes;
}

void readWithVela(benchmark::State& state, const std::string& bytes)
{
    for (auto round : state) {
        vela::JsonDocument document;
        if (!document.read(vela::decodeUtf8(bytes)))
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(document);
    }
    countBytes(state, bytes);
}

void jsonVela(benchmark::State& state) { readWithVela(state, bench::defaultDocument()); }
BENCHMARK(jsonVela);

void jsonVelaText(benchmark::State& state)
{
    const std::wstring text = vela::decodeUtf8(bench::defaultDocument());
    for (auto round : state) {
        vela::JsonDocument document;
        if (!document.read(text))
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(document);
    }
    countBytes(state, bench::defaultDocument());
}
BENCHMARK(jsonVelaText);

void jsonNlohmann(benchmark::State& state)
{
    for (auto round : state) {
        const auto document = nlohmann::json::parse(bench::defaultDocument());
        benchmark::DoNotOptimize(&document);
    }
    countBytes(state, bench::defaultDocument());
}
BENCHMARK(jsonNlohmann);

void jsonRapidWide(benchmark::State& state)
{
    for (auto round : state) {
        WideRapidDocument document;
        rapidjson::StringStream bytes(bench::defaultDocument().c_str());
        if (document.ParseStream<rapidjson::kParseDefaultFlags, rapidjson::UTF8<>>(bytes).HasParseError())
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(&document);
    }
    countBytes(state, bench::defaultDocument());
}
BENCHMARK(jsonRapidWide);

void jsonRapidWideText(benchmark::State& state)
{
    const std::u16string text(bench::defaultDocument().begin(), bench::defaultDocument().end());
    for (auto round : state) {
        WideRapidDocument document;
        if (document.Parse(text.c_str()).HasParseError())
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(&document);
    }
    countBytes(state, bench::defaultDocument());
}
BENCHMARK(jsonRapidWideText);

// Time per byte must not grow with the size, nor with the number of members of one object.
void jsonVelaBySize(benchmark::State& state)
{
    const std::string bytes = documentsOfSize(static_cast<std::size_t>(state.range(0)));
    readWithVela(state, bytes);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(jsonVelaBySize)->RangeMultiplier(4)->Range(128 << 10, 8 << 20)->Complexity();

} // namespace
