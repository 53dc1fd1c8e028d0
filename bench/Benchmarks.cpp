#include "Benchmarks.h"

#include "Platform.h"
#include "TroubleCodeModel.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace Bench {

namespace {

using Factory = std::unique_ptr<TroubleCodeModel> (*)();

/// Seconds that the operation takes.
template <class Operation>
double Measure(Operation operation) {
    const double start = Seconds();
    operation();
    return Seconds() - start;
}

std::unique_ptr<TroubleCodeModel> MakeFilled(Factory make, std::size_t count) {
    auto model = make();
    model->Build(count);
    return model;
}

/// Every iteration measures the operation on a model; what it returns is how many seconds of it count.
using Operation = double (*)(std::unique_ptr<TroubleCodeModel>& model, std::size_t count);

double Build(std::unique_ptr<TroubleCodeModel>& model, std::size_t count) {
    return Measure([&] { model->Build(count); });
}

double Walk(std::unique_ptr<TroubleCodeModel>& model, std::size_t) {
    return Measure([&] { benchmark::DoNotOptimize(model->Walk(Depth::touch)); });
}

double Copy(std::unique_ptr<TroubleCodeModel>& model, std::size_t) {
    return Measure([&] { model->Copy(); });
}

double Find(std::unique_ptr<TroubleCodeModel>& model, std::size_t) {
    return Measure([&] { benchmark::DoNotOptimize(model->Find(0)); });
}

double ImportedCount(std::unique_ptr<TroubleCodeModel>& model, std::size_t) {
    return Measure([&] { benchmark::DoNotOptimize(model->ImportedCount()); });
}

double RemoveFromFront(std::unique_ptr<TroubleCodeModel>& model, std::size_t count) {
    return Measure([&] { model->RemoveFromFront(count); });
}

double Clear(std::unique_ptr<TroubleCodeModel>& model, std::size_t) {
    return Measure([&] { model->Clear(); });
}

double Destroy(std::unique_ptr<TroubleCodeModel>& model, std::size_t) {
    return Measure([&] { model.reset(); });
}

struct Workload {
    const char* name;
    Operation operation;

    enum { onEmpty, onFilled, onSame } model; ///< A new one for every iteration, or the same one.
};

const Workload g_workloads[] = {
    {"build", Build, Workload::onEmpty},
    {"walk", Walk, Workload::onSame},
    {"copy", Copy, Workload::onFilled},
    {"find", Find, Workload::onSame},
    {"imported", ImportedCount, Workload::onSame},
    {"clear", Clear, Workload::onFilled},
    {"destroy", Destroy, Workload::onFilled},
};

void Run(benchmark::State& state, const Workload& workload, Factory make, std::size_t count) {
    auto shared = workload.model == Workload::onSame ? MakeFilled(make, count) : nullptr;
    for (auto _ : state) {
        auto own = workload.model == Workload::onEmpty    ? make()
                   : workload.model == Workload::onFilled ? MakeFilled(make, count)
                                                          : nullptr;
        state.SetIterationTime(workload.operation(shared ? shared : own, count));
    }
    state.counters["elements"] = static_cast<double>(count);
}

void RunMemory(benchmark::State& state, Factory make, std::size_t count) {
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::size_t before = HeapInUse();
        const auto model = MakeFilled(make, count);
        bytes = HeapInUse() - before;
        state.SetIterationTime(1.0);
    }
    state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(count);
}

void CheckSameData() {
    const auto expected = MakeFilled(MakePlainModel, 1000)->Walk(Depth::whole);
    for (const Subject& subject : Subjects())
        if (MakeFilled(subject.make, 1000)->Walk(Depth::whole) != expected)
            throw std::logic_error(std::string(subject.name) + " holds other data");
}

void Register(const Workload& workload, const Subject& subject, std::size_t count) {
    const std::string name = std::string(workload.name) + "/" + subject.name + "/" + std::to_string(count);
    auto* const run = benchmark::RegisterBenchmark(
        name.c_str(), [&, count](benchmark::State& state) { Run(state, workload, subject.make, count); });
    run->UseManualTime();
    if (count >= 1'000'000)
        run->Iterations(1)->Repetitions(3); // enough, and long
}

void RegisterMemory(const Subject& subject, std::size_t count) {
    const std::string name = std::string("memory/") + subject.name + "/" + std::to_string(count);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&, count](benchmark::State& state) { RunMemory(state, subject.make, count); })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(1);
}

} // namespace

void RegisterTroubleCodeBenchmarks() {
    CheckSameData();
    for (std::size_t count = 1000; count <= 1'000'000; count *= 10)
        for (const Subject& subject : Subjects()) {
            for (const Workload& workload : g_workloads)
                Register(workload, subject, count);
            RegisterMemory(subject, count);
        }
    static const Workload removal{"remove-front", RemoveFromFront, Workload::onFilled};
    for (std::size_t count : {100'000, 200'000})
        Register(removal, Subjects().front(), count);
}

} // namespace Bench
