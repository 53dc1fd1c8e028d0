#include "support/AllocationControl.h"

#include <cstdlib>
#include <functional>
#include <limits>
#include <mutex>
#include <new>
#include <unordered_set>

namespace TestSupport {

namespace {

/// Keeps the bookkeeping out of what it counts.
template <class T>
struct UncountedAllocator {
    using value_type = T;

    UncountedAllocator() = default;

    template <class Other>
    UncountedAllocator(const UncountedAllocator<Other>&) noexcept {}

    T* allocate(std::size_t count) {
        if (void* block = std::malloc(count * sizeof(T)))
            return static_cast<T*>(block);
        throw std::bad_alloc();
    }

    void deallocate(T* block, std::size_t) noexcept { std::free(block); }

    bool operator==(const UncountedAllocator&) const noexcept = default;
};

constexpr std::size_t g_never = std::numeric_limits<std::size_t>::max();

/// The blocks are known one by one: another library's allocation may be freed here.
struct Bookkeeping {
    std::mutex mutex;
    std::unordered_set<void*, std::hash<void*>, std::equal_to<>, UncountedAllocator<void*>> live;
    std::size_t untilFailure = g_never;
    FailureMode mode = FailureMode::once;
    bool failed = false;
    FreeObserver freeObserver = nullptr;
};

Bookkeeping& TheBookkeeping() {
    // Never destroyed: blocks are freed until the very end of the process.
    static auto& bookkeeping = *::new (std::malloc(sizeof(Bookkeeping))) Bookkeeping;
    return bookkeeping;
}

bool HasToFail(Bookkeeping& books) noexcept {
    if (books.untilFailure == g_never || --books.untilFailure > 0)
        return false;
    books.untilFailure = books.mode == FailureMode::once ? g_never : 1;
    return books.failed = true;
}

} // namespace

void* Allocate(std::size_t size) {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    void* const block = HasToFail(books) ? nullptr : std::malloc(size ? size : 1);
    if (!block)
        throw std::bad_alloc();
    books.live.insert(block);
    return block;
}

void Free(void* block) noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    if (books.freeObserver)
        books.freeObserver(block);
    books.live.erase(block);
    std::free(block);
}

void FailAllocation(std::size_t number, FailureMode mode) noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    books.untilFailure = number;
    books.mode = mode;
    books.failed = false;
}

bool StopFailing() noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    books.untilFailure = g_never;
    return books.failed;
}

std::size_t LiveBlocks() noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    return books.live.size();
}

void ObserveFrees(FreeObserver observer) noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    books.freeObserver = observer;
}

} // namespace TestSupport
