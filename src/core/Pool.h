#pragma once

#include "core/FavoringLock.h"

#include <array>
#include <atomic>
#include <cstddef>

namespace ImportDame::detail {

/// Small blocks without headers, cut from slabs in the order in which they are asked for.
///
/// A freed block serves the next request for its size. When the last block is freed, some slabs are kept for the next
/// model, so that the system does not have to take and give all of its pages again; the others go back to where they
/// came from: `::operator new`, which serves large blocks as well. Slabs double in size, so that a small model takes
/// little. Safe to use by several threads; no thread keeps anything. Costs nothing before its first use.
class Pool {
public:
    constexpr Pool() noexcept = default;
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    /// A block aligned to 8 bytes, or to 16 where the size is a multiple of that. Throws `std::bad_alloc` and then
    /// changed nothing.
    [[nodiscard]] void* Allocate(std::size_t size);

    /// Requires: the block was allocated for that size.
    void Free(void* block, std::size_t size) noexcept;

    /// Gives back the slabs that are kept. Takes no lock: when a process ends, a thread may have been ended inside.
    void ReleaseKept() noexcept;

private:
    static constexpr std::size_t s_grain = 8;
    static constexpr std::size_t s_largestBlock = 512;
    static constexpr std::size_t s_smallestSlab = std::size_t{8} * 1024;
    static constexpr std::size_t s_largestSlab = std::size_t{256} * 1024;
    static constexpr std::size_t s_mostKept = std::size_t{32} * 1024 * 1024;

    struct FreeBlock {
        FreeBlock* next;
    };

    struct alignas(16) Slab {
        Slab* previous;
        std::size_t size;
        std::size_t keptSize; ///< Of a kept slab: its size and that of all behind it.
    };

    static std::size_t Grains(std::size_t size) noexcept;

    void* Take(std::size_t grains) noexcept;
    void* Cut(std::size_t size) noexcept;
    [[gnu::cold]] void AddSlab();
    bool ReuseSlab() noexcept;
    void CutFrom(Slab* slab) noexcept;
    [[gnu::cold]] Slab* Rewind() noexcept;
    static void Release(Slab* slabs) noexcept;

    FavoringLock m_lock;
    std::size_t m_blocksInUse = 0;
    std::atomic<std::size_t> m_nextSlabSize = s_smallestSlab;
    Slab* m_slabs = nullptr;
    std::atomic<Slab*> m_keptSlabs = nullptr;
    char* m_front = nullptr; ///< Blocks of an even number of grains are cut here, so that they are aligned to 16.
    char* m_back = nullptr;  ///< All others are cut here.
    std::array<FreeBlock*, s_largestBlock / s_grain + 1> m_freeBlocks{}; ///< By number of grains.
};

} // namespace ImportDame::detail
