#include "sqlite/Database.h"
#include "sqlite/FailingVfs.h"
#include "sqlite/SampleDocument.h"

namespace SqliteBackendTests {

using namespace SqliteBackend;

TEST(FailingWriteTest, WhicheverWriteFindsTheDiskFullTheOldDatabaseStaysAndNothingElse) {
    const TemporaryFolder folder;
    const std::filesystem::path target = folder / "out.sqlite";
    ImportDame::VImportDoc document;
    FillDocument(document, 1, L"old");
    WriteDatabase(document, {}, target);
    const std::string before = ReadFile(target);
    ImportDame::VImportDoc large;
    FillDocument(large, 40, L"new");

    const FailingVfs disk;
    int survived = 0;
    for (int number = 1; !testing::Test::HasFailure(); ++number) {
        FailingVfs::FailWrite(number);
        try {
            WriteDatabase(large, {}, target);
            break;
        } catch (const WriteError& error) {
            ++survived;
            EXPECT_NE(std::string(error.what()).find("database or disk is full"), std::string::npos) << error.what();
        }
        EXPECT_TRUE(ReadFile(target) == before) << "write " << number;
        EXPECT_EQ(folder.Names(), Rows{"out.sqlite"}) << "write " << number;
    }
    EXPECT_EQ(survived, FailingVfs::Writes());
    EXPECT_GE(survived, 50);
    FailingVfs::FailWrite(0);
    EXPECT_EQ(Database(target).Value("SELECT ecu_name FROM document"), "new");
}

} // namespace SqliteBackendTests
