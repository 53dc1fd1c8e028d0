#include "sqlite/Database.h"
#include "sqlite/SampleDocument.h"

namespace SqliteBackendTests {

namespace {

std::string BytesOfNewDocument(const TemporaryFolder& folder, const SqliteBackend::ImportRecord& record) {
    ImportDame::VImportDoc document;
    FillDocument(document, 50);
    SqliteBackend::WriteDatabase(document, record, folder / "out.sqlite");
    return ReadFile(folder / "out.sqlite");
}

} // namespace

TEST(DeterminismTest, TheSameContentGivesTheSameBytesWhereverItLies) {
    const TemporaryFolder folder;
    const std::string first = BytesOfNewDocument(folder, {});
    EXPECT_GT(first.size(), 100000U);
    for (int repetition = 0; repetition < 6; ++repetition)
        EXPECT_TRUE(BytesOfNewDocument(folder, {}) == first) << "repetition " << repetition;
}

TEST(DeterminismTest, AnotherTimeGivesOtherBytes) {
    const TemporaryFolder folder;
    SqliteBackend::ImportRecord later;
    later.time = 1;
    EXPECT_FALSE(BytesOfNewDocument(folder, {}) == BytesOfNewDocument(folder, later));
}

TEST(DeterminismTest, WritingADocumentTwiceGivesTheSameBytes) {
    const TemporaryFolder folder;
    ImportDame::VImportDoc document;
    FillDocument(document, 20);
    SqliteBackend::WriteDatabase(document, {}, folder / "one.sqlite");
    SqliteBackend::WriteDatabase(document, {}, folder / "two.sqlite");
    EXPECT_TRUE(ReadFile(folder / "one.sqlite") == ReadFile(folder / "two.sqlite"));
}

TEST(DeterminismTest, TheDatabasePassesSqlitesOwnChecks) {
    const TemporaryFolder folder;
    BytesOfNewDocument(folder, {});
    const Database database(folder / "out.sqlite");
    EXPECT_EQ(database.Query("PRAGMA integrity_check"), Rows{"ok"});
    EXPECT_EQ(database.Query("PRAGMA foreign_key_check"), Rows{});
}

} // namespace SqliteBackendTests
