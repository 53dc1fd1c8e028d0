#ifndef BENCH_IMPORT_CHILDPROCESS_H
#define BENCH_IMPORT_CHILDPROCESS_H

#include <string>
#include <vector>

namespace Bench {

/// What a process took, from its start to its end.
struct Usage {
    double seconds = 0.0;
    double cpuSeconds = 0.0; ///< of all its threads, in the kernel included
    double peakBytes = 0.0;  ///< most memory that was resident at one time
};

/// Runs a program to its end. Throws std::runtime_error when it cannot be started or fails.
Usage RunProcess(const std::vector<std::string>& command);

} // namespace Bench

#endif
