#include "tables/Conversions.h"

#include "order/ContentOrder.h"

#include <ImportDame/AdditionalFile.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/Function.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/TextTableRowCollection.h>
#include <ImportDame/ValueTableRow.h>
#include <ImportDame/ValueTableRowCollection.h>

namespace SqliteBackend {

const char* const Conversions::schema = R"(
CREATE TABLE linear_conversion(
    data_type_id       INTEGER NOT NULL REFERENCES data_type(id),
    position           INTEGER NOT NULL,
    factor_numerator   REAL,
    factor_denominator INTEGER NOT NULL,
    "offset"           REAL,
    start_value_id     INTEGER REFERENCES value(id),
    end_value_id       INTEGER REFERENCES value(id),
    inverse_value_id   INTEGER REFERENCES value(id),
    PRIMARY KEY(data_type_id, position)
) WITHOUT ROWID;
CREATE TABLE value_table(
    data_type_id    INTEGER PRIMARY KEY REFERENCES data_type(id),
    is_interpolated INTEGER NOT NULL
);
CREATE TABLE value_table_row(
    data_type_id INTEGER NOT NULL REFERENCES value_table(data_type_id),
    position     INTEGER NOT NULL,
    coded_value  REAL,
    mapped_value REAL,
    PRIMARY KEY(data_type_id, position)
) WITHOUT ROWID;
CREATE TABLE text_table(
    data_type_id         INTEGER PRIMARY KEY REFERENCES data_type(id),
    default_text         TEXT NOT NULL,
    default_text_text_id TEXT
);
CREATE TABLE text_table_row(
    data_type_id            INTEGER NOT NULL REFERENCES text_table(data_type_id),
    position                INTEGER NOT NULL,
    start_value_id          INTEGER REFERENCES value(id),
    end_value_id            INTEGER REFERENCES value(id),
    mapped_text             TEXT NOT NULL,
    mapped_text_text_id     TEXT,
    additional_info         TEXT NOT NULL,
    additional_info_text_id TEXT,
    inverse_value_id        INTEGER REFERENCES value(id),
    PRIMARY KEY(data_type_id, position)
) WITHOUT ROWID;
CREATE TABLE formula(
    data_type_id      INTEGER PRIMARY KEY REFERENCES data_type(id),
    coded_to_physical TEXT NOT NULL,
    physical_to_coded TEXT
);
CREATE TABLE conversion_function(
    id           INTEGER PRIMARY KEY,
    data_type_id INTEGER NOT NULL REFERENCES data_type(id),
    direction    TEXT NOT NULL CHECK(direction IN ('coded to physical', 'physical to coded')),
    position     INTEGER NOT NULL,
    version      TEXT NOT NULL,
    entry_point  TEXT NOT NULL,
    syntax       TEXT NOT NULL,
    encryption   TEXT NOT NULL,
    source_file  TEXT NOT NULL
);
CREATE TABLE additional_file(
    conversion_function_id INTEGER NOT NULL REFERENCES conversion_function(id),
    position               INTEGER NOT NULL,
    path                   TEXT NOT NULL,
    PRIMARY KEY(conversion_function_id, position)
) WITHOUT ROWID;
CREATE TABLE invalid_range(
    data_type_id          INTEGER NOT NULL REFERENCES data_type(id),
    position              INTEGER NOT NULL,
    start_value_id        INTEGER REFERENCES value(id),
    end_value_id          INTEGER REFERENCES value(id),
    invalidity            INTEGER NOT NULL,
    assigned_text         TEXT NOT NULL,
    assigned_text_text_id TEXT,
    PRIMARY KEY(data_type_id, position)
) WITHOUT ROWID;
)";

Conversions::Conversions(Connection& connection, Tally& tally, Values& values)
    : m_values(values), m_linear(connection, tally, "linear_conversion"),
      m_valueTables(connection, tally, "value_table"), m_valueTableRows(connection, tally, "value_table_row"),
      m_textTables(connection, tally, "text_table"), m_textTableRows(connection, tally, "text_table_row"),
      m_formulas(connection, tally, "formula"), m_functions(connection, tally, "conversion_function"),
      m_additionalFiles(connection, tally, "additional_file"), m_invalidRanges(connection, tally, "invalid_range") {}

void Conversions::Write(std::int64_t dataTypeRow, std::int64_t position, ImportDame::VLinearConversion& conversion) {
    // Values get their rows in this order, whatever the order in which a compiler evaluates arguments.
    const auto ends = m_values.EndsOf(conversion.GetRange());
    const auto inverse = m_values.InverseOf(conversion);
    m_linear.Row(dataTypeRow, position, conversion.GetFactorNumerator(), conversion.GetFactorDenominator(),
                 conversion.GetOffset(), ends, inverse);
}

void Conversions::Write(std::int64_t dataTypeRow, ImportDame::VLinearConversionCollection& conversions) {
    std::int64_t position = 0;
    for (ImportDame::VLinearConversion* conversion : InContentOrder(conversions))
        Write(dataTypeRow, position++, *conversion);
}

void Conversions::Write(std::int64_t dataTypeRow, bool isInterpolated, ImportDame::VValueTableRowCollection& rows) {
    m_valueTables.Row(dataTypeRow, isInterpolated);
    std::int64_t position = 0;
    for (ImportDame::VValueTableRow& row : rows)
        m_valueTableRows.Row(dataTypeRow, position++, row.GetCodedValue(), row.GetMappedValue());
}

void Conversions::Write(std::int64_t dataTypeRow, ImportDame::VTextTableRowCollection& rows) {
    m_textTables.Row(dataTypeRow, rows.DefaultValue());
    std::int64_t position = 0;
    for (ImportDame::VTextTableRow& row : rows) {
        const auto ends = m_values.EndsOf(row.GetRange());
        const auto inverse = m_values.InverseOf(row);
        m_textTableRows.Row(dataTypeRow, position++, ends, row.MappedValue(), row.AdditionalInfo(), inverse);
    }
}

void Conversions::Write(ImportDame::VFormulaDataType& dataType, std::int64_t dataTypeRow) {
    m_formulas.Row(dataTypeRow, dataType.GetCodedToPhysFormula(),
                   dataType.HasPhysToCodedFormula() ? dataType.GetPhysToCodedFormula() : nullptr);
}

void Conversions::Write(std::int64_t dataTypeRow, const char* direction, ImportDame::VFunctionCollection& functions) {
    std::int64_t position = 0;
    for (ImportDame::VFunction* function : InContentOrder(functions)) {
        const std::int64_t row = m_functions.NextRow();
        m_functions.Row(row, dataTypeRow, direction, position++, function->GetVersion(), function->GetEntryPoint(),
                        function->GetSyntax(), function->GetEncryption(), function->SourceFile().GetPath());
        WriteFiles(row, function->AdditionalFileCollection());
    }
}

void Conversions::WriteFiles(std::int64_t functionRow, ImportDame::VAdditionalFileCollection& files) {
    std::int64_t position = 0;
    for (ImportDame::VAdditionalFile* file : InContentOrder(files))
        m_additionalFiles.Row(functionRow, position++, file->GetPath());
}

void Conversions::Write(std::int64_t dataTypeRow, ImportDame::VInvalidRangeCollection& ranges) {
    std::int64_t position = 0;
    for (ImportDame::VInvalidRange* range : InContentOrder(ranges))
        m_invalidRanges.Row(dataTypeRow, position++, m_values.EndsOf(*range), range->GetInvalidity(),
                            range->AssignedText());
}

} // namespace SqliteBackend
