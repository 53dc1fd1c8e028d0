#include "KoLogging/Logging.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace NArdenaSharedUtil::Logging;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

struct Record {
    VSeverityLevel severity;
    unsigned long group;
    std::wstring text;

    bool operator==(const Record&) const = default;
};

class RecordingSink : public VLogSink {
public:
    void Write(VSeverityLevel severity, unsigned long group, const wchar_t* text) override {
        m_records.push_back({severity, group, text});
    }

    std::vector<Record> m_records;
};

class LoggingTest : public testing::Test {
protected:
    ~LoggingTest() override {
        m_log.SetSink(nullptr);
        m_log.SetEnabled(true);
        m_log.SetGlobalLogLevel(0);
        m_log.SetGlobalLogGroupMask(~0UL);
    }

    /// What standard error receives for one record.
    std::string Logged(VSeverityLevel severity, unsigned long group, const wchar_t* text) {
        testing::internal::CaptureStderr();
        m_log.Log(severity, group, text);
        std::string logged = testing::internal::GetCapturedStderr();
        std::erase(logged, '\r');
        return logged;
    }

    VLogging& m_log = VLogging::GetInstance();
    RecordingSink m_sink;
};

TEST_F(LoggingTest, ThereIsOneInstance) {
    EXPECT_EQ(&VLogging::GetInstance(), &VLogging::GetInstance());
}

TEST_F(LoggingTest, IsEnabledAtLevelZeroForAllGroupsAtFirst) {
    EXPECT_TRUE(m_log.IsEnabled());
    EXPECT_EQ(m_log.GetGlobalLogLevel(), 0);
    EXPECT_EQ(m_log.GetGlobalLogGroupMask(), std::numeric_limits<unsigned long>::max());
}

TEST_F(LoggingTest, KeepsWhatTheHostWishes) {
    m_log.SetEnabled(false);
    m_log.SetGlobalLogLevel(-1);
    m_log.SetGlobalLogGroupMask(5);
    EXPECT_FALSE(m_log.IsEnabled());
    EXPECT_EQ(m_log.GetGlobalLogLevel(), -1);
    EXPECT_EQ(m_log.GetGlobalLogGroupMask(), 5U);
}

TEST_F(LoggingTest, ASinkReceivesTheBareRecord) {
    m_log.SetSink(&m_sink);
    m_log.Log(severityWarning, 4, L"\nFirst \u00e4\u20ac");
    EXPECT_THAT(m_sink.m_records, ElementsAre(Record{severityWarning, 4, L"\nFirst \u00e4\u20ac"}));
}

TEST_F(LoggingTest, WritesEveryRecordWhateverTheHostWishes) {
    m_log.SetSink(&m_sink);
    m_log.SetEnabled(false);
    m_log.SetGlobalLogLevel(-1);
    m_log.SetGlobalLogGroupMask(0);
    m_log.Log(severityDebug, 1, L"text");
    EXPECT_THAT(m_sink.m_records, ElementsAre(Record{severityDebug, 1, L"text"}));
}

TEST_F(LoggingTest, ANullTextIsAnEmptyRecord) {
    m_log.SetSink(&m_sink);
    m_log.Log(severityError, 1, nullptr);
    EXPECT_THAT(m_sink.m_records, ElementsAre(Record{severityError, 1, L""}));
}

TEST_F(LoggingTest, AReplacedSinkReceivesNothingMore) {
    RecordingSink other;
    m_log.SetSink(&m_sink);
    m_log.SetSink(&other);
    m_log.Log(severityError, 1, L"text");
    EXPECT_TRUE(m_sink.m_records.empty());
    EXPECT_EQ(other.m_records.size(), 1U);
}

TEST_F(LoggingTest, WhatASinkThrowsDoesNotReachWhoLogs) {
    class ThrowingSink : public VLogSink {
    public:
        void Write(VSeverityLevel /*severity*/, unsigned long /*group*/, const wchar_t* /*text*/) override {
            throw std::runtime_error("disk full");
        }
    } throwing;

    m_log.SetSink(&throwing);
    EXPECT_NO_THROW(m_log.Log(severityError, 1, L"lost"));
    m_log.SetSink(&m_sink);
    m_log.Log(severityError, 1, L"kept");
    EXPECT_THAT(m_sink.m_records, ElementsAre(Record{severityError, 1, L"kept"}));
}

TEST_F(LoggingTest, RecordsOfSeveralThreadsReachTheSinkOneAtATimeAndInTheOrderOfEachThread) {
    constexpr std::size_t threadCount = 4;
    constexpr std::size_t recordsPerThread = 500;
    m_log.SetSink(&m_sink);
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < threadCount; ++number) {
        threads.emplace_back([this, number] {
            for (std::size_t index = 0; index < recordsPerThread; ++index) {
                m_log.Log(severityDebug, static_cast<unsigned long>(number), std::to_wstring(index).c_str());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    ASSERT_EQ(m_sink.m_records.size(), threadCount * recordsPerThread);
    std::vector<std::size_t> next(threadCount);
    for (const Record& record : m_sink.m_records) {
        EXPECT_EQ(record.text, std::to_wstring(next.at(record.group)++));
    }
}

TEST_F(LoggingTest, ARecordIsPutTogetherFromTextsAndNumbers) {
    VDecoratedLogRecord record(severityDebug, 2);
    record << L"a" << std::wstring(L" b ") << static_cast<const wchar_t*>(nullptr) << 0U << L"," << 4294967295UL << L","
           << std::numeric_limits<unsigned long long>::max();
    EXPECT_EQ(record.GetSeverity(), severityDebug);
    EXPECT_EQ(record.GetGroup(), 2U);
    EXPECT_STREQ(record.GetText(), L"a b 0,4294967295,18446744073709551615");

    m_log.SetSink(&m_sink);
    m_log.Log(record);
    EXPECT_THAT(m_sink.m_records, ElementsAre(Record{severityDebug, 2, L"a b 0,4294967295,18446744073709551615"}));
}

TEST_F(LoggingTest, ACopiedRecordGoesItsOwnWay) {
    VDecoratedLogRecord record(severityError, 1);
    record << L"a";
    VDecoratedLogRecord copy(record);
    copy << L"b";
    VDecoratedLogRecord assigned(severityDebug, 8);
    assigned = copy;
    EXPECT_STREQ(record.GetText(), L"a");
    EXPECT_STREQ(assigned.GetText(), L"ab");
    EXPECT_EQ(assigned.GetSeverity(), severityError);
    EXPECT_EQ(assigned.GetGroup(), 1U);
}

TEST_F(LoggingTest, StandardErrorReceivesTimeGroupAndSeverityBeforeTheText) {
    const unsigned long group = m_log.GetOrCreateGroupId("Group0");
    std::string line = Logged(severityError, group, L"The text");
    EXPECT_THAT(line, StartsWith("20"));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c >= '1' && c <= '9'; }, '0');
    EXPECT_EQ(line, "0000-00-00T00:00:00.000Z Group0 error: The text\n");
    EXPECT_THAT(Logged(severityWarning, group, L"x"), EndsWith("Z Group0 warning: x\n"));
    EXPECT_THAT(Logged(severityInformation, group, L"x"), EndsWith("Z Group0 information: x\n"));
    EXPECT_THAT(Logged(severityDebug, group, L"x"), EndsWith("Z Group0 debug: x\n"));
}

TEST_F(LoggingTest, AnUnknownSeverityOrGroupIsShownAsItsNumber) {
    EXPECT_THAT(Logged(static_cast<VSeverityLevel>(7), 1UL << 30U, L"x"),
                EndsWith("Z group 1073741824 severity 7: x\n"));
    EXPECT_THAT(Logged(static_cast<VSeverityLevel>(-1), 0, L"x"), EndsWith("Z group 0 severity -1: x\n"));
}

TEST_F(LoggingTest, StandardErrorReceivesUtf8) {
    EXPECT_THAT(Logged(severityError, 1, L"a\u00fc\u20ac\U0001F600z"),
                EndsWith(": a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80z\n"));
}

TEST_F(LoggingTest, HalfASurrogatePairBecomesTheReplacementCharacter) {
    const wchar_t high = static_cast<wchar_t>(0xD83D);
    const wchar_t low = static_cast<wchar_t>(0xDE00);
    EXPECT_THAT(Logged(severityError, 1, std::wstring{L'a', high}.c_str()), EndsWith(": a\xEF\xBF\xBD\n"));
    EXPECT_THAT(Logged(severityError, 1, std::wstring{high, L'a'}.c_str()), EndsWith(": \xEF\xBF\xBD"
                                                                                     "a\n"));
    EXPECT_THAT(Logged(severityError, 1, std::wstring{low, high}.c_str()), EndsWith(": \xEF\xBF\xBD\xEF\xBF\xBD\n"));
    EXPECT_THAT(Logged(severityError, 1, std::wstring{high, high, low}.c_str()),
                EndsWith(": \xEF\xBF\xBD\xF0\x9F\x98\x80\n"));
}

// A name that comes late in a process has no bit of its own. All tests ask for the same few, whatever their order.
TEST(LogGroupTest, EveryNameHasOneBitAndKeepsIt) {
    VLogging& log = VLogging::GetInstance();
    const unsigned long first = log.GetOrCreateGroupId("Group0");
    const unsigned long second = log.GetOrCreateGroupId("Group1");
    EXPECT_NE(first, second);
    EXPECT_EQ(first & (first - 1), 0U);
    EXPECT_EQ(second & (second - 1), 0U);
    EXPECT_NE(first, 0U);
    EXPECT_NE(second, 0U);
    EXPECT_EQ(log.GetOrCreateGroupId(std::string("Group0").c_str()), first);
    EXPECT_EQ(log.GetGroupName(first), "Group0");
    EXPECT_EQ(log.GetGroupName(first | second), "group " + std::to_string(first | second));
}

TEST(LogGroupTest, NamesBeyondTheThirtyFirstShareTheLastBit) {
    VLogging& log = VLogging::GetInstance();
    unsigned long seen = 0;
    for (int number = 0; number < 40; ++number) {
        seen |= log.GetOrCreateGroupId(("Group" + std::to_string(number)).c_str());
    }
    EXPECT_EQ(seen, 0xFFFFFFFFUL);
    EXPECT_EQ(log.GetOrCreateGroupId("OneTooMany"), 0x80000000UL);
    EXPECT_EQ(log.GetOrCreateGroupId("Group39"), 0x80000000UL);
    EXPECT_LT(log.GetOrCreateGroupId("Group0"), 0x80000000UL);
    EXPECT_EQ(log.GetGroupName(0x80000000UL), "group 2147483648");
}

} // namespace
