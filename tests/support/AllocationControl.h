/// @file
/// Lets single allocations of the library fail.
#pragma once

#include <ImportDame/Export.h>

#include <cstddef>

namespace TestSupport {

enum class FailureMode {
    once,    ///< One allocation fails.
    andLater ///< It and all that follow fail.
};

/// From now on the number-th allocation (from 1) fails with `std::bad_alloc`.
IMPORTDAME_API void FailAllocation(std::size_t number, FailureMode mode) noexcept;

/// Ends the failing; answers whether an allocation failed.
IMPORTDAME_API bool StopFailing() noexcept;

/// The number of blocks allocated and not yet freed.
IMPORTDAME_API std::size_t LiveBlocks() noexcept;

/// The number of blocks freed since the last call behind whose end somebody had written.
IMPORTDAME_API std::size_t TakeDamagedBlocks() noexcept;

/// Learns of every block just before it is freed; must neither allocate nor free.
using FreeObserver = void (*)(const void* block) noexcept;

/// From now on the observer is told; null ends it.
IMPORTDAME_API void ObserveFrees(FreeObserver observer) noexcept;

/// What operator new and delete do: a block that is counted, and that may fail.
IMPORTDAME_API void* Allocate(std::size_t size);
IMPORTDAME_API void Free(void* block) noexcept;

} // namespace TestSupport
