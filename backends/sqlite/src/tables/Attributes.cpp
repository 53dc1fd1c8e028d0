#include "tables/Attributes.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/AttributeCollection.h>

#include <vector>

namespace SqliteBackend {

const char* const Attributes::schema = R"(
CREATE TABLE attribute(
    id                 INTEGER PRIMARY KEY,
    data_type_id       INTEGER REFERENCES data_type(id),
    interchangeable_id INTEGER REFERENCES interchangeable(id),
    mux_case_id        INTEGER REFERENCES mux_case(id),
    unit_id            INTEGER REFERENCES unit(id),
    variant_id         INTEGER REFERENCES variant(id),
    diag_comm_id       INTEGER REFERENCES diag_comm(id),
    service_shape_id   INTEGER REFERENCES service_shape(id),
    trouble_code_id    INTEGER REFERENCES trouble_code(id),
    attribute_id       INTEGER REFERENCES attribute(id),
    position           INTEGER NOT NULL,
    @qualified,
    value              TEXT NOT NULL,
    CHECK((data_type_id IS NOT NULL) + (interchangeable_id IS NOT NULL) + (mux_case_id IS NOT NULL)
        + (unit_id IS NOT NULL) + (variant_id IS NOT NULL) + (diag_comm_id IS NOT NULL)
        + (service_shape_id IS NOT NULL) + (trouble_code_id IS NOT NULL) + (attribute_id IS NOT NULL) = 1)
);
)";

Attributes::Attributes(Connection& connection, Tally& tally) : m_attributes(connection, tally, "attribute") {}

void Attributes::Write(AttributeOwner owner, std::int64_t ownerRow, ImportDame::VAttributeCollection& collection) {
    using Iterator = ImportDame::VAttributeCollection::iterator;

    struct Level {
        AttributeOwner owner;
        std::int64_t ownerRow;
        std::int64_t position;
        Iterator next;
        Iterator end;
    };

    if (collection.IsEmpty())
        return;
    // Attributes have attributes of their own, to any depth: the levels are kept here and not on the call stack.
    std::vector<Level> levels{{owner, ownerRow, 0, collection.Begin(), collection.End()}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.end) {
            levels.pop_back();
            continue;
        }
        ImportDame::VAttribute& attribute = *level.next;
        ++level.next;
        const std::int64_t row = WriteOne(level.owner, level.ownerRow, level.position++, attribute);
        ImportDame::VAttributeCollection& own = attribute.Attributes();
        if (!own.IsEmpty())
            levels.push_back({AttributeOwner::Attribute, row, 0, own.Begin(), own.End()});
    }
}

std::int64_t Attributes::WriteOne(AttributeOwner owner, std::int64_t ownerRow, std::int64_t position,
                                  ImportDame::VAttribute& attribute) {
    Rows<static_cast<std::size_t>(AttributeOwner::Count_)> owners;
    owners[static_cast<std::size_t>(owner)] = ownerRow;
    const std::int64_t row = m_attributes.NextRow();
    m_attributes.Row(row, owners, position, attribute, attribute.GetValue());
    return row;
}

} // namespace SqliteBackend
