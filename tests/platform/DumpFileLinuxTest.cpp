#include "KoCustomCrashHandling/CustomCrashHandling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace {

using namespace NCustomCrashHandling;
using testing::HasSubstr;
using testing::Not;

std::string Content(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class DumpFileTest : public testing::Test {
protected:
    DumpFileTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "DumpFileTestXXXXXX").native();
        m_folder = mkdtemp(pattern.data());
        if (const char* const before = std::getenv("TMPDIR")) {
            m_before = before;
        }
        setenv("TMPDIR", m_folder.c_str(), 1);
    }

    ~DumpFileTest() override {
        if (m_before) {
            setenv("TMPDIR", m_before->c_str(), 1);
        } else {
            unsetenv("TMPDIR");
        }
        std::filesystem::remove_all(m_folder);
    }

    std::filesystem::path m_folder;
    std::optional<std::string> m_before;
};

TEST_F(DumpFileTest, LiesInTheTemporaryFolderUnderTheLastComponentOfTheDrivePath) {
    EXPECT_TRUE(CreateDumpFile(dumpMedium, L"D:\\Temp\\ConsoleImportDump123.dmp", nullptr, nullptr, 1));
    EXPECT_TRUE(std::filesystem::is_regular_file(m_folder / "ConsoleImportDump123.dmp"));
}

TEST_F(DumpFileTest, ShowsProcessStackRegistersAndMemoryMap) {
    ASSERT_TRUE(CreateDumpFile(dumpMedium, L"/elsewhere/Dump.dmp", nullptr, nullptr, 1));
    const std::string dump = Content(m_folder / "Dump.dmp");
    EXPECT_THAT(dump, HasSubstr("Process " + std::to_string(getpid()) + ", thread "));
    EXPECT_THAT(dump, HasSubstr("/PlatformTests\n"));
    EXPECT_THAT(dump, HasSubstr("\nStack of the calling thread\n"));
    EXPECT_THAT(dump, HasSubstr("libKoCustomCrashHandling.so"));
    EXPECT_THAT(dump, HasSubstr("\nRegisters\n"));
    EXPECT_THAT(dump, HasSubstr("  rsp 0x"));
    EXPECT_THAT(dump, HasSubstr("\nMemory map\n"));
    EXPECT_THAT(dump, HasSubstr("[stack]"));
}

TEST_F(DumpFileTest, ASmallOneHasNoMemoryMap) {
    ASSERT_TRUE(CreateDumpFile(dumpSmall, L"Dump.dmp", nullptr, nullptr, 1));
    const std::string dump = Content(m_folder / "Dump.dmp");
    EXPECT_THAT(dump, HasSubstr("\nRegisters\n"));
    EXPECT_THAT(dump, Not(HasSubstr("Memory map")));
}

TEST_F(DumpFileTest, TheSecondPathReceivesACopy) {
    EXPECT_TRUE(CreateDumpFile(dumpMedium, L"First.dmp", L"Second.dmp", nullptr, 1));
    EXPECT_THAT(Content(m_folder / "First.dmp"), HasSubstr("Registers"));
    EXPECT_THAT(Content(m_folder / "Second.dmp"), HasSubstr("Registers"));
}

TEST_F(DumpFileTest, AnExistingFileIsReplacedOnlyOnRequest) {
    std::ofstream(m_folder / "Dump.dmp") << "old";
    EXPECT_FALSE(CreateDumpFile(dumpMedium, L"Dump.dmp", nullptr, nullptr, 0));
    EXPECT_EQ(Content(m_folder / "Dump.dmp"), "old");
    EXPECT_TRUE(CreateDumpFile(dumpMedium, L"Dump.dmp", nullptr, nullptr, 1));
    EXPECT_EQ(Content(m_folder / "Dump.dmp").substr(0, 8), "Process ");
}

TEST_F(DumpFileTest, ALinkUnderTheNameIsNotFollowed) {
    std::ofstream(m_folder / "precious") << "kept";
    std::filesystem::create_symlink(m_folder / "precious", m_folder / "Dump.dmp");
    EXPECT_FALSE(CreateDumpFile(dumpMedium, L"Dump.dmp", nullptr, nullptr, 1));
    EXPECT_EQ(Content(m_folder / "precious"), "kept");
}

TEST_F(DumpFileTest, AMissingFolderIsAFailureOnly) {
    setenv("TMPDIR", (m_folder / "missing").c_str(), 1);
    EXPECT_FALSE(CreateDumpFile(dumpMedium, L"Dump.dmp", nullptr, nullptr, 1));
}

TEST_F(DumpFileTest, APathWithoutANameIsAFailureOnly) {
    EXPECT_FALSE(CreateDumpFile(dumpMedium, L"D:\\Temp\\", nullptr, nullptr, 1));
    EXPECT_FALSE(CreateDumpFile(dumpMedium, L"", nullptr, nullptr, 1));
}

} // namespace
