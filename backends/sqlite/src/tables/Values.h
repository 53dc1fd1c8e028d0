#ifndef SQLITEBACKEND_VALUES_H
#define SQLITEBACKEND_VALUES_H

#include "store/Insert.h"

#include <ImportDame/Fwd.h>

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

namespace SqliteBackend {

/// The values of the document, each different one a row.
class Values {
public:
    static const char* const schema;

    Values(Connection& connection, Tally& tally);

    /// The row of the value, made if there is none yet.
    std::int64_t RowOf(ImportDame::VValue value);

    /// Of the start and the end, as far as they are there.
    Rows<2> EndsOf(ImportDame::VRange& range);
    std::optional<std::int64_t> InverseOf(ImportDame::VConversion& conversion);

private:
    std::int64_t Write(ImportDame::VValue& value);

    Insert m_values;
    Insert m_elements;
    std::unordered_map<std::wstring, std::int64_t> m_rows;
    std::wstring m_key;
};

} // namespace SqliteBackend

#endif
