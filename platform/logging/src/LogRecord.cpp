#include "KoLogging/Logging.h"

namespace NArdenaSharedUtil::Logging {

VDecoratedLogRecord::VDecoratedLogRecord(VSeverityLevel severity, unsigned long group)
    : m_severity(severity), m_group(group) {}

VDecoratedLogRecord::VDecoratedLogRecord(const VDecoratedLogRecord& other) = default;
VDecoratedLogRecord& VDecoratedLogRecord::operator=(const VDecoratedLogRecord& other) = default;
VDecoratedLogRecord::~VDecoratedLogRecord() = default;

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(const wchar_t* text) {
    if (text != nullptr) {
        m_text += text;
    }
    return *this;
}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(const std::wstring& text) {
    m_text += text;
    return *this;
}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(unsigned int number) {
    return *this << std::to_wstring(number);
}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(unsigned long number) {
    return *this << std::to_wstring(number);
}

VDecoratedLogRecord& VDecoratedLogRecord::operator<<(unsigned long long number) {
    return *this << std::to_wstring(number);
}

VSeverityLevel VDecoratedLogRecord::GetSeverity() const noexcept {
    return m_severity;
}

unsigned long VDecoratedLogRecord::GetGroup() const noexcept {
    return m_group;
}

const wchar_t* VDecoratedLogRecord::GetText() const noexcept {
    return m_text.c_str();
}

} // namespace NArdenaSharedUtil::Logging
