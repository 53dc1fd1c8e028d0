#include "core/Threads.h"

#include <linux/membarrier.h>
#include <sys/single_threaded.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ImportDame::detail {

namespace {

/// Has an address of its own in each thread, which two instructions tell.
[[gnu::tls_model("initial-exec")]] constinit thread_local char t_ofThread = 0;

} // namespace

bool HasOneThread() noexcept {
    return __libc_single_threaded != 0;
}

void* ThisThread() noexcept {
    return &t_ofThread;
}

bool CanFenceAllThreads() noexcept {
    return syscall(SYS_membarrier, MEMBARRIER_CMD_REGISTER_PRIVATE_EXPEDITED, 0, 0) == 0;
}

void FenceAllThreads() noexcept {
    syscall(SYS_membarrier, MEMBARRIER_CMD_PRIVATE_EXPEDITED, 0, 0);
}

} // namespace ImportDame::detail
