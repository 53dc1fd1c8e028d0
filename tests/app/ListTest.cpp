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

} // namespace ConsoleImportTests
