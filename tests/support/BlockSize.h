/// @file
/// What the C runtime knows of its blocks, one source file per platform.
#pragma once

#include <cstddef>

namespace TestSupport {

/// Whether a block of `malloc` can be one of that size in bytes.
bool CanHaveSize(void* block, std::size_t size) noexcept;

} // namespace TestSupport
