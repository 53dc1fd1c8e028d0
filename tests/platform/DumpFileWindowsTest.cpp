#include "KoCustomCrashHandling/CustomCrashHandling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>
// dbghelp.h needs windows.h before it.
#include <dbghelp.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace {

using namespace NCustomCrashHandling;
using testing::IsSupersetOf;

std::string Content(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

template <class T>
T ReadAt(const std::string& content, std::size_t offset) {
    T value = {};
    if (offset + sizeof(T) <= content.size()) {
        std::memcpy(&value, content.data() + offset, sizeof(T));
    }
    return value;
}

/// The kinds of the streams that a minidump's directory lists; none if the content is no minidump.
std::set<std::uint32_t> StreamsOf(const std::string& content) {
    std::set<std::uint32_t> streams;
    const auto header = ReadAt<MINIDUMP_HEADER>(content, 0);
    constexpr std::uint32_t signature = 0x504D444D; // "MDMP"
    if (header.Signature != signature) {
        return streams;
    }
    for (std::uint32_t index = 0; index < header.NumberOfStreams; ++index) {
        const auto offset = header.StreamDirectoryRva + index * sizeof(MINIDUMP_DIRECTORY);
        const auto entry = ReadAt<MINIDUMP_DIRECTORY>(content, offset);
        if (entry.Location.DataSize != 0 && entry.Location.Rva + entry.Location.DataSize <= content.size()) {
            streams.insert(entry.StreamType);
        }
    }
    return streams;
}

// Wine takes seconds for one dump.
class DumpFileTest : public testing::Test {
protected:
    DumpFileTest() { std::filesystem::create_directories(m_folder); }

    ~DumpFileTest() override { std::filesystem::remove_all(m_folder); }

    std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("DumpFileTest" + std::to_string(GetCurrentProcessId()));
    std::filesystem::path m_path = m_folder / L"D\u00fcmp.dmp";
};

TEST_F(DumpFileTest, IsAMinidumpAtExactlyTheGivenPathAndItsCopyToo) {
    const std::filesystem::path copy = m_folder / "Copy.dmp";
    ASSERT_TRUE(CreateDumpFile(dumpMedium, m_path.c_str(), copy.c_str(), nullptr, 1));
    EXPECT_THAT(StreamsOf(Content(m_path)), IsSupersetOf({3U /* threads */, 4U /* modules */, 7U /* system */}));
    EXPECT_THAT(StreamsOf(Content(copy)), IsSupersetOf({3U, 4U, 7U}));
}

TEST_F(DumpFileTest, ASmallOneReplacesAnExistingFileOnlyOnRequest) {
    std::ofstream(m_path) << "old";
    EXPECT_FALSE(CreateDumpFile(dumpSmall, m_path.c_str(), nullptr, nullptr, 0));
    EXPECT_EQ(Content(m_path), "old");
    EXPECT_TRUE(CreateDumpFile(dumpSmall, m_path.c_str(), nullptr, nullptr, 1));
    EXPECT_THAT(StreamsOf(Content(m_path)), IsSupersetOf({3U, 4U, 7U}));
}

TEST_F(DumpFileTest, AMissingFolderIsAFailureOnlyAndIsNotCreated) {
    const std::filesystem::path missing = m_folder / "missing";
    EXPECT_FALSE(CreateDumpFile(dumpMedium, (missing / "x.dmp").c_str(), nullptr, nullptr, 1));
    EXPECT_FALSE(std::filesystem::exists(missing));
}

} // namespace
