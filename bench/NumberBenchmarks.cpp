#include "Benchmarks.h"

#include <ImportDame/Value.h>
#include <ImportDame/ValueUtil.h>

#include <benchmark/benchmark.h>

#include <cwchar>
#include <string>

namespace Bench {

namespace {

constexpr double g_numbers[] = {0.0, 1.5, -0.25, 273.15, 65535.0, 0.001, 4294967295.0, -40.0};
const wchar_t* const g_texts[] = {L"0", L"1.5", L"-0.25", L"273.15", L"65535", L"0.001", L"4294967295", L"-40"};
const wchar_t* const g_exponentTexts[] = {L"1e+3", L"-2.5E+05", L"1.25e+10", L"7e+0"};

template <class Range, class Operation>
void Register(const char* name, const Range& range, Operation operation) {
    benchmark::RegisterBenchmark(name, [&range, operation](benchmark::State& state) {
        for (auto _ : state)
            for (const auto& element : range)
                operation(element);
        state.counters["elements"] = static_cast<double>(std::size(range));
    });
}

void RunGetAsDouble(benchmark::State& state) {
    ImportDame::VValue values[std::size(g_texts)];
    for (std::size_t index = 0; index < std::size(g_texts); ++index)
        values[index].Set(g_texts[index]);
    for (auto _ : state)
        for (const auto& value : values)
            benchmark::DoNotOptimize(value.GetAsDouble());
    state.counters["elements"] = static_cast<double>(std::size(g_texts));
}

void RunSetAsDouble(benchmark::State& state) {
    ImportDame::VValue value;
    for (auto _ : state)
        for (double number : g_numbers)
            value.SetAsDouble(number);
    benchmark::DoNotOptimize(value);
    state.counters["elements"] = static_cast<double>(std::size(g_numbers));
}

/// What the obvious value class does with the runtime's print.
void RunPrint(benchmark::State& state) {
    std::wstring text;
    for (auto _ : state)
        for (double number : g_numbers) {
            wchar_t buffer[512];
            std::swprintf(buffer, std::size(buffer), L"%f", number);
            text = buffer;
        }
    benchmark::DoNotOptimize(text);
    state.counters["elements"] = static_cast<double>(std::size(g_numbers));
}

} // namespace

void RegisterNumberBenchmarks() {
    benchmark::RegisterBenchmark("SetAsDouble/library/8", RunSetAsDouble);
    benchmark::RegisterBenchmark("SetAsDouble/runtime/8", RunPrint);
    benchmark::RegisterBenchmark("GetAsDouble/library/8", RunGetAsDouble);
    Register("GetAsDouble/runtime/8", g_texts,
             [](const wchar_t* text) { benchmark::DoNotOptimize(std::wcstod(text, nullptr)); });
    Register("StrToDbl/library/4", g_exponentTexts,
             [](const wchar_t* text) { benchmark::DoNotOptimize(NValueUtil::StrToDbl(text, 10, nullptr)); });
    Register("StrToDbl/runtime/4", g_exponentTexts,
             [](const wchar_t* text) { benchmark::DoNotOptimize(std::wcstod(text, nullptr)); });
}

} // namespace Bench
