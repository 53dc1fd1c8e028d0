#include "memory/HostHeap.h"

#include "support/AllocationControl.h"

namespace TestSupport {

ClosedHostHeap::ClosedHostHeap() noexcept {
    FailAllocation(1, FailureMode::andLater);
}

ClosedHostHeap::~ClosedHostHeap() {
    StopFailing();
}

} // namespace TestSupport
