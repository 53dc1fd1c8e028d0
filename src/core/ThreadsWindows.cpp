#include "core/Threads.h"

#include <chrono>
#include <thread>
#include <windows.h>

namespace ImportDame::detail {

// Windows starts threads of its own in every process and tells nobody how many there are.
bool HasOneThread() noexcept {
    return false;
}

void* ThisThread() noexcept {
    return NtCurrentTeb();
}

bool CanFenceAllThreads() noexcept {
    return true;
}

// Wine 8 does nothing when it is asked to flush. No processor holds a write back for as long as this waits.
void FenceAllThreads() noexcept {
    constexpr std::chrono::microseconds longEnough{100};
    FlushProcessWriteBuffers();
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < longEnough)
        std::this_thread::yield();
}

} // namespace ImportDame::detail
