#include "Benchmarks.h"
#include "RatioReporter.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

int main(int argc, char** argv) {
    // The subjects take turns, so that a busy machine slows all of them down.
    std::vector<std::string> defaults{"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=5",
                                      "--benchmark_min_time=0.02"};
    std::vector<char*> arguments(argv, argv + argc);
    for (auto position = defaults.rbegin(); position != defaults.rend(); ++position)
        arguments.insert(arguments.begin() + 1, position->data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    Bench::RegisterModelBenchmarks();
    Bench::RegisterNumberBenchmarks();
    Bench::RegisterLoadBenchmarks(std::filesystem::path(argv[0]).parent_path());
    Bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
