#pragma once

#include "Harness.h"

#include <ImportDame/LgAssertException.h>

namespace Fuzz {

/// The operation has to break the precondition with this error code.
template <class Operation>
void ExpectFailedCheck(int errorCode, Operation operation) {
    try {
        operation();
    } catch (const VLgAssertException& failure) {
        Expect(failure.GetErrorCode() == errorCode, "another check failed");
        return;
    }
    throw Finding("no check failed");
}

} // namespace Fuzz
