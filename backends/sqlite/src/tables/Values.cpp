#include "tables/Values.h"

#include <ImportDame/Conversion.h>
#include <ImportDame/Range.h>
#include <ImportDame/Value.h>

namespace SqliteBackend {

const char* const Values::schema = R"(
CREATE TABLE value(
    id          INTEGER PRIMARY KEY,
    text        TEXT NOT NULL,
    is_physical INTEGER NOT NULL,
    is_field    INTEGER NOT NULL
);
CREATE TABLE value_element(
    value_id INTEGER NOT NULL REFERENCES value(id),
    position INTEGER NOT NULL,
    text     TEXT NOT NULL,
    PRIMARY KEY(value_id, position)
) WITHOUT ROWID;
)";

namespace {

/// Equal for equal values alone: no text holds a zero.
void MakeKey(ImportDame::VValue& value, std::wstring& key) {
    key = value.IsPhysical() ? L"p" : L"c";
    if (!value.IsField()) {
        key += value.Get();
        return;
    }
    const auto size = static_cast<unsigned int>(value.GetFieldSize());
    for (unsigned int index = 0; index < size; ++index) {
        key += L'\0';
        key += value.GetElement(index);
    }
    key += L'\0';
}

std::wstring Joined(ImportDame::VValue& value) {
    std::wstring text;
    const auto size = static_cast<unsigned int>(value.GetFieldSize());
    for (unsigned int index = 0; index < size; ++index) {
        if (index != 0)
            text += L' ';
        text += value.GetElement(index);
    }
    return text;
}

} // namespace

Values::Values(Connection& connection, Tally& tally)
    : m_values(connection, tally, "value"), m_elements(connection, tally, "value_element") {}

std::int64_t Values::RowOf(ImportDame::VValue value) {
    MakeKey(value, m_key);
    const auto found = m_rows.find(m_key);
    if (found != m_rows.end())
        return found->second;
    const std::int64_t row = Write(value);
    m_rows.emplace(m_key, row);
    return row;
}

std::int64_t Values::Write(ImportDame::VValue& value) {
    const std::int64_t row = m_values.NextRow();
    if (!value.IsField()) {
        m_values.Row(row, value.Get(), value.IsPhysical(), false);
        return row;
    }
    m_values.Row(row, Joined(value).c_str(), value.IsPhysical(), true);
    const auto size = static_cast<unsigned int>(value.GetFieldSize());
    for (unsigned int index = 0; index < size; ++index)
        m_elements.Row(row, index, value.GetElement(index));
    return row;
}

Rows<2> Values::EndsOf(ImportDame::VRange& range) {
    Rows<2> ends;
    if (range.HasStartValue())
        ends[0] = RowOf(range.GetStartValue());
    if (range.HasEndValue())
        ends[1] = RowOf(range.GetEndValue());
    return ends;
}

std::optional<std::int64_t> Values::InverseOf(ImportDame::VConversion& conversion) {
    if (!conversion.HasCompuInverseValue())
        return std::nullopt;
    return RowOf(conversion.GetCompuInverseValue());
}

} // namespace SqliteBackend
