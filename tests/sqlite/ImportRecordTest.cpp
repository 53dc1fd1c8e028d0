#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

namespace SqliteBackendTests {

namespace {

class ImportRecordTest : public WrittenDocument {
protected:
    ImportDame::VImportDoc m_document;
    SqliteBackend::ImportRecord m_record;
};

} // namespace

TEST_F(ImportRecordTest, TheTimeIsStoredAsTextAndAsNumber) {
    m_record.time = 1715938200;
    m_record.facts = {{"importer version", "1.0.0"}};
    Write(m_document, m_record);
    EXPECT_EQ(Query("SELECT * FROM import_fact"),
              (Rows{"characters replaced by U+FFFD|0", "importer version|1.0.0",
                    "references to objects outside the document|0", "time|2024-05-17T09:30:00Z",
                    "time in seconds since 1970|1715938200"}));
}

TEST_F(ImportRecordTest, TimesBefore1970AndLeapDaysAreRight) {
    m_record.time = -1;
    Write(m_document, m_record);
    EXPECT_EQ(Query("SELECT value FROM import_fact WHERE key = 'time'"), Rows{"1969-12-31T23:59:59Z"});
    m_record.time = 951782400;
    Write(m_document, m_record);
    EXPECT_EQ(Query("SELECT value FROM import_fact WHERE key = 'time'"), Rows{"2000-02-29T00:00:00Z"});
}

TEST_F(ImportRecordTest, InputsDiagnosticsAndLedgerAreStored) {
    m_record.inputs = {{"a.pdx!b.odx-d", 12, "ab", "2.2.0", "DIAG-LAYER-CONTAINER", "Container"}};
    m_record.diagnostics = {
        {"warning", "ODX0502", "hex prefix", "value repaired", "write digits", "a.odx-d", 3, 9, "/A/B"},
        {"info", "ODX0001", "fine", "", "", "", 0, 0, ""}};
    m_record.unlistedDiagnostics = {{"ODX0502", 5}};
    m_record.ledger = {{"UNIT", 3, 1, 1, 1, {{"dropped", "no name", 1}, {"not represented", "outside", 1}}}};
    Write(m_document, m_record);
    EXPECT_EQ(Query("SELECT * FROM import_input"), Rows{"1|a.pdx!b.odx-d|12|ab|2.2.0|DIAG-LAYER-CONTAINER|Container"});
    EXPECT_EQ(Query("SELECT * FROM diagnostic"),
              (Rows{"1|warning|ODX0502|hex prefix|value repaired|write digits|a.odx-d|3|9|/A/B",
                    "2|info|ODX0001|fine||||NULL|NULL|"}));
    EXPECT_EQ(Query("SELECT * FROM diagnostic_not_listed"), Rows{"ODX0502|5"});
    EXPECT_EQ(Query("SELECT * FROM ledger"), Rows{"UNIT|3|1|1|1"});
    EXPECT_EQ(Query("SELECT * FROM import_losses"), (Rows{"UNIT|dropped|no name|1", "UNIT|not represented|outside|1"}));
}

TEST_F(ImportRecordTest, ALedgerWithOneKindTwiceIsRefusedAndLeavesNoFile) {
    m_record.ledger = {{"UNIT", 1, 1, 0, 0, {}}, {"UNIT", 1, 1, 0, 0, {}}};
    EXPECT_THROW(Write(m_document, m_record), SqliteBackend::WriteError);
    EXPECT_EQ(m_folder.Names(), Rows{});
}

TEST_F(ImportRecordTest, TheSchemaHasAVersion) {
    Write(m_document);
    EXPECT_EQ(Query("PRAGMA user_version"), Rows{"1"});
    EXPECT_EQ(Query("PRAGMA application_id"), Rows{"1397834829"});
}

} // namespace SqliteBackendTests
