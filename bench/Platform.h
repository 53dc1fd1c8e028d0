#pragma once

#include <cstddef>
#include <filesystem>

namespace Bench {

/// What the blocks in use take of this process's memory, their headers included.
std::size_t HeapInUse();

/// A clock; where the system has a fine one for it, one that stands while other programs run.
double Seconds();

/// Loads a shared library that is not loaded yet and takes it out again. Throws where that fails.
void LoadAndUnload(const std::filesystem::path& library);

} // namespace Bench
