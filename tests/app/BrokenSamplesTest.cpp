#include "app/Program.h"

#include <fstream>
#include <sstream>

namespace ConsoleImportTests {

namespace {

using SqliteBackendTests::Database;
using SqliteBackendTests::Rows;

class BrokenSamplesTest : public ProgramTest {
protected:
    void ExpectComplete(const std::string& name, const std::string& code) const {
        const Database database(m_folder / "out.sqlite");
        EXPECT_EQ(database.Query("PRAGMA integrity_check"), Rows{"ok"}) << name;
        EXPECT_EQ(database.Query("PRAGMA foreign_key_check"), Rows{}) << name;
        EXPECT_NE(database.Value("SELECT count(*) FROM diagnostic WHERE code = '" + code + "'"), "0") << name;
    }
};

} // namespace

TEST_F(BrokenSamplesTest, EachGivesItsDiagnosticsAndACompleteDatabaseOrNone) {
    std::ifstream expectations(std::string(BROKEN_SAMPLES) + "/expected.txt");
    std::string line;
    int samples = 0;
    while (std::getline(expectations, line)) {
        std::istringstream words(line);
        std::string name;
        std::string code;
        if (!(words >> name >> code))
            continue;
        ++samples;
        const Outcome outcome = RunProgram({"import", std::string(BROKEN_SAMPLES) + "/" + name, "--output",
                                            File("out.sqlite"), "--diagnostics", "json"});
        EXPECT_TRUE(Contains(outcome.out, "\"code\":\"" + code + "\"")) << name << ": " << outcome.out;
        if (outcome.exitCode == 3) {
            EXPECT_EQ(m_folder.Names(), Rows{}) << name;
            continue;
        }
        EXPECT_TRUE(outcome.exitCode == 0 || outcome.exitCode == 1) << name << ": " << outcome.err;
        ExpectComplete(name, code);
        std::filesystem::remove(m_folder / "out.sqlite");
    }
    EXPECT_GT(samples, 40);
}

} // namespace ConsoleImportTests
