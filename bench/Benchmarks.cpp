#include "Benchmarks.h"

#include "Model.h"
#include "Platform.h"

#include <ImportDame/detail/Memory.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace Bench {

namespace {

/// Seconds that the operation takes.
template <class Operation>
double Measure(Operation operation) {
    const double start = Seconds();
    operation();
    return Seconds() - start;
}

std::unique_ptr<Model> MakeFilled(const Subject& subject, std::size_t count) {
    auto model = subject.make();
    model->Build(count);
    return model;
}

/// Measures an operation on a model with that many elements; gives up the model where that is what it measures.
using Operation = double (*)(std::unique_ptr<Model>& model, std::size_t count);

/// An operation whose result nobody needs.
template <auto member, auto... arguments>
double Call(std::unique_ptr<Model>& model, std::size_t) {
    return Measure([&] {
        if constexpr (std::is_void_v<decltype(((*model).*member)(arguments...))>)
            ((*model).*member)(arguments...);
        else
            benchmark::DoNotOptimize(((*model).*member)(arguments...));
    });
}

double Build(std::unique_ptr<Model>& model, std::size_t count) {
    return Measure([&] { model->Build(count); });
}

double FindQualifier(std::unique_ptr<Model>& model, std::size_t) {
    return Measure([&] { benchmark::DoNotOptimize(model->FindQualifier(L"Read_nothing_Stored")); });
}

double LookUp(std::unique_ptr<Model>& model, std::size_t count) {
    model->InitCache();
    return Measure([&] {
        if (model->LookUp(count) != count)
            throw std::logic_error("the cache does not find every element");
    });
}

double RemoveFromFront(std::unique_ptr<Model>& model, std::size_t count) {
    return Measure([&] { model->RemoveFromFront(count); });
}

double Destroy(std::unique_ptr<Model>& model, std::size_t) {
    return Measure([&] { model.reset(); });
}

struct Workload {
    const char* name;
    Operation operation;

    enum { onEmpty, onFilled, onSame } model; ///< A new one for every iteration, or the same one.
};

/// Which of them a scenario has follows from what its models offer.
const Workload g_workloads[] = {
    {"build", Build, Workload::onEmpty},
    {"walk", Call<&Model::Walk, Depth::touch>, Workload::onSame},
    {"traverse", Call<&Model::Traverse>, Workload::onSame},
    {"limits", Call<&Model::ReadLimits>, Workload::onSame},
    {"copy", Call<&Model::Copy>, Workload::onFilled},
    {"find-code", Call<&Model::FindCode, 0U>, Workload::onSame},
    {"find-qualifier", FindQualifier, Workload::onSame},
    {"imported", Call<&Model::ImportedCount>, Workload::onSame},
    {"cache", Call<&Model::InitCache>, Workload::onSame},
    {"look-up", LookUp, Workload::onSame},
    {"dump", Call<&Model::Dump>, Workload::onSame},
    {"clear", Call<&Model::Clear>, Workload::onFilled},
    {"destroy", Destroy, Workload::onFilled},
};

const Workload g_removal{"remove-front", RemoveFromFront, Workload::onFilled};

void Run(benchmark::State& state, const Workload& workload, const Subject& subject, std::size_t count) {
    auto shared = workload.model == Workload::onSame ? MakeFilled(subject, count) : nullptr;
    for (auto _ : state) {
        auto own = workload.model == Workload::onEmpty    ? subject.make()
                   : workload.model == Workload::onFilled ? MakeFilled(subject, count)
                                                          : nullptr;
        state.SetIterationTime(workload.operation(shared ? shared : own, count));
    }
    state.counters["elements"] = static_cast<double>(count);
}

void RunMemory(benchmark::State& state, const Subject& subject, std::size_t count) {
    std::size_t bytes = 0;
    for (auto _ : state) {
        ImportDame::detail::ReleaseKept(); // of the models before
        const std::size_t before = HeapInUse();
        const auto model = MakeFilled(subject, count);
        bytes = HeapInUse() - before;
        state.SetIterationTime(1.0);
    }
    state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(count);
}

void CheckSameData(const Scenario& scenario) {
    const auto checksum = [](const Subject& subject) { return MakeFilled(subject, 1000)->Walk(Depth::whole); };
    for (const Subject& subject : scenario.subjects)
        if (checksum(subject) != checksum(scenario.subjects.front()))
            throw std::logic_error(std::string(scenario.name) + ": " + subject.name + " holds other data");
}

bool Offers(const Subject& subject, const Workload& workload) {
    auto model = workload.model == Workload::onEmpty ? subject.make() : MakeFilled(subject, 1);
    try {
        workload.operation(model, 1);
        return true;
    } catch (const NotOffered&) {
        return false;
    }
}

std::string NameOf(const Scenario& scenario, const char* workload, const Subject& subject, std::size_t count) {
    return std::string(scenario.name) + "-" + workload + "/" + subject.name + "/" + std::to_string(count);
}

void Register(const Scenario& scenario, const Workload& workload, const Subject& subject, std::size_t count) {
    if (!Offers(subject, workload))
        return;
    auto* const run =
        benchmark::RegisterBenchmark(NameOf(scenario, workload.name, subject, count).c_str(),
                                     [&, count](benchmark::State& state) { Run(state, workload, subject, count); });
    run->UseManualTime();
    if (count >= 1'000'000)
        run->Iterations(1)->Repetitions(3); // enough, and long
}

void RegisterMemory(const Scenario& scenario, const Subject& subject, std::size_t count) {
    benchmark::RegisterBenchmark(NameOf(scenario, "memory", subject, count).c_str(),
                                 [&, count](benchmark::State& state) { RunMemory(state, subject, count); })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(1);
}

} // namespace

void RegisterModelBenchmarks() {
    for (const Scenario& scenario : Scenarios()) {
        CheckSameData(scenario);
        for (std::size_t count = 1000; count <= 1'000'000; count *= 10)
            for (const Subject& subject : scenario.subjects) {
                for (const Workload& workload : g_workloads)
                    Register(scenario, workload, subject, count);
                RegisterMemory(scenario, subject, count);
            }
        for (std::size_t count : {100'000, 200'000})
            Register(scenario, g_removal, scenario.subjects.front(), count);
    }
}

} // namespace Bench
