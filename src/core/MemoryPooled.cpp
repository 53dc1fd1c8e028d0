#include <ImportDame/detail/Memory.h>

#include "core/Pool.h"

namespace ImportDame::detail {

namespace {

/// Never dies: objects of the host may outlive whatever ends with the library.
constinit Pool g_pool;

struct KeptMemory {
    ~KeptMemory() { ReleaseKept(); }
};

} // namespace

void* Allocate(std::size_t size) {
    static const KeptMemory ending; // released with the library, and only where it was used
    return g_pool.Allocate(size);
}

void Free(void* block, std::size_t size) noexcept {
    if (block)
        g_pool.Free(block, size);
}

void ReleaseKept() noexcept {
    g_pool.ReleaseKept();
}

} // namespace ImportDame::detail
