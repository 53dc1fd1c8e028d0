#include "core/OneThread.h"

// Windows starts threads of its own in every process and tells nobody how many there are.
bool ImportDame::detail::HasOneThread() noexcept {
    return false;
}
