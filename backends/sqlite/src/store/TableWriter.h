#ifndef SQLITEBACKEND_TABLEWRITER_H
#define SQLITEBACKEND_TABLEWRITER_H

#include "store/Connection.h"
#include "store/RowBatch.h"

#include <cstddef>
#include <string>

namespace SqliteBackend {

/// The statements that insert rows into one table.
class TableWriter {
public:
    /// One statement for several rows takes SQLite about two thirds of the time of one for each.
    static constexpr std::size_t rowsTogether = 32;

    TableWriter(Connection& connection, const std::string& table);

    const std::string& Table() const { return m_table; }

    std::size_t Columns() const { return m_columns; }

    /// Inserts up to `rowsTogether` rows.
    void Write(const RowBatch& batch);

private:
    StatementPointer PrepareFor(std::size_t rows);
    void WriteRows(sqlite3_stmt& statement, const RowBatch& batch, std::size_t first, std::size_t rows);
    void Bind(sqlite3_stmt& statement, int parameter, const RowBatch& batch, const Cell& cell);

    Connection& m_connection;
    std::string m_table;
    std::size_t m_columns = 0;
    StatementPointer m_one;  ///< inserts a single row
    StatementPointer m_many; ///< inserts `rowsTogether`; made when there are so many
};

} // namespace SqliteBackend

#endif
