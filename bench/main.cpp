#include <benchmark/benchmark.h>
#include <malloc.h>

int main(int argc, char** argv)
{
    // Freed memory stays with the program. Otherwise each round of a benchmark pays for fresh pages or not,
    // depending on what the benchmarks before it left behind.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
