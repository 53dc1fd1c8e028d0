#pragma once

#include "KoLogging/Logging.h"

#include <string>

namespace NArdenaSharedUtil::Logging {

/// Writes each record to standard error as UTF-8 text, with the time (UTC), the group and the severity before it:
/// `2026-01-31T23:59:59.999Z GroupDimex error: The text`.
class StandardErrorSink final : public VLogSink {
public:
    /// \p log answers the names of the groups and outlives the sink.
    explicit StandardErrorSink(const VLogging& log);

    void Write(VSeverityLevel severity, unsigned long group, const wchar_t* text) override;

private:
    const VLogging& m_log;
};

} // namespace NArdenaSharedUtil::Logging
