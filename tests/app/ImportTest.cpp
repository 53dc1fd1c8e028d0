#include "app/Program.h"

#include <csignal>
#include <fstream>

#include "ProgressBar.h"

namespace ConsoleImportTests {

namespace {

using SqliteBackendTests::Database;
using SqliteBackendTests::ReadFile;
using SqliteBackendTests::Rows;

class ImportTest : public ProgramTest {
protected:
    Rows Query(const std::string& sql) const { return Database(m_folder / "out.sqlite").Query(sql); }
};

std::string Broken(const char* name) {
    return std::string(BROKEN_SAMPLES) + "/" + name;
}

} // namespace

TEST_F(ImportTest, TheSampleBecomesADatabase) {
    const Outcome outcome = ImportSample();
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_TRUE(Contains(outcome.out, "Imported base variant CoolantPump from 4 documents")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "sqlite3 -box")) << outcome.out;
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite"});
    EXPECT_EQ(Query("SELECT kind, qualifier FROM variant"),
              (Rows{"base variant|CoolantPump", "ECU variant|CoolantPump_Large", "ECU variant|CoolantPump_Small"}));
    EXPECT_EQ(Query("SELECT code, error_text FROM trouble_codes WHERE code = '0x800001'"),
              Rows{"0x800001|Rotor is blocked"});
    EXPECT_EQ(Query("SELECT service_id, shape, sub_value FROM services WHERE variant = 'CoolantPump' AND qualifier = "
                    "'ReadState'"),
              Rows{"0x22|RQ_ReadState|0x1234"});
    EXPECT_EQ(Query("SELECT from_value, to_value, conversion FROM data_type_conversions WHERE qualifier = "
                    "'Temperature'"),
              Rows{"0|254|coded * 1 / 2 - 40"});
}

TEST_F(ImportTest, TheDatabaseKeepsProvenanceDiagnosticsAndALedgerThatAddsUp) {
    ASSERT_EQ(ImportSample().exitCode, 0);
    EXPECT_EQ(Query("SELECT value FROM import_fact WHERE key IN ('base variant', 'program') ORDER BY key"),
              (Rows{"CoolantPump", "ConsoleImport 1.0.0"}));
    EXPECT_EQ(Query("SELECT count(*), min(length(sha256)), min(bytes) > 0 FROM import_input"), Rows{"4|64|1"});
    EXPECT_EQ(Query("SELECT severity, code FROM diagnostic"), Rows{"info|ODX0111"});
    EXPECT_EQ(Query("SELECT * FROM ledger WHERE seen <> imported + not_represented + dropped"), Rows{});
    EXPECT_EQ(Query("SELECT l.kind FROM ledger l WHERE l.not_represented + l.dropped <> "
                    "(SELECT coalesce(sum(count), 0) FROM ledger_reason r WHERE r.kind = l.kind)"),
              Rows{});
}

TEST_F(ImportTest, InputsThatAreNotThereEndWith3AndWriteNothing) {
    const Outcome outcome = RunProgram({"import", File("missing.pdx"), "--output", File("out.sqlite")});
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_TRUE(Contains(outcome.err, "missing.pdx")) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, "Give PDX archives")) << outcome.err;
    EXPECT_EQ(m_folder.Names(), Rows{});
}

TEST_F(ImportTest, SeveralBaseVariantsNeedAChoice) {
    const std::vector<std::string> import{"import", Broken("two-base-variants.odx-d"), "--output", File("out.sqlite")};
    Outcome outcome = RunProgram(import);
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_EQ(m_folder.Names(), Rows{});
    const std::string option = "  --base-variant ";
    const auto at = outcome.err.find(option);
    ASSERT_NE(at, std::string::npos) << outcome.err;
    const auto end = outcome.err.find('\n', at);
    const std::string name = outcome.err.substr(at + option.size(), end - at - option.size());

    std::vector<std::string> chosen = import;
    chosen.insert(chosen.end(), {"--base-variant", name});
    outcome = RunProgram(chosen);
    EXPECT_LE(outcome.exitCode, 1) << outcome.err;
    EXPECT_EQ(Query("SELECT qualifier FROM variant WHERE kind = 'base variant'"), Rows{name});

    chosen.back() = "Nobody";
    outcome = RunProgram(chosen);
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_TRUE(Contains(outcome.err, "no base variant Nobody")) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, option + name)) << outcome.err;
}

TEST_F(ImportTest, BaseVariantsOfOneNameAreToldApartByTheirFiles) {
    for (const char* name : {"a", "b"})
        std::ofstream(m_folder / (std::string(name) + ".odx-d").c_str())
            << "<ODX MODEL-VERSION='2.2.0'><DIAG-LAYER-CONTAINER ID='c'><SHORT-NAME>" << name
            << "</SHORT-NAME><BASE-VARIANTS><BASE-VARIANT ID='b'><SHORT-NAME>B</SHORT-NAME></BASE-VARIANT>"
               "</BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>";
    const Outcome outcome = RunProgram({"import", m_folder.Path().string(), "--output", File("out.sqlite")});
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_TRUE(Contains(outcome.err, "a.odx-d, ")) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, "Leave the files with the others out of the inputs, or take the first one:\n"
                                      "  --base-variant B\n"))
        << outcome.err;
}

TEST_F(ImportTest, StrictMakesWarningsErrors) {
    std::vector<std::string> import{"import", Broken("hexadecimal-prefix.odx-d"), "--output", File("out.sqlite")};
    Outcome outcome = RunProgram(import);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, "warning ODX0502")) << outcome.err;
    import.push_back("--strict");
    outcome = RunProgram(import);
    EXPECT_EQ(outcome.exitCode, 1) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, "error ODX0502")) << outcome.err;
    EXPECT_EQ(Query("SELECT DISTINCT severity FROM diagnostic WHERE code = 'ODX0502'"), Rows{"error"});
}

TEST_F(ImportTest, TheLanguageIsStored) {
    ASSERT_EQ(ImportSample({"--language", "de"}).exitCode, 0);
    EXPECT_EQ(Query("SELECT language FROM document"), Rows{"de"});
}

TEST_F(ImportTest, FilesThatCannotBeWrittenEndWith4AndLeaveTheOldDatabase) {
    ASSERT_EQ(ImportSample().exitCode, 0);
    const std::string before = ReadFile(m_folder / "out.sqlite");
    for (const char* option : {"--dump", "--log"}) {
        const Outcome outcome = ImportSample({option, File("missing/file")});
        EXPECT_EQ(outcome.exitCode, 4) << option;
        EXPECT_TRUE(Contains(outcome.err, "missing")) << outcome.err;
        EXPECT_TRUE(ReadFile(m_folder / "out.sqlite") == before) << option;
    }
    const Outcome outcome = RunProgram({"import", SAMPLE_ARCHIVE, "--output", File("missing/out.sqlite")});
    EXPECT_EQ(outcome.exitCode, 4);
    EXPECT_TRUE(Contains(outcome.err, "cannot write ")) << outcome.err;
    EXPECT_EQ(m_folder.Names(), Rows{"out.sqlite"});
}

TEST_F(ImportTest, ALogFileOnAFullDiskEndsWith4AndLeavesTheOldDatabase) {
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "there is no full device";
    ASSERT_EQ(ImportSample().exitCode, 0);
    std::ofstream(m_folder / "out.sqlite") << "old";
    const Outcome import = ImportSample({"--log", "/dev/full"});
    EXPECT_EQ(import.exitCode, 4);
    EXPECT_TRUE(Contains(import.err, "cannot write the log file /dev/full: ")) << import.err;
    EXPECT_EQ(ReadFile(m_folder / "out.sqlite"), "old");
    EXPECT_EQ(RunProgram({"list", SAMPLE_ARCHIVE, "--log", "/dev/full"}).exitCode, 4);
}

TEST_F(ImportTest, WhatAnOlderDatabaseLeftUnfinishedEndsWith4AndIsNamedWithWhatToDo) {
    ASSERT_EQ(ImportSample().exitCode, 0);
    const std::string before = ReadFile(m_folder / "out.sqlite");
    std::ofstream(m_folder / "out.sqlite-wal") << "changes";
    const Outcome outcome = ImportSample();
    EXPECT_EQ(outcome.exitCode, 4);
    EXPECT_TRUE(Contains(outcome.err, "out.sqlite-wal")) << outcome.err;
    EXPECT_TRUE(Contains(outcome.err, "Open the older database once")) << outcome.err;
    EXPECT_FALSE(Contains(outcome.err, "has room")) << outcome.err;
    EXPECT_TRUE(ReadFile(m_folder / "out.sqlite") == before);
    EXPECT_EQ(m_folder.Names(), (Rows{"out.sqlite", "out.sqlite-wal"}));
}

TEST_F(ImportTest, AnInterruptionEndsWith130AndLeavesNoFile) {
    ConsoleImport::CatchInterruptions();
    std::raise(SIGINT);
    const Outcome outcome = ImportSample();
    ConsoleImport::CatchInterruptions();
    EXPECT_EQ(outcome.exitCode, 130);
    EXPECT_TRUE(Contains(outcome.err, "interrupted")) << outcome.err;
    EXPECT_EQ(m_folder.Names(), Rows{});
}

} // namespace ConsoleImportTests
