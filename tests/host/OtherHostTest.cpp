/// Runs in programs whose names are nearly, but not exactly, ConsoleImport.exe.

#include "support/FailedCheck.h"

#include <ImportDame/Text.h>

#include <KoCustomCrashHandling/CustomCrashHandling.h>

#include <gtest/gtest.h>

namespace {

int g_requests = 0;

bool CountRequest(NCustomCrashHandling::VDumpType, const wchar_t*, const wchar_t*, EXCEPTION_POINTERS*, int) {
    ++g_requests;
    return true;
}

TEST(OtherHost, LogsTheFirstMessageOnlyAndThrowsWithoutADump) {
    NCustomCrashHandling::SetDumpWriter(&CountRequest);
    TestSupport::ExpectFailedCheck({102016, "mbHasTextId", "Text.cpp", 69}, [] { ImportDame::VText().GetTextId(); });
    NCustomCrashHandling::SetDumpWriter(nullptr);
    EXPECT_EQ(g_requests, 0);
}

} // namespace
