#ifndef SQLITEBACKEND_IMPORTRECORD_H
#define SQLITEBACKEND_IMPORTRECORD_H

#include <cstdint>
#include <string>
#include <vector>

namespace SqliteBackend {

// How a document came about: stored beside its content. All texts are UTF-8; whatever is not is stored with U+FFFD in
// its place.

/// One file or archive entry that was read.
struct InputRecord {
    std::string file;
    std::uint64_t bytes = 0;
    std::string sha256; ///< lower-case hexadecimal
    std::string modelVersion;
    std::string category;
    std::string shortName;
};

/// One problem found in the input.
struct DiagnosticRecord {
    std::string severity; ///< "info", "warning", "error" or "fatal"
    std::string code;
    std::string message;
    std::string outcome; ///< what was done about it; empty when nothing had to be
    std::string advice;
    std::string file;
    std::uint32_t line = 0;   ///< from 1; 0 when the place has none
    std::uint32_t column = 0; ///< from 1; 0 when the place has none
    std::string objectPath;
};

/// Problems of one kind that were counted, but of which not every one is listed.
struct UnlistedRecord {
    std::string code;
    std::uint64_t count = 0;
};

/// Why elements of one kind are not in the document.
struct LossRecord {
    std::string fate; ///< "not represented" or "dropped"
    std::string reason;
    std::uint64_t count = 0;
};

/// Where the elements of one kind went.
struct LedgerRecord {
    std::string kind;
    std::uint64_t seen = 0;
    std::uint64_t imported = 0;
    std::uint64_t notRepresented = 0;
    std::uint64_t dropped = 0;
    std::vector<LossRecord> losses;
};

/// A fact about the import, such as the version of the importer.
struct FactRecord {
    std::string key; ///< used once
    std::string value;
};

struct ImportRecord {
    std::int64_t time = 0; ///< of the import, in seconds since 1970-01-01 UTC
    std::vector<FactRecord> facts;
    std::vector<InputRecord> inputs;
    std::vector<DiagnosticRecord> diagnostics;
    std::vector<UnlistedRecord> unlistedDiagnostics;
    std::vector<LedgerRecord> ledger; ///< one for each kind
};

} // namespace SqliteBackend

#endif
