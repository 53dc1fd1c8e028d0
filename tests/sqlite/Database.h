/// @file
/// A folder for one test, and what stands in a database.
#pragma once

#include <SqliteBackend/WriteDatabase.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

struct sqlite3;

namespace SqliteBackendTests {

/// A new empty folder, removed with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    std::filesystem::path operator/(const char* name) const { return m_path / name; }

    const std::filesystem::path& Path() const { return m_path; }

    /// The names in the folder, in alphabetical order.
    std::vector<std::string> Names() const;

private:
    std::filesystem::path m_path;
};

using Rows = std::vector<std::string>;

/// A database opened for reading.
class Database {
public:
    explicit Database(const std::filesystem::path& file);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    /// Each row as one text, its columns separated by "|", NULL as "NULL".
    Rows Query(const std::string& sql) const;
    /// The first column of the first row.
    std::string Value(const std::string& sql) const;

private:
    sqlite3* m_database = nullptr;
};

/// A test that writes one document and asks the database.
class WrittenDocument : public testing::Test {
protected:
    /// Writes; afterwards `Query` reads what was written.
    const SqliteBackend::WriteResult& Write(ImportDame::VImportDoc& document,
                                            const SqliteBackend::ImportRecord& record = {});
    Rows Query(const std::string& sql) const;

    TemporaryFolder m_folder;
    SqliteBackend::WriteResult m_result;
};

std::string ReadFile(const std::filesystem::path& file);

} // namespace SqliteBackendTests
