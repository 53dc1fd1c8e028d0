#include "Benchmarks.h"

#include "Platform.h"

#include <ImportDame/Value.h>
#include <ImportDame/ValueUtil.h>

#include <benchmark/benchmark.h>

#include <cwchar>
#include <iterator>
#include <string>
#include <vector>

namespace Bench {

namespace {

constexpr double g_numbers[] = {0.0, 1.5, -0.25, 273.15, 65535.0, 0.001, 4294967295.0, -40.0};
const wchar_t* const g_texts[] = {L"0", L"1.5", L"-0.25", L"273.15", L"65535", L"0.001", L"4294967295", L"-40"};
const wchar_t* const g_exponentTexts[] = {L"1e+3", L"-2.5E+05", L"1.25e+10", L"7e+0"};

/// Measures an operation on every element of a range, many times over. Range and operation are made for one run: a
/// value that lived longer would hold on to the pool.
template <class MakeRange, class MakeOperation>
void Register(const char* name, MakeRange makeRange, MakeOperation makeOperation) {
    constexpr int rounds = 1000;
    const auto run = [=](benchmark::State& state) {
        const auto& range = makeRange();
        auto operation = makeOperation();
        for (auto _ : state) {
            const double start = Seconds();
            for (int round = 0; round < rounds; ++round)
                for (const auto& element : range)
                    operation(element);
            state.SetIterationTime(Seconds() - start);
        }
        state.counters["elements"] = static_cast<double>(rounds * std::size(range));
    };
    benchmark::RegisterBenchmark(name, run)->UseManualTime();
}

/// What the obvious value class does with the runtime's print.
void Print(std::wstring& text, double number) {
    wchar_t buffer[512];
    std::swprintf(buffer, std::size(buffer), L"%f", number);
    text = buffer;
}

} // namespace

void RegisterNumberBenchmarks() {
    using ImportDame::VValue;
    const auto numbers = []() -> auto& {
        return g_numbers;
    };
    const auto texts = []() -> auto& {
        return g_texts;
    };
    const auto exponentTexts = []() -> auto& {
        return g_exponentTexts;
    };
    const auto values = [] { return std::vector<VValue>(std::begin(g_texts), std::end(g_texts)); };
    const auto readByRuntime = [] {
        return [](const wchar_t* text) { benchmark::DoNotOptimize(std::wcstod(text, nullptr)); };
    };

    Register("SetAsDouble/library/8", numbers,
             [] { return [value = VValue()](double number) mutable { value.SetAsDouble(number); }; });
    Register("SetAsDouble/runtime/8", numbers,
             [] { return [text = std::wstring()](double number) mutable { Print(text, number); }; });
    Register("GetAsDouble/library/8", values,
             [] { return [](const VValue& value) { benchmark::DoNotOptimize(value.GetAsDouble()); }; });
    Register("GetAsDouble/runtime/8", texts, readByRuntime);
    Register("StrToDbl/library/4", exponentTexts, [] {
        return [](const wchar_t* text) { benchmark::DoNotOptimize(NValueUtil::StrToDbl(text, 10, nullptr)); };
    });
    Register("StrToDbl/runtime/4", exponentTexts, readByRuntime);
}

} // namespace Bench
