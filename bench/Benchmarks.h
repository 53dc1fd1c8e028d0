#pragma once

#include <filesystem>

namespace Bench {

void RegisterModelBenchmarks();
void RegisterNumberBenchmarks();

/// The folder is that of this program.
void RegisterLoadBenchmarks(const std::filesystem::path& folder);

} // namespace Bench
