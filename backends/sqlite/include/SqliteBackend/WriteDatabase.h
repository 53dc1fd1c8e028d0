#ifndef SQLITEBACKEND_WRITEDATABASE_H
#define SQLITEBACKEND_WRITEDATABASE_H

#include "SqliteBackend/ImportRecord.h"
#include "SqliteBackend/WriteError.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace ImportDame {
class VImportDoc;
}

namespace SqliteBackend {

/// Hears how far the writing is; what it throws ends the writing and leaves the old database in place.
class WriteProgress {
public:
    virtual ~WriteProgress();
    /// `done` of `total` top-level objects (data types, trouble codes, diagnostic communications) are written.
    virtual void Step(std::uint64_t done, std::uint64_t total) = 0;
};

struct WriteResult {
    std::vector<std::pair<std::string, std::uint64_t>> rows; ///< tables and their rows, in alphabetical order
    std::uint64_t bytes = 0;                                 ///< size of the database
    /// Characters of texts that UTF-8 cannot express and that became U+FFFD.
    std::uint64_t replacedCharacters = 0;
    /// References to objects that the document does not own, stored as absent.
    std::uint64_t unknownReferences = 0;

    /// 0 for a table that is not there.
    std::uint64_t RowsOf(const std::string& table) const;
};

/// Writes the document and the record of its import into a new SQLite database, which then takes the place of `target`.
///
/// The database grows in a temporary file beside `target`, is checked and flushed to the disk, and is then renamed:
/// however the process ends, `target` is the old database or the complete new one. The same document and record give
/// the same bytes. What a program left beside `target` that SQLite would play into it (`target`-journal, `target`-wal)
/// is refused with WriteError. Throws WriteError, std::bad_alloc, or what `progress` throws; then there is no temporary
/// file left and `target` is as it was.
///
/// SQLite works in a thread of its own meanwhile; the document is read, and `progress` called, in the caller's alone.
WriteResult WriteDatabase(ImportDame::VImportDoc& document, const ImportRecord& record,
                          const std::filesystem::path& target, WriteProgress* progress = nullptr);

/// The version of the SQLite library in use.
const char* SqliteVersion();

} // namespace SqliteBackend

#endif
