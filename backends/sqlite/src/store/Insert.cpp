#include "store/Insert.h"

#include "SqliteBackend/Utf8.h"
#include "SqliteBackend/WriteError.h"

#include <ImportDame/Qualified.h>
#include <ImportDame/Text.h>

#include <sqlite3.h>

namespace SqliteBackend {

Insert::Insert(Connection& connection, Tally& tally, const std::string& table)
    : m_connection(connection), m_tally(tally), m_table(table), m_rows(tally.rows[table]) {
    m_columns = sqlite3_column_count(connection.Prepare("SELECT * FROM " + table).get());
    std::string sql = "INSERT INTO " + table + " VALUES(?";
    for (int column = 1; column < m_columns; ++column)
        sql += ",?";
    m_statement = connection.Prepare(sql + ")");
    m_buffers.resize(static_cast<std::size_t>(m_columns));
}

void Insert::Bind(double number) {
    m_connection.Check(sqlite3_bind_double(m_statement.get(), ++m_column, number));
}

void Insert::Bind(std::nullptr_t) {
    m_connection.Check(sqlite3_bind_null(m_statement.get(), ++m_column));
}

void Insert::Bind(const wchar_t* text) {
    if (!text)
        return Bind(nullptr);
    std::string& buffer = NextBuffer();
    m_tally.replacedCharacters += ToUtf8(text, buffer);
    BindBuffer(buffer);
}

void Insert::Bind(std::string_view text) {
    std::string& buffer = NextBuffer();
    m_tally.replacedCharacters += ToValidUtf8(text, buffer);
    BindBuffer(buffer);
}

void Insert::Bind(const ImportDame::VText& text) {
    Bind(text.GetText());
    Bind(text.HasTextId() ? text.GetTextId() : nullptr);
}

void Insert::Bind(ImportDame::VQualified& qualified) {
    Bind(qualified.GetQualifier());
    Bind(qualified.Name());
    Bind(qualified.Description());
    Bind(qualified.HasObjectIdentifier() ? qualified.GetObjectIdentifier() : nullptr);
    Bind(qualified.GetSourceInfo());
    Bind(qualified.IsImported());
}

void Insert::BindNumber(std::int64_t number) {
    m_connection.Check(sqlite3_bind_int64(m_statement.get(), ++m_column, number));
}

void Insert::BindBuffer(const std::string& buffer) {
    m_connection.Check(
        sqlite3_bind_text64(m_statement.get(), ++m_column, buffer.data(), buffer.size(), SQLITE_STATIC, SQLITE_UTF8));
}

std::string& Insert::NextBuffer() {
    return m_buffers.at(static_cast<std::size_t>(m_column));
}

void Insert::Finish() {
    if (m_column != m_columns)
        throw WriteError("a row for the table " + m_table + " has " + std::to_string(m_column) + " of " +
                         std::to_string(m_columns) + " values");
    m_connection.Step(*m_statement);
    m_connection.Check(sqlite3_reset(m_statement.get()));
    ++m_rows;
}

} // namespace SqliteBackend
