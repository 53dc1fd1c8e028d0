#include "core/Pool.h"

#include <algorithm>
#include <new>
#include <utility>

namespace ImportDame::detail {

namespace {

/// Left to the allocator behind, so that a slab with its header fills whole pages.
constexpr std::size_t g_foreignHeader = 64;

} // namespace

void* Pool::Allocate(std::size_t size) {
    if (size > s_largestBlock)
        return ::operator new(size);
    const std::size_t grains = Grains(size);
    for (;;) {
        if (void* const block = Take(grains))
            return block;
        AddSlab();
    }
}

void Pool::Free(void* block, std::size_t size) noexcept {
    if (size > s_largestBlock)
        return ::operator delete(block);
    const std::size_t grains = Grains(size);
    Slab* surplus = nullptr;
    {
        const FavoringLock::Guard lock(m_lock);
        m_freeBlocks[grains] = ::new (block) FreeBlock{m_freeBlocks[grains]};
        if (--m_blocksInUse == 0)
            surplus = Rewind();
    }
    Release(surplus);
}

void Pool::ReleaseKept() noexcept {
    Release(m_keptSlabs.exchange(nullptr));
}

std::size_t Pool::Grains(std::size_t size) noexcept {
    return std::max<std::size_t>(1, (size + s_grain - 1) / s_grain);
}

/// A block, or null when a slab has to be added first.
void* Pool::Take(std::size_t grains) noexcept {
    const FavoringLock::Guard lock(m_lock);
    void* block = m_freeBlocks[grains];
    if (block)
        m_freeBlocks[grains] = m_freeBlocks[grains]->next;
    else
        block = Cut(grains * s_grain);
    if (block)
        ++m_blocksInUse;
    return block;
}

/// A block of the current slab that was never used, or null when the slab has no room for it.
void* Pool::Cut(std::size_t size) noexcept {
    if (static_cast<std::size_t>(m_back - m_front) < size)
        return nullptr;
    return size % 16 == 0 ? std::exchange(m_front, m_front + size) : m_back -= size;
}

void Pool::AddSlab() {
    if (ReuseSlab())
        return;
    const std::size_t size = m_nextSlabSize.load(std::memory_order_relaxed) - g_foreignHeader;
    void* const memory = ::operator new(size); // not under the lock: it is foreign code
    const FavoringLock::Guard lock(m_lock);
    CutFrom(::new (memory) Slab{nullptr, size, 0});
}

/// Whether there was a kept slab to add.
bool Pool::ReuseSlab() noexcept {
    const FavoringLock::Guard lock(m_lock);
    Slab* const slab = m_keptSlabs.exchange(nullptr);
    if (!slab)
        return false;
    m_keptSlabs = slab->previous;
    CutFrom(slab);
    return true;
}

void Pool::CutFrom(Slab* slab) noexcept {
    slab->previous = std::exchange(m_slabs, slab);
    m_front = reinterpret_cast<char*>(slab + 1);
    m_back = reinterpret_cast<char*>(slab) + slab->size;
    m_nextSlabSize = std::min((slab->size + g_foreignHeader) * 2, s_largestSlab);
}

/// Empties the pool, whose blocks have all been freed. Keeps slabs, the newest first, and hands out the others.
Pool::Slab* Pool::Rewind() noexcept {
    m_freeBlocks.fill(nullptr);
    m_front = m_back = nullptr;
    m_nextSlabSize = s_smallestSlab;
    Slab* kept = m_keptSlabs.exchange(nullptr);
    while (m_slabs) {
        m_slabs->keptSize = m_slabs->size + (kept ? kept->keptSize : 0);
        if (m_slabs->keptSize > s_mostKept)
            break;
        Slab* const next = std::exchange(m_slabs->previous, kept);
        kept = std::exchange(m_slabs, next);
    }
    m_keptSlabs = kept;
    return std::exchange(m_slabs, nullptr);
}

void Pool::Release(Slab* slabs) noexcept {
    while (slabs)
        ::operator delete(std::exchange(slabs, slabs->previous));
}

} // namespace ImportDame::detail
