/// Runs in a program that is truly named ConsoleImport.exe, on either platform.

#include "host/DumpOfHost.h"
#include "support/CapturedLog.h"

#include <ImportDame/LgAssertException.h>
#include <ImportDame/Text.h>

#include <KoCustomCrashHandling/CustomCrashHandling.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

using NArdenaSharedUtil::Logging::VLogging;
using TestSupport::CapturedLog;

namespace {

constexpr const wchar_t* g_firstMessage =
    L"\nAn unexpected error occurred. The current import operation must be aborted. Please try to import again. If the "
    L"issue persists, the following information might help Tessaly to provide you with a solution as quickly as "
    L"possible: Error code '102016'. Expression: 'mbHasTextId'. File: 'Text.cpp'. Line: '69'. Version: '1.0.0'. ";

struct Request {
    int type;
    std::wstring path;
    const wchar_t* secondPath;
    EXCEPTION_POINTERS* exceptionPointers;
    int last;
    std::size_t loggedBefore;
};

std::vector<Request> g_requests;
const CapturedLog* g_log = nullptr;

bool RecordRequest(NCustomCrashHandling::VDumpType type, const wchar_t* path, const wchar_t* secondPath,
                   EXCEPTION_POINTERS* exceptionPointers, int last) {
    g_requests.push_back({type, path, secondPath, exceptionPointers, last, g_log->Records().size()});
    return true;
}

bool FailToWrite(NCustomCrashHandling::VDumpType, const wchar_t*, const wchar_t*, EXCEPTION_POINTERS*, int) {
    return false;
}

int BreakAPrecondition() {
    try {
        ImportDame::VText().GetTextId();
    } catch (const VLgAssertException& failure) {
        return failure.GetErrorCode();
    }
    return 0;
}

/// The path between the stated beginning and end; nothing but a tick count may stand there.
void ExpectDumpPath(const std::wstring& path) {
    const std::wstring start = L"D:\\Temp\\ConsoleImportDump";
    const std::wstring end = L".dmp";
    ASSERT_GT(path.size(), start.size() + end.size());
    EXPECT_EQ(path.substr(0, start.size()), start);
    EXPECT_EQ(path.substr(path.size() - end.size()), end);
    const std::wstring ticks = path.substr(start.size(), path.size() - start.size() - end.size());
    EXPECT_TRUE(std::all_of(ticks.begin(), ticks.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; }));
    EXPECT_NE(ticks.front(), L'0');
    EXPECT_LE(std::stoull(ticks), 0xFFFFFFFFULL);
}

std::uint32_t Ticks(const std::wstring& path) {
    return static_cast<std::uint32_t>(std::stoull(path.substr(std::wstring(L"D:\\Temp\\ConsoleImportDump").size())));
}

class ConsoleImportHost : public testing::Test {
protected:
    ConsoleImportHost() {
        g_requests.clear();
        g_log = &m_log;
        NCustomCrashHandling::SetDumpWriter(&RecordRequest);
    }

    ~ConsoleImportHost() override { NCustomCrashHandling::SetDumpWriter(nullptr); }

    CapturedLog m_log;
};

TEST_F(ConsoleImportHost, RequestsOneDumpBeforeItLogsAndThrows) {
    EXPECT_EQ(BreakAPrecondition(), 102016);
    ASSERT_EQ(g_requests.size(), 1U);
    EXPECT_EQ(g_requests[0].type, 1);
    ExpectDumpPath(g_requests[0].path);
    EXPECT_EQ(g_requests[0].secondPath, nullptr);
    EXPECT_EQ(g_requests[0].exceptionPointers, nullptr);
    EXPECT_EQ(g_requests[0].last, 1);
    EXPECT_EQ(g_requests[0].loggedBefore, 0U);
}

TEST_F(ConsoleImportHost, LogsBothMessagesByteForByte) {
    BreakAPrecondition();
    ASSERT_EQ(g_requests.size(), 1U);
    EXPECT_THAT(m_log.Lines(),
                testing::ElementsAre(g_firstMessage, L"More detailed, technical information has been stored in the "
                                                     L"following file: \"" +
                                                         g_requests[0].path + L"\"."));
    for (const CapturedLog::Record& record : m_log.Records()) {
        EXPECT_EQ(record.severity, 0);
        EXPECT_EQ(record.group, VLogging::GetInstance().GetOrCreateGroupId("GroupDimex"));
    }
}

TEST_F(ConsoleImportHost, RequestsADumpAtEveryFailure) {
    BreakAPrecondition();
    BreakAPrecondition();
    EXPECT_EQ(g_requests.size(), 2U);
}

TEST_F(ConsoleImportHost, NamesTheDumpAfterTheMillisecondsSinceTheSystemStarted) {
    BreakAPrecondition();
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    BreakAPrecondition();
    ASSERT_EQ(g_requests.size(), 2U);
    const std::uint32_t passed = Ticks(g_requests[1].path) - Ticks(g_requests[0].path); // the count may wrap
    EXPECT_GE(passed, 80U);                                                             // it moves in steps
    EXPECT_LT(passed, 60000U);
}

TEST_F(ConsoleImportHost, AsksAgainBeforeTheSecondMessageWhetherToLog) {
    struct Silencer : NArdenaSharedUtil::Logging::VLogSink {
        void Write(NArdenaSharedUtil::Logging::VSeverityLevel, unsigned long, const wchar_t* text) override {
            texts.emplace_back(text);
            VLogging::GetInstance().SetEnabled(false);
        }

        std::vector<std::wstring> texts;
    } silencer;

    VLogging::GetInstance().SetSink(&silencer);
    EXPECT_EQ(BreakAPrecondition(), 102016);
    VLogging::GetInstance().SetSink(nullptr);
    EXPECT_THAT(silencer.texts, testing::ElementsAre(g_firstMessage));
    EXPECT_EQ(g_requests.size(), 1U);
}

TEST_F(ConsoleImportHost, DumpsAndThrowsInSilenceWhenLoggingIsOff) {
    VLogging::GetInstance().SetEnabled(false);
    EXPECT_EQ(BreakAPrecondition(), 102016);
    VLogging::GetInstance().SetEnabled(true);
    VLogging::GetInstance().SetGlobalLogGroupMask(0);
    EXPECT_EQ(BreakAPrecondition(), 102016);
    VLogging::GetInstance().SetGlobalLogGroupMask(~0UL);
    VLogging::GetInstance().SetGlobalLogLevel(-1);
    EXPECT_EQ(BreakAPrecondition(), 102016);
    EXPECT_EQ(g_requests.size(), 3U);
    EXPECT_TRUE(m_log.Records().empty());
}

TEST_F(ConsoleImportHost, IgnoresADumpThatCouldNotBeWritten) {
    NCustomCrashHandling::SetDumpWriter(&FailToWrite);
    EXPECT_EQ(BreakAPrecondition(), 102016);
    EXPECT_EQ(m_log.Records().size(), 2U);
}

TEST_F(ConsoleImportHost, ReallyWritesTheDump) {
    NCustomCrashHandling::SetDumpWriter(nullptr);
    HostTest::PlaceOfDump(L"D:\\Temp\\ConsoleImportDump.dmp"); // the folder has to be there
    EXPECT_EQ(BreakAPrecondition(), 102016);
    ASSERT_EQ(m_log.Records().size(), 2U);
    const std::wstring& message = m_log.Records()[1].text;
    const auto quote = message.find(L'"') + 1;
    const std::wstring path = message.substr(quote, message.rfind(L'"') - quote);
    ExpectDumpPath(path);
    const std::filesystem::path file = HostTest::PlaceOfDump(path);
    EXPECT_TRUE(HostTest::IsDump(file));
    std::filesystem::remove(file);
}

} // namespace
