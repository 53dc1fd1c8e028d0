#include "Schema.h"

#include "Views.h"
#include "store/Insert.h"
#include "tables/Attributes.h"
#include "tables/Contents.h"
#include "tables/Conversions.h"
#include "tables/DataTypes.h"
#include "tables/Document.h"
#include "tables/Enumerations.h"
#include "tables/ImportRecords.h"
#include "tables/Packets.h"
#include "tables/Properties.h"
#include "tables/TroubleCodes.h"
#include "tables/Values.h"
#include "tables/Variants.h"

#include <string>

namespace SqliteBackend {

namespace {

/// "SQDM" as a number: what `file` and others can tell the database by.
constexpr const char* identity = "PRAGMA application_id = 1397834829;";

/// What leads from an owner to what it owns. Where the primary key begins with the owner it does that already, and
/// owners that are few have none.
constexpr const char* indexes = R"(
CREATE INDEX trouble_code_by_collection ON trouble_code(trouble_code_collection_id, position);
CREATE INDEX trouble_code_by_code ON trouble_code(code);
CREATE INDEX data_type_by_qualifier ON data_type(qualifier);
CREATE INDEX mux_case_by_mux ON mux_case(mux_id, position);
CREATE INDEX conversion_function_by_data_type ON conversion_function(data_type_id, direction, position);
CREATE INDEX diag_comm_by_variant ON diag_comm(variant_id, position);
CREATE INDEX diag_comm_by_qualifier ON diag_comm(qualifier);
CREATE INDEX service_shape_by_service ON service_shape(diag_comm_id, position);
CREATE INDEX interchangeable_by_packet ON interchangeable(in_packet_id) WHERE in_packet_id IS NOT NULL;
CREATE INDEX interchangeable_by_default_case ON interchangeable(in_default_case_of_id)
    WHERE in_default_case_of_id IS NOT NULL;
CREATE INDEX interchangeable_by_case ON interchangeable(in_mux_case_id) WHERE in_mux_case_id IS NOT NULL;
CREATE INDEX interchangeable_by_bit_field ON interchangeable(in_bit_field_id) WHERE in_bit_field_id IS NOT NULL;
CREATE INDEX attribute_by_data_type ON attribute(data_type_id) WHERE data_type_id IS NOT NULL;
CREATE INDEX attribute_by_interchangeable ON attribute(interchangeable_id) WHERE interchangeable_id IS NOT NULL;
CREATE INDEX attribute_by_diag_comm ON attribute(diag_comm_id) WHERE diag_comm_id IS NOT NULL;
CREATE INDEX attribute_by_trouble_code ON attribute(trouble_code_id) WHERE trouble_code_id IS NOT NULL;
)";

/// Puts the columns of qualified objects where the schema has "@qualified".
std::string Expand(std::string schema) {
    static const std::string placeholder = "@qualified";
    for (auto at = schema.find(placeholder); at != std::string::npos; at = schema.find(placeholder))
        schema.replace(at, placeholder.size(), qualifiedColumns);
    return schema;
}

} // namespace

void CreateTables(Connection& connection) {
    connection.Execute(identity);
    connection.Execute(("PRAGMA user_version = " + std::to_string(schemaVersion)).c_str());
    for (const char* schema : {Enumerations::schema, Document::schema, DataTypes::schema, Values::schema,
                               Properties::schema, Conversions::schema, Packets::schema, Contents::schema,
                               TroubleCodes::schema, Variants::schema, Attributes::schema, ImportRecords::schema})
        connection.Execute(Expand(schema).c_str());
}

void CreateIndexesAndViews(Connection& connection) {
    connection.Execute(indexes);
    connection.Execute(views);
}

} // namespace SqliteBackend
