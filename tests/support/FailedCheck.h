/// @file
/// Expects that an operation breaks a precondition.
#pragma once

#include "support/CapturedLog.h"

#include <ImportDame/LgAssertException.h>

#include <gtest/gtest.h>

#include <source_location>
#include <string>

namespace TestSupport {

/// A row of the table of checks, as the test knows it.
struct FailedCheck {
    int errorCode;
    const char* expression;
    const char* sourceFile;
    int line;
};

inline std::wstring Widen(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

/// The first message of the failure report.
inline std::wstring FailureMessage(const FailedCheck& check) {
    return L"\nAn unexpected error occurred. The current import operation must be aborted. Please try to import again. "
           L"If the issue persists, the following information might help Tessaly to provide you with a solution as "
           L"quickly as possible: Error code '" +
           std::to_wstring(check.errorCode) + L"'. Expression: '" + Widen(check.expression) + L"'. File: '" +
           Widen(check.sourceFile) + L"'. Line: '" + std::to_wstring(check.line) + L"'. Version: '1.0.0'. ";
}

/// Runs the operation and expects the failure report of exactly this check: one message, then the exception.
template <class Operation>
void ExpectFailedCheck(const FailedCheck& expected, Operation operation,
                       const std::source_location& where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), expected.errorCode);
    const CapturedLog log;
    try {
        operation();
        ADD_FAILURE() << "no check failed";
    } catch (const VLgAssertException& failure) {
        EXPECT_EQ(failure.GetErrorCode(), expected.errorCode);
        EXPECT_STREQ(failure.GetExpression(), expected.expression);
    }
    EXPECT_EQ(log.Lines(), std::vector<std::wstring>{FailureMessage(expected)});
}

} // namespace TestSupport
