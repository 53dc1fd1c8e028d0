#pragma once

#include <KoCustomCrashHandling/CustomCrashHandling.h>
#include <KoLogging/Logging.h>

#include <string>
#include <vector>

/// The records that are logged while it lives.
class Reports : NArdenaSharedUtil::Logging::VLogSink {
public:
    Reports() {
        NArdenaSharedUtil::Logging::VLogging::GetInstance().SetSink(this);
        NCustomCrashHandling::SetDumpWriter(nullptr);
    }

    ~Reports() override { NArdenaSharedUtil::Logging::VLogging::GetInstance().SetSink(nullptr); }

    /// How many of them hold the text.
    unsigned int Count(const wchar_t* text) const {
        unsigned int count = 0;
        for (const std::wstring& record : m_records)
            count += record.find(text) != std::wstring::npos ? 1U : 0U;
        return count;
    }

private:
    void Write(NArdenaSharedUtil::Logging::VSeverityLevel, unsigned long, const wchar_t* text) override {
        m_records.emplace_back(text);
    }

    std::vector<std::wstring> m_records;
};
