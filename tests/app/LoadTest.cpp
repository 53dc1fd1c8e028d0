#include "LoadTemplate.h"
#include "app/Program.h"

#include <fstream>
#include <iterator>

namespace ConsoleImportTests {

using SqliteBackendTests::Database;
using SqliteBackendTests::Rows;

namespace {

class LoadTest : public ProgramTest {
protected:
    /// Imports so many repetitions of every kind of object.
    Outcome Import(std::uint64_t repetitions) const {
        std::ifstream in(LOAD_TEMPLATES "/mixed.xml", std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        std::ofstream out(m_folder / "load.odx-d", std::ios::binary);
        OdxLoad::LoadTemplate(text, OdxLoad::Encoding::Utf16Be).Write(out, repetitions);
        out.close();
        return RunProgram({"import", File("load.odx-d"), "--output", File("out.sqlite")});
    }
};

} // namespace

TEST_F(LoadTest, TheDatabaseOfALargerDocumentIsSoundAndFulfilsItsConstraints) {
    const Outcome outcome = Import(40);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const Database database(m_folder / "out.sqlite");
    EXPECT_EQ(database.Query("PRAGMA integrity_check"), Rows{"ok"});
    EXPECT_EQ(database.Query("PRAGMA foreign_key_check"), Rows{});
    EXPECT_EQ(database.Query("SELECT kind FROM ledger WHERE seen <> imported + not_represented + dropped"), Rows{});
}

TEST_F(LoadTest, EveryRepetitionIsInTheDatabase) {
    ASSERT_EQ(Import(40).exitCode, 0);
    const Database database(m_folder / "out.sqlite");
    EXPECT_EQ(database.Query("SELECT count(*), count(DISTINCT code) FROM trouble_code"), Rows{"163|162"});
    EXPECT_EQ(database.Query("SELECT count(*), min(id), max(id) FROM unit"), Rows{"40|1|40"});
    EXPECT_EQ(database.Query("SELECT v.kind, count(*) FROM diag_comm AS d JOIN variant AS v ON v.id = d.variant_id "
                             "GROUP BY v.id"),
              (Rows{"base variant|200", "ECU variant|200"}));
    EXPECT_EQ(database.Query("SELECT count(*) FROM data_type WHERE kind = 'linear'"), Rows{"40"});
    EXPECT_EQ(database.Query("SELECT error_text FROM trouble_code WHERE code = 402"),
              Rows{"Circuit 2 of device 0000040 is open or short to ground"});
}

} // namespace ConsoleImportTests
