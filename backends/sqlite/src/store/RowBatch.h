#ifndef SQLITEBACKEND_ROWBATCH_H
#define SQLITEBACKEND_ROWBATCH_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace SqliteBackend {

/// A value of a row. What it is decides which of the others counts.
struct Cell {
    enum Kind : std::uint8_t { Null, Whole, Real, Text } kind = Null;

    union {
        std::int64_t whole = 0; ///< of a text, where it begins in the batch's texts
        double real;
    };

    std::uint64_t length = 0;
};

/// Rows of one table that are written together.
struct RowBatch {
    std::vector<Cell> cells; ///< of one row after the other
    std::string texts;       ///< UTF-8

    void Clear() {
        cells.clear();
        texts.clear();
    }
};

} // namespace SqliteBackend

#endif
