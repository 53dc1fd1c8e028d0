#include "RatioReporter.h"

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace Bench {

namespace {

const std::string g_library = "library";

double Median(std::vector<double> samples) {
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

} // namespace

bool RatioReporter::ReportContext(const Context& context) {
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        const std::string name = run.run_name.function_name;
        if (run.error_occurred) {
            GetErrorStream() << name << ": " << run.error_message << '\n';
            continue;
        }
        const auto first = name.find('/');
        const auto second = name.find('/', first + 1);
        const std::string subject = name.substr(first + 1, second - first - 1);
        if (subject != g_library)
            m_peers.insert(subject);
        Samples& samples = m_results[{name.substr(0, first), std::stol(name.substr(second + 1))}][subject];
        if (const auto bytes = run.counters.find("bytes"); bytes != run.counters.end())
            samples.bytes.push_back(bytes->second.value);
        else
            samples.nanoseconds.push_back(run.GetAdjustedRealTime() / run.counters.at("elements").value);
    }
}

void RatioReporter::PrintLine(const Workload& workload, const Subjects& subjects, std::vector<double> Samples::*samples,
                              const char* unit) {
    const auto library = subjects.find(g_library);
    if (library == subjects.end() || (library->second.*samples).empty())
        return;
    const double own = Median(library->second.*samples);
    std::printf("%-22s %8ld %9.1f %-5s", workload.first.c_str(), workload.second, own, unit);
    for (const std::string& peer : m_peers) {
        const auto other = subjects.find(peer);
        if (other == subjects.end() || (other->second.*samples).empty())
            std::printf(" %9s", "");
        else
            std::printf(" %9.2f", own / Median(other->second.*samples));
    }
    std::printf("\n");
}

void RatioReporter::Finalize() {
    std::printf("%-22s %8s %15s", "workload", "elements", "per element");
    for (const std::string& peer : m_peers)
        std::printf(" %9s", peer.c_str());
    std::printf("\n");
    for (const auto& [workload, subjects] : m_results) {
        PrintLine(workload, subjects, &Samples::nanoseconds, "ns");
        PrintLine(workload, subjects, &Samples::bytes, "bytes");
    }
}

} // namespace Bench
