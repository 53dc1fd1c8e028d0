#include "tables/Contents.h"

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/GapObject.h>

#include <sqlite3.h>

#include <optional>

namespace SqliteBackend {

const char* const Contents::schema = R"(
CREATE TABLE interchangeable(
    id                    INTEGER PRIMARY KEY,
    kind                  TEXT NOT NULL CHECK(kind IN ('data object', 'bit field', 'gap')),
    in_packet_id          INTEGER REFERENCES data_type(id),
    in_default_case_of_id INTEGER REFERENCES data_type(id),
    in_mux_case_id        INTEGER REFERENCES mux_case(id),
    in_bit_field_id       INTEGER REFERENCES interchangeable(id),
    position              INTEGER NOT NULL,
    depth                 INTEGER NOT NULL,
    @qualified,
    semantics             INTEGER,
    data_type_id          INTEGER REFERENCES data_type(id),
    const_value_id        INTEGER REFERENCES value(id),
    default_value_id      INTEGER REFERENCES value(id),
    bit_length            INTEGER,
    selector_id           INTEGER REFERENCES interchangeable(id),
    CHECK((in_packet_id IS NOT NULL) + (in_default_case_of_id IS NOT NULL) + (in_mux_case_id IS NOT NULL) <= 1),
    CHECK((kind = 'gap') = (bit_length IS NOT NULL)),
    CHECK((kind = 'gap') = (semantics IS NULL))
);
)";

Contents::Contents(Connection& connection, Tally& tally, Attributes& attributes, Values& values,
                   const References<ImportDame::VDataType>& dataTypes)
    : m_connection(connection), m_tally(tally), m_attributes(attributes), m_values(values), m_dataTypes(dataTypes),
      m_interchangeables(connection, tally, "interchangeable") {}

void Contents::Write(ContentOwner owner, std::int64_t ownerRow, ImportDame::VInterchangeableCollection& collection) {
    m_owners = {};
    if (owner != ContentOwner::Document)
        m_owners[static_cast<std::size_t>(owner)] = ownerRow;
    m_levels.push_back({std::nullopt, 0, collection.Begin(), collection.End()});
    while (!m_levels.empty()) {
        Level& level = m_levels.back();
        if (level.next == level.end) {
            m_levels.pop_back();
            continue;
        }
        ImportDame::VInterchangeable& interchangeable = *level.next;
        ++level.next;
        DispatchInterchangeable(interchangeable); // a bit field adds a level
    }
}

template <class... Values>
std::int64_t Contents::WriteRow(const char* kind, ImportDame::VInterchangeable& interchangeable, Values... values) {
    Level& level = m_levels.back();
    const std::int64_t row = m_interchangeables.NextRow();
    m_interchangeables.Row(row, kind, m_owners, level.bitFieldRow, level.position++, m_levels.size() - 1,
                           interchangeable, values..., nullptr);
    m_attributes.Write(AttributeOwner::Interchangeable, row, interchangeable.Attributes());
    return row;
}

void Contents::VisitDataObject(ImportDame::VDataObject& dataObject) {
    std::optional<std::int64_t> constValue;
    if (dataObject.HasConstValue())
        constValue = m_values.RowOf(dataObject.GetConstValue());
    std::optional<std::int64_t> defaultValue;
    if (dataObject.HasDefaultValue())
        defaultValue = m_values.RowOf(dataObject.GetDefaultValue());
    const std::int64_t row = WriteRow("data object", dataObject, dataObject.GetSemantics(),
                                      m_dataTypes.RowOf(dataObject.GetDataType()), constValue, defaultValue, nullptr);
    m_dataObjects.emplace_back(&dataObject, row);
    if (dataObject.HasSelectorDataObject())
        m_selectors.emplace_back(row, &dataObject.GetSelectorDataObject());
}

void Contents::VisitBitField(ImportDame::VBitField& bitField) {
    const std::int64_t row = WriteRow("bit field", bitField, bitField.GetSemantics(),
                                      m_dataTypes.RowOf(bitField.GetDataType()), nullptr, nullptr, nullptr);
    ImportDame::VInterchangeableCollection& members = bitField.InterchangeableCollection();
    m_levels.push_back({row, 0, members.Begin(), members.End()});
}

void Contents::VisitGapObject(ImportDame::VGapObject& gapObject) {
    WriteRow("gap", gapObject, nullptr, nullptr, nullptr, nullptr, gapObject.GetBitLength());
}

std::unordered_map<const ImportDame::VDataObject*, std::int64_t> Contents::RowsOfSelectors() const {
    std::unordered_map<const ImportDame::VDataObject*, std::int64_t> rows;
    for (const auto& [row, selector] : m_selectors)
        rows.emplace(selector, 0);
    for (const auto& [dataObject, row] : m_dataObjects)
        if (const auto found = rows.find(dataObject); found != rows.end())
            found->second = row;
    return rows;
}

void Contents::WriteSelectors() {
    if (m_selectors.empty())
        return;
    m_interchangeables.Flush();
    m_connection.FinishRows();
    const std::unordered_map<const ImportDame::VDataObject*, std::int64_t> rows = RowsOfSelectors();
    const StatementPointer update = m_connection.Prepare("UPDATE interchangeable SET selector_id = ? WHERE id = ?");
    for (const auto& [row, selector] : m_selectors) {
        const std::int64_t selectorRow = rows.at(selector);
        if (selectorRow == 0) {
            ++m_tally.unknownReferences;
            continue;
        }
        m_connection.Check(sqlite3_bind_int64(update.get(), 1, selectorRow));
        m_connection.Check(sqlite3_bind_int64(update.get(), 2, row));
        m_connection.Step(*update);
        m_connection.Check(sqlite3_reset(update.get()));
    }
}

} // namespace SqliteBackend
