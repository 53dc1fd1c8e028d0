#include "support/FailedCheck.h"

#include <ImportDame/FailureReport.h>
#include <ImportDame/Text.h>

#include <KoCustomCrashHandling/CustomCrashHandling.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <thread>
#include <type_traits>
#include <vector>

using NArdenaSharedUtil::Logging::VLogging;
using TestSupport::CapturedLog;

namespace {

bool BreakAPrecondition() {
    try {
        ImportDame::VText().GetTextId();
    } catch (const VLgAssertException&) {
        return true;
    }
    return false;
}

int g_dumps = 0;

bool CountDump(NCustomCrashHandling::VDumpType, const wchar_t*, const wchar_t*, EXCEPTION_POINTERS*, int) {
    ++g_dumps;
    return true;
}

TEST(FailureReportTest, LogsOneMessageByteForByteInAHostOfAnyOtherName) {
    const CapturedLog log;
    g_dumps = 0;
    NCustomCrashHandling::SetDumpWriter(&CountDump);
    EXPECT_TRUE(BreakAPrecondition());
    NCustomCrashHandling::SetDumpWriter(nullptr);
    EXPECT_EQ(g_dumps, 0);
    ASSERT_EQ(log.Records().size(), 1U);
    EXPECT_EQ(log.Records()[0].severity, 0);
    EXPECT_EQ(log.Records()[0].group, VLogging::GetInstance().GetOrCreateGroupId("GroupDimex"));
    EXPECT_EQ(log.Records()[0].text,
              L"\nAn unexpected error occurred. The current import operation must be aborted. Please try to import "
              L"again. If the issue persists, the following information might help Tessaly to provide you with a "
              L"solution as quickly as possible: Error code '102016'. Expression: 'mbHasTextId'. File: 'Text.cpp'. "
              L"Line: '69'. Version: '1.0.0'. ");
}

TEST(FailureReportTest, ThrowsExpressionAndErrorCode) {
    const CapturedLog log;
    try {
        ImportDame::VText().GetTextId();
        FAIL();
    } catch (VLgAssertException failure) { // a copy serves as well
        EXPECT_STREQ(failure.GetExpression(), "mbHasTextId");
        EXPECT_EQ(failure.GetErrorCode(), 102016);
    }
    static_assert(!std::is_polymorphic_v<VLgAssertException>);
    static_assert(std::is_nothrow_copy_constructible_v<VLgAssertException>);
}

TEST(FailureReportTest, IsSilentButThrowsWhenLoggingIsDisabled) {
    const CapturedLog log;
    VLogging::GetInstance().SetEnabled(false);
    EXPECT_TRUE(BreakAPrecondition());
    EXPECT_TRUE(log.Records().empty());
}

TEST(FailureReportTest, IsSilentButThrowsWhenItsGroupIsMaskedOut) {
    const CapturedLog log;
    const unsigned long own = VLogging::GetInstance().GetOrCreateGroupId("GroupDimex");
    VLogging::GetInstance().SetGlobalLogGroupMask(~own);
    EXPECT_TRUE(BreakAPrecondition());
    EXPECT_TRUE(log.Records().empty());
    VLogging::GetInstance().SetGlobalLogGroupMask(own);
    EXPECT_TRUE(BreakAPrecondition());
    EXPECT_EQ(log.Records().size(), 1U);
}

TEST(FailureReportTest, IsSilentButThrowsBelowLevelZero) {
    const CapturedLog log;
    VLogging::GetInstance().SetGlobalLogLevel(-1);
    EXPECT_TRUE(BreakAPrecondition());
    EXPECT_TRUE(log.Records().empty());
    std::size_t records = 0;
    for (const long level : {0L, 1L, 3L, 0x7FFFFFFFL}) {
        VLogging::GetInstance().SetGlobalLogLevel(level);
        EXPECT_TRUE(BreakAPrecondition());
        EXPECT_EQ(log.Records().size(), ++records);
    }
}

TEST(FailureReportTest, ComesOnEveryThread) {
    const CapturedLog log;
    std::atomic<int> failures = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 50; ++round)
                failures += BreakAPrecondition() ? 1 : 0;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(failures, 200);
    EXPECT_EQ(log.Records().size(), 200U);
}

TEST(FailureReportTest, TheGroupsOfAllComponentsHaveTheirBitsOnceTheLibraryIsLoaded) {
    const VLogging& logging = VLogging::GetInstance();
    EXPECT_EQ(logging.GetGroupName(1), "GroupDimex");
    EXPECT_EQ(logging.GetGroupName(2), "GroupConsoleImport");
    EXPECT_EQ(logging.GetGroupName(4), "GroupOdxImporter");
    EXPECT_EQ(logging.GetGroupName(8), "GroupSqliteBackend");
}

TEST(FailureReportTest, ComesAgainAtEveryFailure) {
    const CapturedLog log;
    EXPECT_TRUE(BreakAPrecondition());
    EXPECT_TRUE(BreakAPrecondition());
    EXPECT_EQ(log.Records().size(), 2U);
}

} // namespace
