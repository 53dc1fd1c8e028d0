#include "KoLogging/Logging.h"

#include <vector>

namespace {

std::vector<std::wstring>& Records() {
    static std::vector<std::wstring> records;
    return records;
}

} // namespace

unsigned int CountOfRecords(const wchar_t* text) {
    unsigned int count = 0;
    for (const std::wstring& record : Records())
        count += record.find(text) != std::wstring::npos ? 1U : 0U;
    return count;
}

namespace NArdenaSharedUtil::Logging {

VDecoratedLogRecord::VDecoratedLogRecord(VSeverityLevel, unsigned long) {}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(const wchar_t* more) {
    text += more;
    return *this;
}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(const std::wstring& more) {
    text += more;
    return *this;
}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(unsigned int number) {
    text += std::to_wstring(number);
    return *this;
}

VLogging& VLogging::GetInstance() {
    static VLogging logging;
    return logging;
}

bool VLogging::IsEnabled() const {
    return true;
}

long VLogging::GetGlobalLogLevel() const {
    return 0;
}

unsigned long VLogging::GetGlobalLogGroupMask() const {
    return 1;
}

unsigned long VLogging::GetOrCreateGroupId(const char*) {
    return 1;
}

void VLogging::Log(VSeverityLevel, unsigned long, const wchar_t* text) {
    Records().emplace_back(text);
}

void VLogging::Log(const VDecoratedLogRecord& record) {
    Records().push_back(record.text);
}

} // namespace NArdenaSharedUtil::Logging
