#include "app/Program.h"

#include <filesystem>
#include <fstream>
#include <iterator>

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
        {{"export"}, "\"export\" is no command: the commands are import and list"},
        {{"engine.pdx", "--output", "o"}, "\"engine.pdx\" is no command"},
        {{"--"}, "subcommand is required"},
        {{"import"}, "INPUT is required"},
        {{"import", "a.pdx"}, "--output is required"},
        {{"import", "a.pdx", "--output", "o", "--wrong"}, "--wrong"},
        {{"import", "a.pdx", "--output", ""}, "--output: names no file"},
        {{"import", "a.pdx", "--output", "o", "--diagnostics", "xml"}, "--diagnostics: \"xml\" is none of text|json"},
        {{"import", "a.pdx", "--output", "o", "--diagnostics", "1"}, "--diagnostics: \"1\" is none of text|json"},
        {{"import", "a.pdx", "--output", "o", "--progress", "maybe"},
         "--progress: \"maybe\" is none of auto|always|never"},
        {{"import", "a.pdx", "--output", "o", "--dump", "-", "--diagnostics", "json"}, "standard output"},
        {{"import", "a.pdx", "--output", "o", "--dump", "o"}, "--output: is the same file as that of --dump"},
        {{"import", "a.pdx", "--output", "o", "--log", "x/../o"}, "--output: is the same file as that of --log"},
        {{"import", "a.pdx", "--output", "o", "--dump", "d", "--log", "d"},
         "--dump: is the same file as that of --log"},
        {{"import", "a", "--output", "./a"}, "--output: is one of the inputs"},
        {{"import", "a", "--output", "o", "--dump", "a"}, "--dump: is one of the inputs"},
        {{"list", "b", "a", "--log", "a"}, "--log: is one of the inputs"},
        {{"import", "folder", "--output", "folder/x.PDX"}, "--output: names that end like this are for inputs"},
        {{"list", "folder", "--log", "folder/x.odx-d"}, "--log: names that end like this are for inputs"},
        {{"list"}, "INPUT is required"},
    };
    for (const Case& wrong : cases) {
        const Outcome outcome = RunProgram(wrong.arguments);
        EXPECT_EQ(outcome.exitCode, 2) << wrong.message;
        EXPECT_EQ(outcome.out, "") << wrong.message;
        EXPECT_TRUE(Contains(outcome.err, wrong.message)) << outcome.err;
    }
}

class WrittenFilesTest : public ProgramTest {};

TEST_F(WrittenFilesTest, AnInputIsNotOverwrittenUnderAnyOfItsNames) {
    const std::string input = File("input"), link = File("link");
    std::ofstream(input) << "precious";
    std::filesystem::create_hard_link(input, link);
    for (const char* option : {"--output", "--dump", "--log"}) {
        std::vector<std::string> arguments{"import", input, option, link};
        if (std::string(option) != "--output")
            arguments.insert(arguments.end(), {"--output", File("o.sqlite")});
        const Outcome outcome = RunProgram(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << option;
        EXPECT_TRUE(Contains(outcome.err, std::string(option) + ": is one of the inputs")) << outcome.err;
    }
    std::ifstream file(input);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "precious");
}

TEST_F(WrittenFilesTest, ADocumentOfAnInputFolderIsNotOverwrittenUnderAnyOfItsNames) {
    std::filesystem::create_directories(m_folder / "in" / "sub");
    const std::string document = File("in/sub/b.XML"), link = File("link.txt");
    std::ofstream(document) << "precious";
    std::filesystem::create_hard_link(document, link);
    for (const char* option : {"--output", "--dump", "--log"}) {
        for (const std::string& name : {document, link}) {
            std::vector<std::string> arguments{"import", File("in"), option, name};
            if (std::string(option) != "--output")
                arguments.insert(arguments.end(), {"--output", File("o.sqlite")});
            const Outcome outcome = RunProgram(arguments);
            EXPECT_EQ(outcome.exitCode, 2) << option;
            EXPECT_TRUE(Contains(outcome.err, std::string(option) + ": is in an input folder")) << outcome.err;
        }
    }
    EXPECT_EQ(SqliteBackendTests::ReadFile(document), "precious");
    EXPECT_EQ(RunProgram({"list", File("in"), "--log", File("in/log.txt")}).exitCode, 3);
    EXPECT_EQ(RunProgram({"list", File("in"), "--log", File("in/log.txt")}).exitCode, 3) << "no document's name";
}

TEST_F(WrittenFilesTest, TwoNamesOfOneFileThatIsNotThereYetAreSeenThroughLinks) {
    std::filesystem::create_directory(m_folder / "folder");
    std::error_code error;
    std::filesystem::create_directory_symlink(m_folder / "folder", m_folder / "linked", error);
    if (error)
        GTEST_SKIP() << "no links here: " << error.message();
    std::filesystem::create_symlink(m_folder / "folder" / "o", m_folder / "o", error);
    for (const char* other : {"linked/o", "linked/../folder/o", "o"}) {
        const Outcome outcome = RunProgram({"import", "a", "--output", File("folder/o"), "--dump", File(other)});
        EXPECT_EQ(outcome.exitCode, 2) << other;
        EXPECT_TRUE(Contains(outcome.err, "--output: is the same file as that of --dump")) << outcome.err;
    }
}

} // namespace ConsoleImportTests
