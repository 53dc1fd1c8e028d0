#include "sqlite/Database.h"

#include <sqlite3.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace SqliteBackendTests {

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do
        m_path = std::filesystem::temp_directory_path() / ("sqlite-backend-" + std::to_string(random()));
    while (!std::filesystem::create_directory(m_path));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::vector<std::string> TemporaryFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_path))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

Database::Database(const std::filesystem::path& file) {
    const std::u8string name = file.u8string();
    if (sqlite3_open_v2(reinterpret_cast<const char*>(name.c_str()), &m_database, SQLITE_OPEN_READONLY, nullptr) !=
        SQLITE_OK)
        ADD_FAILURE() << "cannot open " << file << ": " << sqlite3_errmsg(m_database);
}

Database::~Database() {
    sqlite3_close(m_database);
}

Rows Database::Query(const std::string& sql) const {
    Rows rows;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << sql << ": " << sqlite3_errmsg(m_database);
        return rows;
    }
    int result = SQLITE_OK;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        std::string row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            row += (column == 0 ? "" : "|") + std::string(text ? text : "NULL");
        }
        rows.push_back(row);
    }
    EXPECT_EQ(result, SQLITE_DONE) << sql << ": " << sqlite3_errmsg(m_database);
    sqlite3_finalize(statement);
    return rows;
}

std::string Database::Value(const std::string& sql) const {
    const Rows rows = Query(sql);
    if (rows.empty())
        ADD_FAILURE() << "no row from " << sql;
    return rows.empty() ? std::string() : rows.front();
}

const SqliteBackend::WriteResult& WrittenDocument::Write(ImportDame::VImportDoc& document,
                                                         const SqliteBackend::ImportRecord& record) {
    m_result = SqliteBackend::WriteDatabase(document, record, m_folder / "out.sqlite");
    return m_result;
}

Rows WrittenDocument::Query(const std::string& sql) const {
    return Database(m_folder / "out.sqlite").Query(sql);
}

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace SqliteBackendTests
