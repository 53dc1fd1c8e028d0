#include "sqlite/ChildProcess.h"
#include "sqlite/Database.h"
#include "sqlite/SampleDocument.h"

#include <chrono>
#include <random>
#include <thread>

namespace SqliteBackendTests {

namespace {

using Clock = std::chrono::steady_clock;

/// Waits until the folder has something else than the database: the next one is being written.
bool WaitForWriting(const TemporaryFolder& folder) {
    for (const auto end = Clock::now() + std::chrono::seconds(30); Clock::now() < end;) {
        if (folder.Names() != Rows{"out.sqlite"})
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

void RemoveLeftOvers(const TemporaryFolder& folder) {
    for (const std::string& name : folder.Names())
        if (name != "out.sqlite")
            std::filesystem::remove(folder / name.c_str());
}

} // namespace

TEST(KillTest, AKillAtAnyMomentLeavesACompleteDatabase) {
    const TemporaryFolder folder;
    ImportDame::VImportDoc document;
    FillDocument(document, 40, L"generation 0");
    const auto start = Clock::now();
    SqliteBackend::WriteDatabase(document, {}, folder / "out.sqlite");
    const auto oneWrite = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);

    std::mt19937 random(20240517);
    std::uniform_int_distribution<std::int64_t> delays(0, 3 * oneWrite.count());
    int leftOvers = 0;
    for (int round = 0; round < 40; ++round) {
        ChildProcess process(WRITE_FOREVER, folder / "out.sqlite");
        ASSERT_TRUE(WaitForWriting(folder)) << "round " << round;
        std::this_thread::sleep_for(std::chrono::microseconds(delays(random)));
        ASSERT_TRUE(process.Kill()) << "round " << round << ": the process ended by itself";
        const Database database(folder / "out.sqlite");
        ASSERT_EQ(database.Query("PRAGMA integrity_check"), Rows{"ok"}) << "round " << round;
        ASSERT_EQ(database.Value("SELECT count(*) FROM diag_comm"), "40") << "round " << round;
        ASSERT_EQ(database.Value("SELECT ecu_name FROM document").substr(0, 11), "generation ");
        leftOvers += folder.Names().size() > 1 ? 1 : 0;
        RemoveLeftOvers(folder);
    }
    EXPECT_GT(leftOvers, 0) << "no kill came while a file was being written: the test has shown nothing";
}

} // namespace SqliteBackendTests
