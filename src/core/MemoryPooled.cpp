#include <ImportDame/detail/Memory.h>

#include "core/Pool.h"

namespace ImportDame::detail {

namespace {

constinit Pool g_pool;

} // namespace

void* Allocate(std::size_t size) {
    return g_pool.Allocate(size);
}

void Free(void* block, std::size_t size) noexcept {
    if (block)
        g_pool.Free(block, size);
}

} // namespace ImportDame::detail
