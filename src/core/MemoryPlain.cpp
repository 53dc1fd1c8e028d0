#include <ImportDame/detail/Memory.h>

#include <new>

// Every block on its own, so that tools which watch the allocator see each of them.

namespace ImportDame::detail {

void* Allocate(std::size_t size) {
    return ::operator new(size);
}

void Free(void* block, std::size_t) noexcept {
    ::operator delete(block);
}

void ReleaseKept() noexcept {}

} // namespace ImportDame::detail
