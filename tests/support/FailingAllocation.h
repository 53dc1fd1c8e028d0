/// @file
/// Runs a scenario with every one of its allocations failing.
#pragma once

#include "support/AllocationControl.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <source_location>

namespace TestSupport {

namespace Internal {

/// One run; answers whether an allocation failed in it.
template <class Prepare, class Operation, class Verify>
bool RunWithFailure(std::size_t number, FailureMode mode, Prepare prepare, Operation operation, Verify verify) {
    auto state = prepare();
    bool threw = false;
    FailAllocation(number, mode);
    try {
        operation(*state);
    } catch (const std::bad_alloc&) {
        threw = true;
    } catch (...) {
        StopFailing();
        throw;
    }
    const bool failed = StopFailing();
    EXPECT_EQ(threw, failed) << "allocation " << number << " failed without the caller learning of it";
    if (failed)
        verify(*state);
    return failed;
}

} // namespace Internal

/// Runs the operation with its first, its second, … allocation failing, until it passes untouched.
///
/// `prepare` returns a pointer-like state, made anew for every run; `operation(state)` has to let `std::bad_alloc` out
/// when one of its allocations fails; `verify(state)` then looks whether everything is as it was. Nothing may be left
/// allocated when the state is gone. Answers the number of failures survived.
template <class Prepare, class Operation, class Verify>
std::size_t ForEachFailingAllocation(Prepare prepare, Operation operation, Verify verify,
                                     const std::source_location& where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "failing allocations");
    std::size_t survived = 0;
    for (const FailureMode mode : {FailureMode::once, FailureMode::andLater}) {
        for (std::size_t number = 1; !testing::Test::HasFailure(); ++number) {
            const std::size_t before = LiveBlocks();
            const bool failed = Internal::RunWithFailure(number, mode, prepare, operation, verify);
            EXPECT_EQ(LiveBlocks(), before) << "leak after the failure of allocation " << number;
            EXPECT_EQ(TakeDamagedBlocks(), 0U) << "write behind a block after the failure of allocation " << number;
            if (!failed)
                break;
            ++survived;
        }
    }
    return survived;
}

} // namespace TestSupport
