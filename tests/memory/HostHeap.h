#pragma once

namespace TestSupport {

/// While this lives, the program's own operator new fails.
class ClosedHostHeap {
public:
    ClosedHostHeap() noexcept;
    ClosedHostHeap(const ClosedHostHeap&) = delete;
    ClosedHostHeap& operator=(const ClosedHostHeap&) = delete;
    ~ClosedHostHeap();
};

} // namespace TestSupport
