#include "Record.h"

#include "Terminal.h"

#include <charconv>
#include <chrono>
#include <stdexcept>

namespace ConsoleImport {

namespace {

constexpr std::int64_t latestTime = 253402300799; // 9999-12-31T23:59:59Z

void AddDiagnostics(const OdxImport::DiagnosticCollector& diagnostics, SqliteBackend::ImportRecord& record) {
    for (const OdxImport::Diagnostic& diagnostic : diagnostics.Kept()) {
        const OdxImport::RuleInfo& info = OdxImport::InfoOf(diagnostic.rule);
        record.diagnostics.push_back({OdxImport::ToText(diagnostic.severity), info.code,
                                      diagnostic.message.empty() ? info.summary : diagnostic.message,
                                      OdxImport::ToText(diagnostic.outcome), info.advice, diagnostic.where.file,
                                      diagnostic.where.line, diagnostic.where.column, diagnostic.where.path});
    }
    for (const OdxImport::RuleInfo& info : OdxImport::AllRules())
        if (const std::uint64_t count = diagnostics.NotKept(info.rule); count != 0)
            record.unlistedDiagnostics.push_back({info.code, count});
}

void AddLedger(const OdxImport::Ledger& ledger, SqliteBackend::ImportRecord& record) {
    for (const auto& [kind, row] : ledger.AllRows()) {
        SqliteBackend::LedgerRecord entry{
            kind, row.counts.seen, row.counts.imported, row.counts.notRepresented, row.counts.dropped, {}};
        for (const auto& [why, count] : row.reasons)
            entry.losses.push_back({OdxImport::ToText(why.first), why.second, count});
        record.ledger.push_back(std::move(entry));
    }
}

} // namespace

SqliteBackend::ImportRecord MakeRecord(const Arguments& arguments, const OdxImport::ImportResult& result,
                                       const OdxImport::DiagnosticCollector& diagnostics,
                                       const OdxImport::Ledger& ledger, std::int64_t time) {
    SqliteBackend::ImportRecord record;
    record.time = time;
    record.facts = {{"program", "ConsoleImport " + VersionText()},
                    {"base variant", result.baseVariant},
                    {"warnings count as errors", arguments.isStrict ? "yes" : "no"}};
    for (const OdxImport::InputDocument& document : result.documents)
        record.inputs.push_back({document.file, document.bytes, document.sha256, document.modelVersion,
                                 document.category, document.shortName});
    AddDiagnostics(diagnostics, record);
    AddLedger(ledger, record);
    return record;
}

std::int64_t TimeOfImport() {
    const std::optional<std::string> fixed = EnvironmentVariable("SOURCE_DATE_EPOCH");
    if (!fixed)
        return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch())
            .count();
    std::int64_t time = 0;
    const char* end = fixed->data() + fixed->size();
    const auto [last, error] = std::from_chars(fixed->data(), end, time);
    if (error != std::errc() || last != end || time < 0 || time > latestTime)
        throw std::invalid_argument("SOURCE_DATE_EPOCH is \"" + *fixed +
                                    "\" and should be a number of seconds since 1970; unset it or correct it");
    return time;
}

} // namespace ConsoleImport
