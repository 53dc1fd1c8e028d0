#include "tables/ImportRecords.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string>

namespace SqliteBackend {

const char* const ImportRecords::schema = R"(
CREATE TABLE import_fact(
    key   TEXT PRIMARY KEY,
    value TEXT NOT NULL
) WITHOUT ROWID;
CREATE TABLE import_input(
    id            INTEGER PRIMARY KEY,
    file          TEXT NOT NULL,
    bytes         INTEGER NOT NULL,
    sha256        TEXT NOT NULL,
    model_version TEXT NOT NULL,
    category      TEXT NOT NULL,
    short_name    TEXT NOT NULL
);
CREATE TABLE diagnostic(
    id          INTEGER PRIMARY KEY,
    severity    TEXT NOT NULL,
    code        TEXT NOT NULL,
    message     TEXT NOT NULL,
    outcome     TEXT NOT NULL,
    advice      TEXT NOT NULL,
    file        TEXT NOT NULL,
    line        INTEGER,
    "column"    INTEGER,
    object_path TEXT NOT NULL
);
CREATE TABLE diagnostic_not_listed(
    code  TEXT PRIMARY KEY,
    count INTEGER NOT NULL
) WITHOUT ROWID;
CREATE TABLE ledger(
    kind            TEXT PRIMARY KEY,
    seen            INTEGER NOT NULL,
    imported        INTEGER NOT NULL,
    not_represented INTEGER NOT NULL,
    dropped         INTEGER NOT NULL
) WITHOUT ROWID;
CREATE TABLE ledger_reason(
    kind   TEXT NOT NULL REFERENCES ledger(kind),
    fate   TEXT NOT NULL,
    reason TEXT NOT NULL,
    count  INTEGER NOT NULL,
    PRIMARY KEY(kind, fate, reason)
) WITHOUT ROWID;
)";

namespace {

std::optional<std::uint32_t> Place(std::uint32_t number) {
    return number == 0 ? std::nullopt : std::optional(number);
}

/// "2024-05-17T09:30:00Z".
std::string TimeText(std::int64_t time) {
    using namespace std::chrono;
    const sys_seconds moment{seconds(time)};
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss clock(moment - day);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text.data();
}

} // namespace

ImportRecords::ImportRecords(Connection& connection, Tally& tally)
    : m_tally(tally), m_facts(connection, tally, "import_fact"), m_inputs(connection, tally, "import_input"),
      m_diagnostics(connection, tally, "diagnostic"), m_unlisted(connection, tally, "diagnostic_not_listed"),
      m_ledger(connection, tally, "ledger"), m_ledgerReasons(connection, tally, "ledger_reason") {}

void ImportRecords::Write(const ImportRecord& record) {
    m_facts.Row("time", TimeText(record.time));
    m_facts.Row("time in seconds since 1970", std::to_string(record.time));
    for (const FactRecord& fact : record.facts)
        m_facts.Row(fact.key, fact.value);
    for (const InputRecord& input : record.inputs)
        m_inputs.Row(m_inputs.NextRow(), input.file, input.bytes, input.sha256, input.modelVersion, input.category,
                     input.shortName);
    for (const DiagnosticRecord& diagnostic : record.diagnostics)
        Write(diagnostic);
    for (const UnlistedRecord& unlisted : record.unlistedDiagnostics)
        m_unlisted.Row(unlisted.code, unlisted.count);
    for (const LedgerRecord& ledger : record.ledger)
        Write(ledger);
}

void ImportRecords::Write(const DiagnosticRecord& diagnostic) {
    m_diagnostics.Row(m_diagnostics.NextRow(), diagnostic.severity, diagnostic.code, diagnostic.message,
                      diagnostic.outcome, diagnostic.advice, diagnostic.file, Place(diagnostic.line),
                      Place(diagnostic.column), diagnostic.objectPath);
}

void ImportRecords::Write(const LedgerRecord& ledger) {
    m_ledger.Row(ledger.kind, ledger.seen, ledger.imported, ledger.notRepresented, ledger.dropped);
    for (const LossRecord& loss : ledger.losses)
        m_ledgerReasons.Row(ledger.kind, loss.fate, loss.reason, loss.count);
}

void ImportRecords::WriteLosses() {
    m_facts.Row("characters replaced by U+FFFD", std::to_string(m_tally.replacedCharacters));
    m_facts.Row("references to objects outside the document", std::to_string(m_tally.unknownReferences));
}

} // namespace SqliteBackend
