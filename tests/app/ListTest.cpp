#include "app/Program.h"

namespace ConsoleImportTests {

namespace {

using ListTest = ProgramTest;

} // namespace

TEST_F(ListTest, DocumentsAndLayersAreListedWithTheirCounts) {
    const Outcome outcome = RunProgram({"list", SAMPLE_ARCHIVE});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_TRUE(Contains(outcome.out, "4 documents\n")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "6 layers\n")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out,
                         "  BASE-VARIANT       CoolantPump                          4            27              3  < "
                         "Thermal, Common\n"))
        << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "--base-variant CoolantPump")) << outcome.out;
}

TEST_F(ListTest, AnInputThatIsNotThereEndsWith3) {
    const Outcome outcome = RunProgram({"list", File("missing.pdx")});
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(Contains(outcome.err, "missing.pdx")) << outcome.err;
}

TEST_F(ListTest, WithoutABaseVariantThereIsNothingToImport) {
    const Outcome outcome = RunProgram({"list", std::string(BROKEN_SAMPLES) + "/without-base-variant.odx-d"});
    EXPECT_TRUE(Contains(outcome.out, "There is no base variant")) << outcome.out << outcome.err;
}

TEST_F(ListTest, DiagnosticsForProgramsAreAloneOnStandardOutput) {
    const std::string input = std::string(BROKEN_SAMPLES) + "/parent-missing.odx-d";
    const Outcome outcome = RunProgram({"list", input, "--diagnostics", "json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out.substr(0, 16), "{\"diagnostics\":[") << outcome.out;
    EXPECT_EQ(outcome.out.substr(outcome.out.size() - 3), "}}\n");
    EXPECT_TRUE(Contains(outcome.out, "\"code\":\"ODX0403\"")) << outcome.out;
    EXPECT_FALSE(Contains(outcome.err, "ODX0403")) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, "1 layer\n")) << outcome.err;
}

TEST_F(ListTest, ProblemsForPeopleGoToStandardError) {
    const Outcome outcome = RunProgram({"list", std::string(BROKEN_SAMPLES) + "/parent-missing.odx-d"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(Contains(outcome.err, "error ODX0403")) << outcome.err;
    EXPECT_FALSE(Contains(outcome.out, "ODX0403")) << outcome.out;
}

TEST_F(ListTest, StrictMakesWarningsErrors) {
    const std::string input = std::string(BROKEN_SAMPLES) + "/without-model-version.odx-d";
    EXPECT_EQ(RunProgram({"list", input}).exitCode, 0);
    EXPECT_EQ(RunProgram({"list", input, "--strict"}).exitCode, 1);
}

} // namespace ConsoleImportTests
