/// @file
/// The memory of what a model holds in great number.
#pragma once

#include <ImportDame/Export.h>

#include <cstddef>

namespace ImportDame::detail {

/// A block for an object of that size, aligned as every object of that size needs it. May be called by several threads.
/// Throws `std::bad_alloc` and then changed nothing.
[[nodiscard]] IMPORTDAME_API void* Allocate(std::size_t size);

/// Requires: the block is null or was allocated for that size, by whichever thread.
IMPORTDAME_API void Free(void* block, std::size_t size) noexcept;

/// Gives back the memory that is kept for the next model after the last one has died. Nothing else does before the
/// library is unloaded. May be called by several threads, also while there are models.
IMPORTDAME_API void ReleaseKept() noexcept;

/// Blocks for the standard containers.
template <class T>
struct Allocator {
    using value_type = T;

    Allocator() noexcept = default;

    template <class Other>
    Allocator(const Allocator<Other>&) noexcept {}

    [[nodiscard]] T* allocate(std::size_t count) { return static_cast<T*>(Allocate(count * sizeof(T))); }

    void deallocate(T* block, std::size_t count) noexcept { Free(block, count * sizeof(T)); }

    bool operator==(const Allocator&) const noexcept = default;
};

} // namespace ImportDame::detail
