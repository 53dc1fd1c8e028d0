// operator new and delete of whoever is linked with this file.

#include "support/AllocationControl.h"

#include <new>

void* operator new(std::size_t size) {
    return TestSupport::Allocate(size);
}

void* operator new[](std::size_t size) {
    return TestSupport::Allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return TestSupport::Allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* block) noexcept {
    TestSupport::Free(block);
}

void operator delete[](void* block) noexcept {
    TestSupport::Free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    TestSupport::Free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    TestSupport::Free(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    TestSupport::Free(block);
}
