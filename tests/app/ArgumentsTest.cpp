#include "app/Program.h"

namespace ConsoleImportTests {

TEST(ArgumentsTest, HelpNamesTheCommandsTheExitCodesAndExamples) {
    const Outcome outcome = RunProgram({"--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
    for (const char* part : {"import", "list", "--version", "Examples:", "ConsoleImport import engine.pdx",
                             "Exit codes: 0 done, 1 done with errors"})
        EXPECT_TRUE(Contains(outcome.out, part)) << part;
}

TEST(ArgumentsTest, HelpOfImportNamesEveryOptionAndExamples) {
    const Outcome outcome = RunProgram({"import", "--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    for (const char* part :
         {"--output", "--base-variant NAME", "--language LANG", "--strict", "--diagnostics text|json", "--dump FILE|-",
          "--progress auto|always|never", "--log FILE", "--quiet", "Examples:"})
        EXPECT_TRUE(Contains(outcome.out, part)) << part;
}

TEST(ArgumentsTest, VersionNamesTheProgramAndItsVersion) {
    const Outcome outcome = RunProgram({"--version"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out.substr(0, 20), "ConsoleImport 1.0.0 ");
}

TEST(ArgumentsTest, WrongCommandLinesEndWith2AndSayWhatIsWrong) {
    struct Case {
        std::vector<std::string> arguments;
        const char* message;
    };

    const Case cases[] = {
        {{"export"}, "subcommand is required"},
        {{"import"}, "INPUT is required"},
        {{"import", "a.pdx"}, "--output is required"},
        {{"import", "a.pdx", "--output", "o", "--wrong"}, "--wrong"},
        {{"import", "a.pdx", "--output", "o", "--diagnostics", "xml"}, "--diagnostics"},
        {{"import", "a.pdx", "--output", "o", "--progress", "maybe"}, "--progress"},
        {{"import", "a.pdx", "--output", "o", "--dump", "-", "--diagnostics", "json"}, "standard output"},
        {{"import", "a.pdx", "--output", "o", "--dump", "o"}, "same file"},
        {{"import", "a.pdx", "--output", "o", "--log", "o"}, "same file"},
        {{"list"}, "INPUT is required"},
    };
    for (const Case& wrong : cases) {
        const Outcome outcome = RunProgram(wrong.arguments);
        EXPECT_EQ(outcome.exitCode, 2) << wrong.message;
        EXPECT_EQ(outcome.out, "") << wrong.message;
        EXPECT_TRUE(Contains(outcome.err, wrong.message)) << outcome.err;
    }
}

} // namespace ConsoleImportTests
