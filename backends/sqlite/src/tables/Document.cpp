#include "tables/Document.h"

#include <ImportDame/ImportDoc.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>

namespace SqliteBackend {

const char* const Document::schema = R"(
CREATE TABLE document(
    id          INTEGER PRIMARY KEY CHECK(id = 1),
    ecu_name    TEXT NOT NULL,
    language    TEXT NOT NULL,
    version_tag TEXT NOT NULL
);
CREATE TABLE unit(
    id           INTEGER PRIMARY KEY,
    @qualified,
    display_name TEXT NOT NULL
);
)";

Document::Document(Connection& connection, Tally& tally, Attributes& attributes)
    : m_attributes(attributes), m_document(connection, tally, "document"), m_units(connection, tally, "unit") {}

void Document::Write(ImportDame::VImportDoc& document) {
    m_document.Row(1, document.GetEcuName(), document.GetLanguage(), document.GetKDIVersion());
    for (ImportDame::VUnit& unit : document.UnitCollection()) {
        const std::int64_t row = m_units.NextRow();
        m_units.Row(row, unit, unit.GetDisplayName());
        m_attributes.Write(AttributeOwner::Unit, row, unit.Attributes());
    }
}

} // namespace SqliteBackend
