#include "core/OneThread.h"

#include <sys/single_threaded.h>

bool ImportDame::detail::HasOneThread() noexcept {
    return __libc_single_threaded != 0;
}
