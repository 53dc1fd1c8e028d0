#include "support/AllocationControl.h"

#include "support/BlockSize.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <mutex>
#include <new>
#include <unordered_map>
#include <utility>

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

/// Stands behind every block; whoever writes behind a block damages it.
constexpr std::array<unsigned char, 16> g_guard = {0xFD, 0xFE, 0xFD, 0xFE, 0xFD, 0xFE, 0xFD, 0xFE,
                                                   0xFD, 0xFE, 0xFD, 0xFE, 0xFD, 0xFE, 0xFD, 0xFE};

using Sizes = std::unordered_map<void*, std::size_t, std::hash<void*>, std::equal_to<>,
                                 UncountedAllocator<std::pair<void* const, std::size_t>>>;

/// The blocks are known one by one: another library's allocation may be freed here.
struct Bookkeeping {
    std::mutex mutex;
    Sizes live;
    std::size_t freedElsewhere = 0; // known once, freed by another library, and that seen by now
    std::size_t damaged = 0;
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

void LookAtAndOverwrite(Bookkeeping& books, unsigned char* block, std::size_t size) noexcept {
    if (std::memcmp(block + size, g_guard.data(), g_guard.size()) != 0)
        ++books.damaged;
    std::memset(block, 0xDD, size); // what is read after it was freed shows
}

} // namespace

void* Allocate(std::size_t size) {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    void* const block = HasToFail(books) ? nullptr : std::malloc(size + g_guard.size());
    if (!block)
        throw std::bad_alloc();
    std::memset(block, 0xCD, size); // what is read before it is written shows
    std::memcpy(static_cast<unsigned char*>(block) + size, g_guard.data(), g_guard.size());
    if (!books.live.insert_or_assign(block, size).second)
        ++books.freedElsewhere;
    return block;
}

void Free(void* block) noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    if (books.freeObserver)
        books.freeObserver(block);
    if (const auto found = books.live.find(block); found != books.live.end()) {
        // Another library may have freed the block that was known and allocated this one in its place.
        if (const std::size_t size = found->second; CanHaveSize(block, size + g_guard.size()))
            LookAtAndOverwrite(books, static_cast<unsigned char*>(block), size);
        else
            ++books.freedElsewhere;
        books.live.erase(found);
    }
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
    return books.live.size() + books.freedElsewhere;
}

std::size_t TakeDamagedBlocks() noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    return std::exchange(books.damaged, 0);
}

void ObserveFrees(FreeObserver observer) noexcept {
    Bookkeeping& books = TheBookkeeping();
    const std::lock_guard lock(books.mutex);
    books.freeObserver = observer;
}

} // namespace TestSupport
