/// @file
/// The one exception of the library.
#pragma once

#include <ImportDame/Export.h>

/// Thrown by value when a precondition of an operation is broken; the operation has then changed nothing. The import
/// that caught it is to be abandoned.
class IMPORTDAME_API VLgAssertException {
public:
    /// Requires: expression outlives every copy of the exception (a literal).
    VLgAssertException(const char* expression, int errorCode) noexcept;

    /// The condition that did not hold, as it stands at the check.
    const char* GetExpression() const noexcept;

    /// The number of the check, six digits.
    int GetErrorCode() const noexcept;

private:
    const char* m_expression;
    int m_errorCode;
};
