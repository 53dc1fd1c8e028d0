#include "sqlite/Database.h"
#include "sqlite/SampleDocument.h"

#include <chrono>
#include <random>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace SqliteBackendTests {

namespace {

/// Replaces the database again and again, until killed.
[[noreturn]] void WriteForever(const std::filesystem::path& target) {
    for (unsigned int generation = 1;; ++generation) {
        ImportDame::VImportDoc document;
        FillDocument(document, 40, L"generation " + std::to_wstring(generation));
        SqliteBackend::WriteDatabase(document, {}, target);
    }
}

void RunAndKillAfter(std::chrono::microseconds delay, const std::filesystem::path& target) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        WriteForever(target);
    std::this_thread::sleep_for(delay);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
}

} // namespace

TEST(KillTest, AKillAtAnyMomentLeavesACompleteDatabase) {
    const TemporaryFolder folder;
    ImportDame::VImportDoc document;
    FillDocument(document, 40, L"generation 0");
    const auto start = std::chrono::steady_clock::now();
    SqliteBackend::WriteDatabase(document, {}, folder / "out.sqlite");
    const auto oneWrite =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);

    std::mt19937 random(20240517);
    std::uniform_int_distribution<std::int64_t> delays(0, 3 * oneWrite.count());
    std::size_t leftOvers = 0;
    for (int round = 0; round < 40; ++round) {
        RunAndKillAfter(std::chrono::microseconds(delays(random)), folder / "out.sqlite");
        const Database database(folder / "out.sqlite");
        ASSERT_EQ(database.Query("PRAGMA integrity_check"), Rows{"ok"}) << "round " << round;
        ASSERT_EQ(database.Value("SELECT count(*) FROM diag_comm"), "40") << "round " << round;
        ASSERT_EQ(database.Value("SELECT ecu_name FROM document").substr(0, 11), "generation ");
        leftOvers = folder.Names().size() - 1;
    }
    EXPECT_GT(leftOvers, 0U) << "no kill came while a file was being written: the test has shown nothing";
}

} // namespace SqliteBackendTests
