#include "app/Program.h"

#include <filesystem>
#include <fstream>

namespace ConsoleImportTests {

namespace {

using SqliteBackendTests::ReadFile;
using ShowingTest = ProgramTest;

constexpr char escape = '\x1B';

/// A document with one base variant.
void WriteBaseVariant(const std::filesystem::path& file, const std::string& name) {
    std::ofstream(file) << "<ODX MODEL-VERSION='2.2.0'><DIAG-LAYER-CONTAINER ID='c'><SHORT-NAME>C</SHORT-NAME>"
                           "<BASE-VARIANTS><BASE-VARIANT ID='b'><SHORT-NAME>"
                        << name << "</SHORT-NAME></BASE-VARIANT></BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>";
}

bool HasEscape(const std::string& text) {
    return text.find(escape) != std::string::npos;
}

} // namespace

TEST_F(ShowingTest, APipeGetsNeitherColourNorProgress) {
    const Outcome outcome = ImportSample();
    EXPECT_FALSE(HasEscape(outcome.out));
    EXPECT_FALSE(HasEscape(outcome.err));
    EXPECT_EQ(outcome.err.find('\r'), std::string::npos);
}

TEST_F(ShowingTest, ATerminalGetsColourAndProgress) {
    const Outcome outcome = ImportSample({}, {true, true, true});
    EXPECT_TRUE(Contains(outcome.out, "\x1B[1m"));
    EXPECT_TRUE(Contains(outcome.err, "Reading the inputs"));
    EXPECT_TRUE(Contains(outcome.err, "Writing the database"));
    EXPECT_TRUE(Contains(outcome.err, "100 %"));
}

TEST_F(ShowingTest, TheProgressLineIsTakenAway) {
    const Outcome outcome = ImportSample({"--progress", "always", "--quiet"});
    ASSERT_GE(outcome.err.size(), 4U);
    EXPECT_EQ(outcome.err.substr(outcome.err.size() - 4), "\r\x1B[K");
}

TEST_F(ShowingTest, ATerminalWhereNoColourIsWishedGetsNone) {
    const Outcome outcome = ImportSample({"--progress", "never"}, {true, true, false});
    EXPECT_FALSE(HasEscape(outcome.out));
    EXPECT_FALSE(HasEscape(outcome.err));
}

TEST_F(ShowingTest, ColourGoesToTheStreamThatIsATerminalOnly) {
    const Outcome outcome = ImportSample({"--progress", "never"}, {false, true, true});
    EXPECT_FALSE(HasEscape(outcome.out));
}

TEST_F(ShowingTest, ProgressCanBeForcedAndForbidden) {
    EXPECT_TRUE(Contains(ImportSample({"--progress", "always"}).err, "Writing the database"));
    EXPECT_FALSE(Contains(ImportSample({"--progress", "never"}, {true, true, true}).err, "Writing the database"));
}

TEST_F(ShowingTest, QuietSaysNothingWhereThereIsNoError) {
    const Outcome outcome = ImportSample({"--quiet"}, {true, true, true});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
}

TEST_F(ShowingTest, DiagnosticsForProgramsAreAloneOnStandardOutput) {
    const Outcome outcome = ImportSample({"--diagnostics", "json"});
    EXPECT_EQ(outcome.out.substr(0, 16), "{\"diagnostics\":[");
    EXPECT_EQ(outcome.out.substr(outcome.out.size() - 3), "}}\n");
    EXPECT_TRUE(Contains(outcome.out, "\"code\":\"ODX0111\""));
    EXPECT_TRUE(Contains(outcome.err, "Imported base variant CoolantPump"));
}

TEST_F(ShowingTest, ADumpOnStandardOutputIsAloneThere) {
    const Outcome outcome = ImportSample({"--dump", "-"});
    EXPECT_EQ(outcome.out.substr(0, 49), "IMPORTDAME DUMP:  start of data type collection\nI");
    EXPECT_FALSE(Contains(outcome.out, "Imported base variant"));
    EXPECT_TRUE(Contains(outcome.err, "Imported base variant"));
}

TEST_F(ShowingTest, ADumpInAFileIsTheSame) {
    const std::string dump = ImportSample({"--dump", "-"}).out;
    const Outcome outcome = ImportSample({"--dump", File("dump.txt")});
    EXPECT_EQ(ReadFile(m_folder / "dump.txt"), dump);
    EXPECT_TRUE(Contains(dump, "LinearDataType: 'Temperature'"));
    EXPECT_FALSE(Contains(outcome.out, "IMPORTDAME DUMP"));
}

TEST_F(ShowingTest, TheSummaryTellsWhyElementsWereLeftOut) {
    const Outcome outcome = ImportSample();
    EXPECT_TRUE(Contains(outcome.out, "\nLeft out on purpose\n")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "  communication parameters have no place in the model\n")) << outcome.out;
}

TEST_F(ShowingTest, WithoutArgumentsTheHelpIsShown) {
    const Outcome outcome = RunProgram({});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(Contains(outcome.err, "ConsoleImport import engine.pdx --output engine.sqlite")) << outcome.err;
}

TEST_F(ShowingTest, TheLogFileHasWhatWasReportedWithoutColour) {
    ASSERT_EQ(ImportSample({"--quiet", "--log", File("log.txt")}, {true, true, true}).exitCode, 0);
    const std::string log = ReadFile(m_folder / "log.txt");
    EXPECT_TRUE(Contains(log, "Imported base variant CoolantPump"));
    EXPECT_TRUE(
        Contains(log, "  DIAG-SERVICE                                       7           7           0           0\n"))
        << log;
    EXPECT_FALSE(HasEscape(log));
}

TEST_F(ShowingTest, NamesForgeNoLinesAndSendNoSequences) {
    WriteBaseVariant(m_folder / "b.odx-d", "A&#10;Problems: none&#x9B;31m&#x85;\xC3\xA4");
    const Outcome list = RunProgram({"list", File("b.odx-d")});
    EXPECT_TRUE(Contains(list.out, "  A?Problems: none?31m?\xC3\xA4 ")) << list.out;
    const Outcome import = RunProgram({"import", File("b.odx-d"), "--output", File("o.sqlite"), "--log", File("log")});
    EXPECT_TRUE(Contains(import.out, "\nImported base variant A?Problems: none?31m?\xC3\xA4 from")) << import.out;
    EXPECT_TRUE(Contains(ReadFile(m_folder / "log"), "\nImported base variant A?Problems: none?31m?\xC3\xA4 from"));
    const Outcome choice = RunProgram({"import", File("b.odx-d"), "--output", File("o.sqlite"), "--base-variant", "X"});
    EXPECT_TRUE(Contains(choice.err, "Choose one:\n  --base-variant A?Problems: none?31m?\xC3\xA4\n")) << choice.err;
}

TEST_F(ShowingTest, WhatIsNoUtf8InArgumentsIsReplaced) {
    WriteBaseVariant(m_folder / "b.odx-d", "B");
    const std::vector<std::string> arguments{"import",         File("b.odx-d"), "--output", File("o.sqlite"),
                                             "--base-variant", "X\xFF",         "--log",    File("log.txt")};
    const Outcome outcome = RunProgram(arguments);
    EXPECT_TRUE(Contains(outcome.err, "the inputs hold no base variant X\xEF\xBF\xBD\n")) << outcome.err;
    for (const std::string& text : {outcome.err, ReadFile(m_folder / "log.txt"), RunProgram({"\xFF"}).err}) {
        EXPECT_FALSE(Contains(text, "\xFF")) << text;
        EXPECT_TRUE(Contains(text, "\xEF\xBF\xBD")) << text;
    }
}

} // namespace ConsoleImportTests
