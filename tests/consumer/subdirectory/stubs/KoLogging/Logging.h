#pragma once

#include <string>

/// The least log that ImportDataModel can be linked with.
namespace NArdenaSharedUtil::Logging {

enum VSeverityLevel : int { mostSevere = 0 };

class VDecoratedLogRecord {
public:
    VDecoratedLogRecord(VSeverityLevel severity, unsigned long group);
    VDecoratedLogRecord& operator<<(const wchar_t* text);
    VDecoratedLogRecord& operator<<(const std::wstring& text);
    VDecoratedLogRecord& operator<<(unsigned int number);

    std::wstring text;
};

class VLogging {
public:
    static VLogging& GetInstance();
    bool IsEnabled() const;
    long GetGlobalLogLevel() const;
    unsigned long GetGlobalLogGroupMask() const;
    unsigned long GetOrCreateGroupId(const char* name);
    void Log(VSeverityLevel severity, unsigned long group, const wchar_t* text);
    void Log(const VDecoratedLogRecord& record);
};

} // namespace NArdenaSharedUtil::Logging

/// How many records so far held the text.
unsigned int CountOfRecords(const wchar_t* text);
