#include "core/Pool.h"

#include "core/OneThread.h"

#include <algorithm>
#include <new>
#include <thread>
#include <utility>

namespace ImportDame::detail {

namespace {

/// Left to the allocator behind, so that a slab with its header fills whole pages.
constexpr std::size_t g_foreignHeader = 64;

} // namespace

void SpinLock::lock() noexcept {
    while (!HasOneThread() && m_isLocked.test_and_set(std::memory_order_acquire))
        std::this_thread::yield();
}

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
    Slab* unused = nullptr;
    {
        const std::lock_guard lock(m_lock);
        m_freeBlocks[grains] = ::new (block) FreeBlock{m_freeBlocks[grains]};
        if (--m_blocksInUse == 0)
            unused = TakeSlabs();
    }
    while (unused)
        ::operator delete(std::exchange(unused, unused->previous));
}

std::size_t Pool::Grains(std::size_t size) noexcept {
    return std::max<std::size_t>(1, (size + s_grain - 1) / s_grain);
}

/// A block, or null when a slab has to be added first.
void* Pool::Take(std::size_t grains) noexcept {
    const std::lock_guard lock(m_lock);
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
    const std::size_t size = m_nextSlabSize.load(std::memory_order_relaxed) - g_foreignHeader;
    void* const memory = ::operator new(size); // not under the lock: it is foreign code
    const std::lock_guard lock(m_lock);
    m_slabs = ::new (memory) Slab{m_slabs};
    m_front = static_cast<char*>(memory) + sizeof(Slab);
    m_back = static_cast<char*>(memory) + size;
    m_nextSlabSize = std::min((size + g_foreignHeader) * 2, s_largestSlab);
}

/// Empties the pool, whose blocks have all been freed.
Pool::Slab* Pool::TakeSlabs() noexcept {
    m_freeBlocks.fill(nullptr);
    m_front = m_back = nullptr;
    m_nextSlabSize = s_smallestSlab;
    return std::exchange(m_slabs, nullptr);
}

} // namespace ImportDame::detail
