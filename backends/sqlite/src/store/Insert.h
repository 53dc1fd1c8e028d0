#ifndef SQLITEBACKEND_INSERT_H
#define SQLITEBACKEND_INSERT_H

#include "store/TableWriter.h"

#include <ImportDame/Fwd.h>

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace SqliteBackend {

/// What came into the database, and what was lost on the way.
struct Tally {
    std::map<std::string, std::uint64_t> rows; ///< by table
    std::uint64_t replacedCharacters = 0;
    std::uint64_t unknownReferences = 0;
};

/// References, each in a column of its own; those that are absent are NULL.
template <std::size_t columns>
using Rows = std::array<std::optional<std::int64_t>, columns>;

/// Inserts rows into one table, some at a time: the last ones wait for a flush. The values are given in the order of
/// the table's columns; some stand for several columns: a VText for its text and its text identifier, a VQualified for
/// the eight columns of `qualifiedColumns`.
class Insert final : private PendingRows {
public:
    Insert(Connection& connection, Tally& tally, const std::string& table);
    Insert(const Insert&) = delete;
    Insert& operator=(const Insert&) = delete;

    template <class... Values>
    void Row(Values&&... values) {
        (Bind(values), ...);
        Finish();
    }

    /// The number of the row that comes next, from 1, where rows are numbered in the order they come.
    std::int64_t NextRow() const { return LastRow() + 1; }

    std::int64_t LastRow() const { return static_cast<std::int64_t>(m_rows); }

    /// Writes the rows that still wait.
    void Flush() override;

private:
    template <std::integral Number>
    void Bind(Number number) {
        BindNumber(static_cast<std::int64_t>(number));
    }

    template <class Enumeration>
    requires std::is_enum_v<Enumeration>

    void Bind(Enumeration value) { BindNumber(static_cast<std::int64_t>(value)); }

    template <class Value>
    void Bind(const std::optional<Value>& value) {
        if (value)
            Bind(*value);
        else
            Bind(nullptr);
    }

    template <std::size_t columns>
    void Bind(const Rows<columns>& values) {
        for (const std::optional<std::int64_t>& value : values)
            Bind(value);
    }

    void Bind(double number);
    void Bind(std::nullptr_t);
    void Bind(const wchar_t* text); ///< null is NULL
    void Bind(std::string_view text);
    void Bind(const ImportDame::VText& text);
    void Bind(ImportDame::VQualified& qualified);

    void BindNumber(std::int64_t number);
    void EndText(std::size_t begin);
    void Finish();

    Connection& m_connection;
    Tally& m_tally;
    TableWriter m_writer;
    RowBatch m_batch;
    std::uint64_t& m_rows;
};

/// The columns that every qualified object has.
inline constexpr const char* qualifiedColumns = R"(qualifier           TEXT NOT NULL,
    name                TEXT NOT NULL,
    name_text_id        TEXT,
    description         TEXT NOT NULL,
    description_text_id TEXT,
    object_identifier   TEXT,
    source_info         TEXT NOT NULL,
    is_imported         INTEGER NOT NULL)";

} // namespace SqliteBackend

#endif
