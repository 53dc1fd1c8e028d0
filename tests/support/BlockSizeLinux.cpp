#include "support/BlockSize.h"

#include <malloc.h>

bool TestSupport::CanHaveSize(void* block, std::size_t size) noexcept {
    return ::malloc_usable_size(block) >= size;
}
