#include "store/Insert.h"

#include "SqliteBackend/Utf8.h"
#include "SqliteBackend/WriteError.h"

#include <ImportDame/Qualified.h>
#include <ImportDame/Text.h>

#include <sqlite3.h>

namespace SqliteBackend {

namespace {

/// One statement for several rows takes SQLite about two thirds of the time of one for each.
constexpr std::size_t rowsTogether = 32;

} // namespace

Insert::Insert(Connection& connection, Tally& tally, const std::string& table)
    : m_connection(connection), m_tally(tally), m_table(table), m_rows(tally.rows[table]) {
    m_columns = static_cast<std::size_t>(sqlite3_column_count(connection.Prepare("SELECT * FROM " + table).get()));
    m_one = PrepareFor(1);
    connection.Register(*this);
}

StatementPointer Insert::PrepareFor(std::size_t rows) {
    std::string row = "(?";
    for (std::size_t column = 1; column < m_columns; ++column)
        row += ",?";
    row += ")";
    std::string sql = "INSERT INTO " + m_table + " VALUES" + row;
    for (std::size_t count = 1; count < rows; ++count)
        sql += "," + row;
    return m_connection.Prepare(sql);
}

void Insert::Bind(double number) {
    m_cells.push_back({Cell::Real, 0, number, 0});
}

void Insert::Bind(std::nullptr_t) {
    m_cells.emplace_back();
}

void Insert::Bind(const wchar_t* text) {
    if (!text)
        return Bind(nullptr);
    const std::size_t begin = m_texts.size();
    m_tally.replacedCharacters += AppendUtf8(text, m_texts);
    EndText(begin);
}

void Insert::Bind(std::string_view text) {
    const std::size_t begin = m_texts.size();
    m_tally.replacedCharacters += AppendValidUtf8(text, m_texts);
    EndText(begin);
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
    m_cells.push_back({Cell::Whole, number, 0.0, 0});
}

void Insert::EndText(std::size_t begin) {
    m_cells.push_back({Cell::Text, static_cast<std::int64_t>(begin), 0.0, m_texts.size() - begin});
}

void Insert::Finish() {
    const std::size_t waiting = m_cells.size() / m_columns;
    if (m_cells.size() != waiting * m_columns)
        throw WriteError("a row for the table " + m_table + " has not " + std::to_string(m_columns) + " values");
    ++m_rows;
    if (waiting < rowsTogether)
        return;
    if (!m_many)
        m_many = PrepareFor(rowsTogether);
    WriteRows(*m_many, 0, rowsTogether);
    m_cells.clear();
    m_texts.clear();
}

void Insert::Flush() {
    for (std::size_t row = 0; row < m_cells.size() / m_columns; ++row)
        WriteRows(*m_one, row, 1);
    m_cells.clear();
    m_texts.clear();
}

void Insert::WriteRows(sqlite3_stmt& statement, std::size_t first, std::size_t rows) {
    int parameter = 0;
    for (std::size_t cell = first * m_columns; cell < (first + rows) * m_columns; ++cell)
        BindCell(statement, ++parameter, m_cells[cell]);
    m_connection.Step(statement);
    m_connection.Check(sqlite3_reset(&statement));
}

void Insert::BindCell(sqlite3_stmt& statement, int parameter, const Cell& cell) {
    switch (cell.kind) {
    case Cell::Null:
        return m_connection.Check(sqlite3_bind_null(&statement, parameter));
    case Cell::Whole:
        return m_connection.Check(sqlite3_bind_int64(&statement, parameter, cell.whole));
    case Cell::Real:
        return m_connection.Check(sqlite3_bind_double(&statement, parameter, cell.real));
    case Cell::Text:
        return m_connection.Check(sqlite3_bind_text64(&statement, parameter, m_texts.data() + cell.whole, cell.length,
                                                      SQLITE_STATIC, SQLITE_UTF8));
    }
}

} // namespace SqliteBackend
