#include "store/Connection.h"

#include "SqliteBackend/Utf8.h"
#include "SqliteBackend/WriteError.h"
#include "store/TableWriter.h"
#include "store/WritingThread.h"

#include <sqlite3.h>

#include <new>
#include <system_error>

namespace SqliteBackend {

namespace {

/// SQLite's words, with the system's behind them where it was the system that refused.
std::string Cause(sqlite3& database, int result) {
    std::string cause = sqlite3_errmsg(&database);
    const int primary = result & 0xFF;
    const int systemError = sqlite3_system_errno(&database);
    if (systemError != 0 && (primary == SQLITE_IOERR || primary == SQLITE_CANTOPEN || primary == SQLITE_FULL))
        cause += " (" + std::system_category().message(systemError) + ")";
    return cause;
}

} // namespace

void StatementDeleter::operator()(sqlite3_stmt* statement) const noexcept {
    sqlite3_finalize(statement);
}

Connection::Connection(const std::filesystem::path& file) {
    const std::string name = PathText(file.u8string());
    const int result = sqlite3_open_v2(name.c_str(), &m_database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (result != SQLITE_OK) {
        const std::string cause = m_database ? Cause(*m_database, result) : sqlite3_errstr(result);
        sqlite3_close(m_database);
        throw WriteError(cause);
    }
    sqlite3_extended_result_codes(m_database, 1);
}

Connection::~Connection() {
    sqlite3_close_v2(m_database);
}

void Connection::Execute(const char* sql) {
    Check(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr));
}

StatementPointer Connection::Prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v3(m_database, sql.c_str(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                             &statement, nullptr));
    return StatementPointer(statement);
}

bool Connection::Step(sqlite3_stmt& statement) {
    const int result = sqlite3_step(&statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        Fail(result);
    return result == SQLITE_ROW;
}

void Connection::FlushAll() {
    for (PendingRows* rows : m_pending)
        rows->Flush();
    FinishRows();
}

void Connection::Write(TableWriter& table, RowBatch& batch) {
    if (m_thread)
        return m_thread->Add(table, batch);
    table.Write(batch);
    batch.Clear();
}

void Connection::FinishRows() {
    if (m_thread)
        m_thread->Finish();
}

void Connection::Check(int result) {
    if (result != SQLITE_OK)
        Fail(result);
}

void Connection::Close() {
    Check(sqlite3_close(m_database));
    m_database = nullptr;
}

void Connection::Fail(int result) {
    if ((result & 0xFF) == SQLITE_NOMEM)
        throw std::bad_alloc();
    throw WriteError(Cause(*m_database, result));
}

} // namespace SqliteBackend
