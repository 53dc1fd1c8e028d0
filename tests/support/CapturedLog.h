/// @file
/// What the library logs, for tests to look at.
#pragma once

#include <KoLogging/Logging.h>

#include <string>
#include <vector>

namespace TestSupport {

/// While it lives, the log is enabled for all groups at level 0 and its records come here. One at a time.
class CapturedLog : private NArdenaSharedUtil::Logging::VLogSink {
public:
    struct Record {
        int severity;
        unsigned long group;
        std::wstring text;
    };

    CapturedLog() {
        Restore();
        NArdenaSharedUtil::Logging::VLogging::GetInstance().SetSink(this);
    }

    ~CapturedLog() override {
        NArdenaSharedUtil::Logging::VLogging::GetInstance().SetSink(nullptr);
        Restore();
    }

    [[nodiscard]] const std::vector<Record>& Records() const { return m_records; }

    [[nodiscard]] std::vector<std::wstring> Lines() const {
        std::vector<std::wstring> lines;
        for (const Record& record : m_records)
            lines.push_back(record.text);
        return lines;
    }

private:
    static void Restore() {
        auto& logging = NArdenaSharedUtil::Logging::VLogging::GetInstance();
        logging.SetEnabled(true);
        logging.SetGlobalLogLevel(0);
        logging.SetGlobalLogGroupMask(~0UL);
    }

    void Write(NArdenaSharedUtil::Logging::VSeverityLevel severity, unsigned long group, const wchar_t* text) override {
        m_records.push_back({static_cast<int>(severity), group, text});
    }

    std::vector<Record> m_records;
};

} // namespace TestSupport
