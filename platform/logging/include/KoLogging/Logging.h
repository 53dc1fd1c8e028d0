#pragma once

#include "KoLogging/Export.h"

#include <cstdint>
#include <memory>
#include <string>

namespace NArdenaSharedUtil::Logging {

/// How grave a record is, from 0 (an error) up to 3 (for whoever looks for one).
enum VSeverityLevel : std::int32_t {
    severityError = 0,
    severityWarning = 1,
    severityInformation = 2,
    severityDebug = 3,
};

/// Receives every record that is logged, one call at a time.
class KOLOGGING_API VLogSink {
public:
    VLogSink() = default;
    VLogSink(const VLogSink&) = delete;
    VLogSink& operator=(const VLogSink&) = delete;
    virtual ~VLogSink();

    /// \p text is the record without any decoration, never null, and valid during the call only. A sink must not log.
    virtual void Write(VSeverityLevel severity, unsigned long group, const wchar_t* text) = 0;
};

/// A record that is put together piece by piece and then handed to VLogging::Log.
class KOLOGGING_API VDecoratedLogRecord {
public:
    /// An empty record.
    VDecoratedLogRecord(VSeverityLevel severity, unsigned long group);
    VDecoratedLogRecord(const VDecoratedLogRecord& other);
    VDecoratedLogRecord& operator=(const VDecoratedLogRecord& other);
    ~VDecoratedLogRecord();

    /// Append a text (null appends nothing) or a number in plain decimal digits.
    VDecoratedLogRecord& operator<<(const wchar_t* text);
    VDecoratedLogRecord& operator<<(const std::wstring& text);
    VDecoratedLogRecord& operator<<(unsigned int number);
    VDecoratedLogRecord& operator<<(unsigned long number);
    VDecoratedLogRecord& operator<<(unsigned long long number);

    /// As given at the beginning.
    VSeverityLevel GetSeverity() const noexcept;

    /// The bit of the group, as given at the beginning.
    unsigned long GetGroup() const noexcept;
    /// Valid until the record is changed or dies.
    const wchar_t* GetText() const noexcept;

private:
    VSeverityLevel m_severity;
    unsigned long m_group;
    std::wstring m_text;
};

/// The one log of the process. Every operation may be called from any thread.
///
/// Who logs decides whether to: IsEnabled, GetGlobalLogLevel and GetGlobalLogGroupMask answer what the host wishes, and
/// Log writes whatever it is given. At first the log is enabled, at level 0, for all groups, and writes to standard
/// error.
class KOLOGGING_API VLogging {
public:
    /// Lives as long as the process.
    static VLogging& GetInstance();

    VLogging(const VLogging&) = delete;
    VLogging& operator=(const VLogging&) = delete;

    /// Whether anything is to be logged at all.
    bool IsEnabled() const noexcept;

    /// Sets what `IsEnabled` answers.
    void SetEnabled(bool enabled) noexcept;

    /// Records of a severity up to the level are wished for; below 0 none are.
    long GetGlobalLogLevel() const noexcept;
    void SetGlobalLogLevel(long level) noexcept;

    /// The groups wished for, one bit each.
    unsigned long GetGlobalLogGroupMask() const noexcept;
    void SetGlobalLogGroupMask(unsigned long mask) noexcept;

    /// Answers the bit of the group \p name (not null), the same at every call. The first 31 names get a bit each; all
    /// later ones share the 32nd, so that a mask can still silence them, if only together.
    unsigned long GetOrCreateGroupId(const char* name);

    /// The name behind the bit \p group, or "group" and its number where no single name stands behind it.
    std::string GetGroupName(unsigned long group) const;

    /// Writes one record; a null \p text is an empty one. What the sink throws is swallowed, and the record lost.
    void Log(VSeverityLevel severity, unsigned long group, const wchar_t* text);

    /// The same with the severity, the group and the text of the record.
    void Log(const VDecoratedLogRecord& record);

    /// Sends all further records to \p sink, which the caller keeps and must replace before it dies; null restores
    /// standard error. On return no record is being written to the sink before.
    void SetSink(VLogSink* sink);

private:
    class Impl;

    VLogging();
    ~VLogging();

    const std::unique_ptr<Impl> m_impl;
};

} // namespace NArdenaSharedUtil::Logging
