#include "sqlite/Database.h"
#include "sqlite/SampleDocument.h"

#include <fstream>
#include <stdexcept>
#include <utility>

namespace SqliteBackendTests {

namespace {

using namespace SqliteBackend;

class ReplacementTest : public testing::Test {
protected:
    std::string MessageOf(const std::filesystem::path& target) {
        try {
            WriteDatabase(m_document, {}, target);
        } catch (const WriteError& error) {
            return error.what();
        }
        return "no error";
    }

    TemporaryFolder m_folder;
    ImportDame::VImportDoc m_document;
};

class Interruption : public WriteProgress {
public:
    void Step(std::uint64_t done, std::uint64_t total) override {
        m_total = total;
        if (done == 3)
            throw std::runtime_error("stop");
    }

    std::uint64_t m_total = 0;
};

/// Begins to change the older database while the new one is written.
class OtherProgram : public WriteProgress {
public:
    explicit OtherProgram(std::filesystem::path journal) : m_journal(std::move(journal)) {}

    void Step(std::uint64_t, std::uint64_t) override { std::ofstream(m_journal) << "changes"; }

private:
    std::filesystem::path m_journal;
};

class Recorder : public WriteProgress {
public:
    void Step(std::uint64_t done, std::uint64_t total) override {
        EXPECT_EQ(done, ++m_steps);
        EXPECT_EQ(total, 12U);
    }

    std::uint64_t m_steps = 0;
};

} // namespace

TEST_F(ReplacementTest, OnlyTheDatabaseStaysInTheFolder) {
    WriteDatabase(m_document, {}, m_folder / "out.sqlite");
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite"});
}

TEST_F(ReplacementTest, TheResultTellsTheSize) {
    const WriteResult result = WriteDatabase(m_document, {}, m_folder / "out.sqlite");
    EXPECT_EQ(result.bytes, std::filesystem::file_size(m_folder / "out.sqlite"));
}

TEST_F(ReplacementTest, AnOldFileIsReplacedWhateverItWas) {
    std::ofstream(m_folder / "out.sqlite") << "no database";
    FillDocument(m_document, 1, L"new");
    WriteDatabase(m_document, {}, m_folder / "out.sqlite");
    EXPECT_EQ(Database(m_folder / "out.sqlite").Value("SELECT ecu_name FROM document"), "new");
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite"});
}

TEST_F(ReplacementTest, ProgressCountsEveryTopLevelObject) {
    FillDocument(m_document, 2);
    Recorder recorder;
    WriteDatabase(m_document, {}, m_folder / "out.sqlite", &recorder);
    EXPECT_EQ(recorder.m_steps, 12U);
}

TEST_F(ReplacementTest, WhatProgressThrowsLeavesTheOldDatabase) {
    WriteDatabase(m_document, {}, m_folder / "out.sqlite");
    const std::string before = ReadFile(m_folder / "out.sqlite");
    FillDocument(m_document, 2);
    Interruption interruption;
    EXPECT_THROW(WriteDatabase(m_document, {}, m_folder / "out.sqlite", &interruption), std::runtime_error);
    EXPECT_TRUE(ReadFile(m_folder / "out.sqlite") == before);
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite"});
}

TEST_F(ReplacementTest, AMissingFolderIsNamedWithTheCause) {
    const std::string message = MessageOf(m_folder / "missing" / "out.sqlite");
    EXPECT_NE(message.find("out.sqlite: no file can be created in its folder: "), std::string::npos) << message;
}

TEST_F(ReplacementTest, AFolderIsNotReplaced) {
    std::filesystem::create_directory(m_folder / "out.sqlite");
    const std::string message = MessageOf(m_folder / "out.sqlite");
    EXPECT_NE(message.find("out.sqlite: it is there already and is no file"), std::string::npos) << message;
    EXPECT_TRUE(std::filesystem::is_directory(m_folder / "out.sqlite"));
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite"});
}

TEST_F(ReplacementTest, ChangesToAnOlderDatabaseThatLieBesideAreNotPlayedIntoTheNewOne) {
    for (const char* left : {"out.sqlite-journal", "out.sqlite-wal"}) {
        std::ofstream(m_folder / "out.sqlite") << "old";
        std::ofstream(m_folder / left) << "changes";
        const std::string message = MessageOf(m_folder / "out.sqlite");
        EXPECT_NE(message.find(std::string("out.sqlite: beside it lies ") + left), std::string::npos) << message;
        EXPECT_EQ(ReadFile(m_folder / "out.sqlite"), "old");
        EXPECT_EQ(ReadFile(m_folder / left), "changes");
        EXPECT_EQ(m_folder.Names(), (Rows{"out.sqlite", left}));
        std::filesystem::remove(m_folder / left);
    }
}

TEST_F(ReplacementTest, ChangesAreLookedForWhereTheOlderDatabaseIsGoneToo) {
    std::ofstream(m_folder / "out.sqlite-wal") << "changes";
    EXPECT_THROW(WriteDatabase(m_document, {}, m_folder / "out.sqlite"), WriteError);
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite-wal"});
}

TEST_F(ReplacementTest, ChangesThatComeUpWhileItIsWrittenAreSeen) {
    std::ofstream(m_folder / "out.sqlite") << "old";
    FillDocument(m_document, 2);
    OtherProgram other(m_folder / "out.sqlite-journal");
    EXPECT_THROW(WriteDatabase(m_document, {}, m_folder / "out.sqlite", &other), WriteError);
    EXPECT_EQ(ReadFile(m_folder / "out.sqlite"), "old");
    EXPECT_EQ(m_folder.Names(), (Rows{"out.sqlite", "out.sqlite-journal"}));
}

TEST_F(ReplacementTest, ChangesBesideTheFileBehindALinkAreSeen) {
    std::filesystem::create_directory(m_folder / "data");
    std::ofstream(m_folder / "data" / "real.sqlite") << "old";
    std::error_code error;
    std::filesystem::create_symlink(m_folder / "data" / "real.sqlite", m_folder / "out.sqlite", error);
    if (error)
        GTEST_SKIP() << "no links here: " << error.message();
    for (const auto& left : {m_folder / "data" / "real.sqlite-journal", m_folder / "out.sqlite-journal"}) {
        std::ofstream(left) << "changes";
        EXPECT_THROW(WriteDatabase(m_document, {}, m_folder / "out.sqlite"), WriteError) << left;
        std::filesystem::remove(left);
    }
    WriteDatabase(m_document, {}, m_folder / "out.sqlite");
    EXPECT_EQ(Database(m_folder / "data" / "real.sqlite").Value("SELECT count(*) FROM document"), "1");
}

TEST_F(ReplacementTest, WhatSqlitePassesOverDoesNotHinder) {
    std::ofstream(m_folder / "out.sqlite-journal") << std::string(512, '\0'); // kept between transactions
    std::ofstream(m_folder / "out.sqlite-wal") << "";
    std::ofstream(m_folder / "out.sqlite-shm") << "index of the other file";
    WriteDatabase(m_document, {}, m_folder / "out.sqlite");
    EXPECT_EQ(Database(m_folder / "out.sqlite").Value("SELECT count(*) FROM document"), "1");
}

TEST_F(ReplacementTest, NamesOutsideAsciiAreFine) {
    const std::filesystem::path target = m_folder.Path() / std::filesystem::path(u8"K\u00FChlung \U0001F697.sqlite");
    WriteDatabase(m_document, {}, target);
    EXPECT_EQ(Database(target).Value("SELECT count(*) FROM document"), "1");
}

TEST_F(ReplacementTest, NamesWithCharactersOfSqliteAddressesAreNames) {
    const std::filesystem::path target = m_folder / "file%3Amemory#x.sqlite";
    WriteDatabase(m_document, {}, target);
    EXPECT_EQ(m_folder.Names(), Rows{"file%3Amemory#x.sqlite"});
}

} // namespace SqliteBackendTests
