#include "store/TableWriter.h"

#include <sqlite3.h>

namespace SqliteBackend {

TableWriter::TableWriter(Connection& connection, const std::string& table) : m_connection(connection), m_table(table) {
    m_columns = static_cast<std::size_t>(sqlite3_column_count(connection.Prepare("SELECT * FROM " + table).get()));
    m_one = PrepareFor(1);
}

StatementPointer TableWriter::PrepareFor(std::size_t rows) {
    std::string row = "(?";
    for (std::size_t column = 1; column < m_columns; ++column)
        row += ",?";
    row += ")";
    std::string sql = "INSERT INTO " + m_table + " VALUES" + row;
    for (std::size_t count = 1; count < rows; ++count)
        sql += "," + row;
    return m_connection.Prepare(sql);
}

void TableWriter::Write(const RowBatch& batch) {
    const std::size_t rows = batch.cells.size() / m_columns;
    if (rows == rowsTogether) {
        if (!m_many)
            m_many = PrepareFor(rowsTogether);
        WriteRows(*m_many, batch, 0, rowsTogether);
        return;
    }
    for (std::size_t row = 0; row < rows; ++row)
        WriteRows(*m_one, batch, row, 1);
}

void TableWriter::WriteRows(sqlite3_stmt& statement, const RowBatch& batch, std::size_t first, std::size_t rows) {
    int parameter = 0;
    for (std::size_t cell = first * m_columns; cell < (first + rows) * m_columns; ++cell)
        Bind(statement, ++parameter, batch, batch.cells[cell]);
    m_connection.Step(statement);
    m_connection.Check(sqlite3_reset(&statement));
}

void TableWriter::Bind(sqlite3_stmt& statement, int parameter, const RowBatch& batch, const Cell& cell) {
    switch (cell.kind) {
    case Cell::Null:
        return m_connection.Check(sqlite3_bind_null(&statement, parameter));
    case Cell::Whole:
        return m_connection.Check(sqlite3_bind_int64(&statement, parameter, cell.whole));
    case Cell::Real:
        return m_connection.Check(sqlite3_bind_double(&statement, parameter, cell.real));
    case Cell::Text:
        return m_connection.Check(sqlite3_bind_text64(&statement, parameter, batch.texts.data() + cell.whole,
                                                      cell.length, SQLITE_STATIC, SQLITE_UTF8));
    }
}

} // namespace SqliteBackend
