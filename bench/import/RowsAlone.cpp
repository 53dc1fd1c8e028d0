// RowsAlone DATABASE XML COPY: how long SQLite takes for the rows and indexes of a finished database when all rows lie
// ready in memory, as a ratio to pugixml that merely parses the XML. The least that an import into that database takes
// is both. Medians of five, in turn.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <pugixml.hpp>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace {

constexpr int rounds = 5;
constexpr std::size_t rowsTogether = 32; // as the back end writes them

using Value = std::variant<std::nullptr_t, std::int64_t, double, std::string>;

struct Table {
    std::string create;
    std::string name;
    std::size_t columns = 0;
    std::vector<Value> values; ///< row by row
};

class Database {
public:
    Database(const std::string& file, int flags) {
        if (sqlite3_open_v2(file.c_str(), &m_handle, flags | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK)
            throw std::runtime_error("cannot open " + file);
    }

    Database(const Database&) = delete;

    ~Database() { sqlite3_close(m_handle); }

    void Execute(const std::string& sql) {
        if (sqlite3_exec(m_handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_handle));
    }

    sqlite3_stmt* Prepare(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_handle, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_handle));
        return statement;
    }

private:
    sqlite3* m_handle = nullptr;
};

std::string TextOf(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

Value ValueOf(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return nullptr;
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    default:
        return TextOf(statement, column);
    }
}

/// The statements that made objects of a kind, with their names, in the order in which they were made.
std::vector<std::pair<std::string, std::string>> StatementsFor(Database& from, const std::string& kind) {
    std::vector<std::pair<std::string, std::string>> statements;
    sqlite3_stmt* const list = from.Prepare("SELECT sql, name FROM sqlite_master WHERE type = '" + kind +
                                            "' AND sql NOT NULL AND name NOT LIKE 'sqlite%' ORDER BY rowid");
    while (sqlite3_step(list) == SQLITE_ROW)
        statements.emplace_back(TextOf(list, 0), TextOf(list, 1));
    sqlite3_finalize(list);
    return statements;
}

std::vector<Table> ReadTables(Database& from) {
    std::vector<Table> tables;
    for (auto& [create, name] : StatementsFor(from, "table")) {
        Table table{create, name, 0, {}};
        sqlite3_stmt* const rows = from.Prepare("SELECT * FROM \"" + name + "\"");
        table.columns = static_cast<std::size_t>(sqlite3_column_count(rows));
        while (sqlite3_step(rows) == SQLITE_ROW)
            for (std::size_t column = 0; column < table.columns; ++column)
                table.values.push_back(ValueOf(rows, static_cast<int>(column)));
        sqlite3_finalize(rows);
        tables.push_back(std::move(table));
    }
    return tables;
}

void Bind(sqlite3_stmt* statement, int at, const Value& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value))
        sqlite3_bind_int64(statement, at, *number);
    else if (const auto* real = std::get_if<double>(&value))
        sqlite3_bind_double(statement, at, *real);
    else if (const auto* text = std::get_if<std::string>(&value))
        sqlite3_bind_text(statement, at, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
    else
        sqlite3_bind_null(statement, at);
}

void InsertRows(Database& into, const Table& table, std::size_t firstRow, std::size_t endRow, std::size_t together) {
    std::string row = "(?";
    for (std::size_t column = 1; column < table.columns; ++column)
        row += ",?";
    std::string sql = "INSERT INTO \"" + table.name + "\" VALUES " + row + ")";
    for (std::size_t more = 1; more < together; ++more)
        sql += "," + row + ")";
    sqlite3_stmt* const statement = into.Prepare(sql);
    for (std::size_t at = firstRow * table.columns; at < endRow * table.columns;) {
        for (std::size_t parameter = 1; parameter <= together * table.columns; ++parameter)
            Bind(statement, static_cast<int>(parameter), table.values[at++]);
        if (sqlite3_step(statement) != SQLITE_DONE)
            throw std::runtime_error("a row of " + table.name + " cannot be inserted");
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
}

void Write(const std::vector<Table>& tables, const std::vector<std::pair<std::string, std::string>>& indexes,
           const std::string& file) {
    std::filesystem::remove(file);
    Database into(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    into.Execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA secure_delete = ON;"
                 "PRAGMA locking_mode = EXCLUSIVE; PRAGMA temp_store = MEMORY; PRAGMA cache_size = -32768;"
                 "PRAGMA ignore_check_constraints = ON; BEGIN");
    for (const Table& table : tables)
        into.Execute(table.create);
    for (const Table& table : tables) {
        const std::size_t rows = table.values.size() / table.columns;
        const std::size_t full = rows / rowsTogether * rowsTogether;
        InsertRows(into, table, 0, full, rowsTogether);
        InsertRows(into, table, full, rows, 1);
    }
    for (const auto& index : indexes)
        into.Execute(index.first);
    into.Execute("COMMIT");
}

double SecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Parse(const char* file) {
    pugi::xml_document document;
    if (const pugi::xml_parse_result result = document.load_file(file); !result)
        throw std::runtime_error(result.description());
}

void Compare(const char* database, const char* xml, const char* copy) {
    Database from(database, SQLITE_OPEN_READONLY);
    const std::vector<Table> tables = ReadTables(from);
    const auto indexes = StatementsFor(from, "index");
    std::array<double, rounds> parses{}, writes{};
    for (std::size_t round = 0; round < rounds; ++round) {
        parses[round] = SecondsOf([xml] { Parse(xml); });
        writes[round] = SecondsOf([&] { Write(tables, indexes, copy); });
    }
    std::sort(parses.begin(), parses.end());
    std::sort(writes.begin(), writes.end());
    std::printf("%10s  %8.3f s %8.3f s %6.1f  SQLite with the same rows, ready in memory\n", "", parses[rounds / 2],
                writes[rounds / 2], writes[rounds / 2] / parses[rounds / 2]);
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::fputs("usage: RowsAlone DATABASE XML COPY\n", stderr);
        return 2;
    }
    try {
        Compare(arguments[1], arguments[2], arguments[3]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "RowsAlone: %s\n", error.what());
        return 1;
    }
}
