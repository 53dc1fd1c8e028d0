#ifndef SQLITEBACKEND_CONNECTION_H
#define SQLITEBACKEND_CONNECTION_H

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace SqliteBackend {

class TableWriter;
class WritingThread;
struct RowBatch;

struct StatementDeleter {
    void operator()(sqlite3_stmt* statement) const noexcept;
};

using StatementPointer = std::unique_ptr<sqlite3_stmt, StatementDeleter>;

/// Rows that are written together.
class PendingRows {
public:
    virtual void Flush() = 0;

protected:
    ~PendingRows() = default;
};

/// A connection to a new database that nobody else uses. Every failure throws WriteError with SQLite's cause, or
/// std::bad_alloc.
class Connection {
public:
    /// The file exists and is empty.
    explicit Connection(const std::filesystem::path& file);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    /// One statement or several.
    void Execute(const char* sql);
    StatementPointer Prepare(const std::string& sql);
    /// Answers whether there is a row.
    bool Step(sqlite3_stmt& statement);

    /// The rows outlive the last FlushAll.
    void Register(PendingRows& rows) { m_pending.push_back(&rows); }

    /// Writes all rows that still wait.
    void FlushAll();

    /// Writes the rows, or lets the thread do it that writes for the connection. Leaves an empty batch.
    void Write(TableWriter& table, RowBatch& batch);
    /// Returns when all rows are written. Before that nothing but rows can be written.
    void FinishRows();

    /// Null: without a thread.
    void WriteThrough(WritingThread* thread) { m_thread = thread; }

    /// Throws unless `result` is SQLITE_OK.
    void Check(int result);

    /// All statements must be gone.
    void Close();

private:
    [[noreturn]] void Fail(int result);

    sqlite3* m_database = nullptr;
    std::vector<PendingRows*> m_pending;
    WritingThread* m_thread = nullptr;
};

} // namespace SqliteBackend

#endif
