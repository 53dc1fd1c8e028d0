#include "Benchmarks.h"

#include "Platform.h"

#include <benchmark/benchmark.h>

namespace Bench {

void RegisterLoadBenchmarks(const std::filesystem::path& folder) {
    const auto add = [&](const char* name, const char* file) {
        const auto path = folder / (std::string(file) + LIBRARY_SUFFIX);
        const auto run = [=](benchmark::State& state) {
            for (auto _ : state) {
                const double start = Seconds();
                LoadAndUnload(path);
                state.SetIterationTime(Seconds() - start);
            }
            state.counters["elements"] = 1;
        };
        benchmark::RegisterBenchmark(name, run)->UseManualTime();
    };
    add("load/library/1", "LoadedLibrary");
    add("load/nothing/1", "LoadedNothing");
}

} // namespace Bench
