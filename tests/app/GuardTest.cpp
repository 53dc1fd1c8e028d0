#include "app/Program.h"

#include "Commands.h"
#include "ProgressBar.h"
#include "support/CapturedLog.h"

#include <ImportDame/Text.h>
#include <SqliteBackend/WriteError.h>

#include <new>
#include <sstream>
#include <stdexcept>

namespace ConsoleImportTests {

namespace {

template <class Work>
Outcome Guarded(Work work) {
    std::ostringstream err;
    const int exitCode = ConsoleImport::RunGuarded(work, err);
    return {exitCode, "", err.str()};
}

} // namespace

TEST(GuardTest, ABrokenPreconditionIsLoggedAndEndsWith6) {
    const TestSupport::CapturedLog log;
    const Outcome outcome = Guarded([] { return static_cast<int>(*ImportDame::VText().GetTextId()); });
    EXPECT_EQ(outcome.exitCode, 6);
    EXPECT_TRUE(Contains(outcome.err, "broken precondition 102016: mbHasTextId")) << outcome.err;
    EXPECT_FALSE(log.Lines().empty());
}

TEST(GuardTest, EveryFailureHasItsExitCode) {
    EXPECT_EQ(Guarded([] { return 0; }).exitCode, 0);
    EXPECT_EQ(Guarded([]() -> int { throw std::bad_alloc(); }).exitCode, 5);
    EXPECT_EQ(Guarded([]() -> int { throw ConsoleImport::Interrupted(); }).exitCode, 130);
    EXPECT_EQ(Guarded([]() -> int { throw SqliteBackend::WriteError("x"); }).exitCode, 4);
    EXPECT_EQ(Guarded([]() -> int { throw ConsoleImport::OutputError("x"); }).exitCode, 4);
    EXPECT_EQ(Guarded([]() -> int { throw std::invalid_argument("x"); }).exitCode, 2);
    EXPECT_EQ(Guarded([]() -> int { throw std::runtime_error("x"); }).exitCode, 6);
    EXPECT_EQ(Guarded([]() -> int { throw 1; }).exitCode, 6);
}

} // namespace ConsoleImportTests
