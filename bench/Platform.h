#pragma once

#include <cstddef>

namespace Bench {

/// What the blocks in use take of this process's memory, their headers included.
std::size_t HeapInUse();

/// A clock that, where the platform can, stands while other programs run.
double Seconds();

} // namespace Bench
