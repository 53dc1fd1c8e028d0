#ifndef SQLITEBACKEND_CONVERSIONS_H
#define SQLITEBACKEND_CONVERSIONS_H

#include "store/Insert.h"
#include "tables/Values.h"

#include <ImportDame/Fwd.h>

#include <cstdint>

namespace SqliteBackend {

/// How the values of scalar data types are converted, and which of them are invalid.
class Conversions {
public:
    static const char* const schema;

    Conversions(Connection& connection, Tally& tally, Values& values);

    void Write(std::int64_t dataTypeRow, std::int64_t position, ImportDame::VLinearConversion& conversion);
    void Write(std::int64_t dataTypeRow, ImportDame::VLinearConversionCollection& conversions);
    void Write(std::int64_t dataTypeRow, bool isInterpolated, ImportDame::VValueTableRowCollection& rows);
    void Write(std::int64_t dataTypeRow, ImportDame::VTextTableRowCollection& rows);
    void Write(ImportDame::VFormulaDataType& dataType, std::int64_t dataTypeRow);
    void Write(std::int64_t dataTypeRow, const char* direction, ImportDame::VFunctionCollection& functions);
    void Write(std::int64_t dataTypeRow, ImportDame::VInvalidRangeCollection& ranges);

private:
    void WriteFiles(std::int64_t functionRow, ImportDame::VAdditionalFileCollection& files);

    Values& m_values;
    Insert m_linear;
    Insert m_valueTables;
    Insert m_valueTableRows;
    Insert m_textTables;
    Insert m_textTableRows;
    Insert m_formulas;
    Insert m_functions;
    Insert m_additionalFiles;
    Insert m_invalidRanges;
};

} // namespace SqliteBackend

#endif
