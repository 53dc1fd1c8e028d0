#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Bench {

/// Collects the runs of "workload/subject/size" and prints one line for each workload and size: the median of the
/// library, and its ratio to that of every other subject.
class RatioReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Samples {
        std::vector<double> nanoseconds;
        std::vector<double> bytes;
    };

    /// Its name and its number of elements.
    using Workload = std::pair<std::string, long>;
    using Subjects = std::map<std::string, Samples>;

    void PrintLine(const Workload& workload, const Subjects& subjects, std::vector<double> Samples::*samples,
                   const char* unit);

    std::map<Workload, Subjects> m_results;
    std::set<std::string> m_peers; ///< The subjects but the library.
};

} // namespace Bench
