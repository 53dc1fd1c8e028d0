#include "Summary.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

namespace ConsoleImport {

namespace {

constexpr std::size_t labelWidth = 22;
constexpr std::size_t numberWidth = 12;

std::size_t Columns(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

void PrintImported(Console& console, const Summary& summary) {
    struct Line {
        const char* label;
        const char* table;
    };

    static constexpr std::array<Line, 9> lines{{{"trouble codes", "trouble_code"},
                                                {"ECU and base variants", "variant"},
                                                {"services and jobs", "diag_comm"},
                                                {"service shapes", "service_shape"},
                                                {"data types", "data_type"},
                                                {"members of packets", "interchangeable"},
                                                {"text table rows", "text_table_row"},
                                                {"units", "unit"},
                                                {"attributes", "attribute"}}};
    console.Result("\nImported base variant " + PrintableInLine(summary.result.baseVariant) + " from " +
                       Counted(summary.result.documents.size(), "document") + "\n",
                   Style::Title);
    for (const Line& line : lines)
        console.Result(PadRight(std::string("  ") + line.label, labelWidth + 2) +
                       PadLeft(Grouped(summary.database.RowsOf(line.table)), numberWidth) + "\n");
}

void PrintLedger(Console& console, const OdxImport::Ledger& ledger) {
    const OdxImport::Ledger::Counts total = ledger.Total();
    console.Result("\nElements of the inputs\n", Style::Title);
    const auto line = [&console](const char* label, std::uint64_t count) {
        console.Result(PadRight(std::string("  ") + label, labelWidth + 2) + PadLeft(Grouped(count), numberWidth) +
                       "\n");
    };
    line("seen", total.seen);
    line("imported", total.imported);
    line("left out on purpose", total.notRepresented);
    line("dropped", total.dropped);
    if (!ledger.AddsUp())
        console.Result("  The counts do not add up: this is a defect of the program. Please report it.\n", Style::Bad);
}

/// Why elements were left out on purpose, the most frequent reason first.
void PrintLeftOut(Console& console, const OdxImport::Ledger& ledger) {
    std::map<std::string, std::uint64_t> counts;
    for (const auto& [kind, row] : ledger.AllRows())
        for (const auto& [why, count] : row.reasons)
            if (why.first == OdxImport::Fate::NotRepresented)
                counts[why.second] += count;
    std::vector<std::pair<std::string, std::uint64_t>> sorted(counts.begin(), counts.end());
    std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
        return a.second != b.second ? a.second > b.second : a.first < b.first;
    });
    if (!sorted.empty())
        console.Result("\nLeft out on purpose\n", Style::Title);
    for (const auto& [reason, count] : sorted)
        console.Result(PadLeft(Grouped(count), 8) + "  " + reason + "\n");
}

/// The whole ledger, for the log file.
void LogLedger(Console& console, const OdxImport::Ledger& ledger) {
    console.Log("\nKinds of elements: seen, imported, left out on purpose, dropped\n");
    for (const auto& [kind, row] : ledger.AllRows())
        console.Log("  " + PadRight(kind, 40) + PadLeft(Grouped(row.counts.seen), 12) +
                    PadLeft(Grouped(row.counts.imported), 12) + PadLeft(Grouped(row.counts.notRepresented), 12) +
                    PadLeft(Grouped(row.counts.dropped), 12) + "\n");
}

void PrintDropped(Console& console, const OdxImport::Ledger& ledger) {
    bool isFirst = true;
    for (const auto& [kind, row] : ledger.AllRows()) {
        for (const auto& [why, count] : row.reasons) {
            if (why.first != OdxImport::Fate::Dropped)
                continue;
            if (isFirst)
                console.Result("\nDropped\n", Style::Bad);
            isFirst = false;
            console.Result(PadLeft(Grouped(count), 8) + " " + PadRight(kind, 26) + " " + why.second + "\n");
        }
    }
}

void PrintProblems(Console& console, const OdxImport::DiagnosticCollector& diagnostics) {
    using OdxImport::Severity;
    const std::uint64_t errors = diagnostics.Count(Severity::Error) + diagnostics.Count(Severity::Fatal);
    const std::uint64_t warnings = diagnostics.Count(Severity::Warning);
    console.Result("\nProblems: ", Style::Title);
    console.Result(Counted(errors, "error"), errors == 0 ? Style::Plain : Style::Bad);
    console.Result(", " + Counted(warnings, "warning") + ", " + Counted(diagnostics.Count(Severity::Info), "remark") +
                   "\n");
}

void PrintDatabase(Console& console, const Summary& summary) {
    std::array<char, 32> seconds{};
    std::snprintf(seconds.data(), seconds.size(), "%.1f s", static_cast<double>(summary.duration.count()) / 1000.0);
    console.Result("Database: ", Style::Title);
    console.Result(summary.databaseFile, Style::Good);
    console.Result(" (" + SizeText(summary.database.bytes) + ", " + seconds.data() + ")\n");
    if (summary.database.replacedCharacters != 0)
        console.Result("  " + Grouped(summary.database.replacedCharacters) +
                       " characters are no Unicode and became U+FFFD\n");
    if (summary.database.unknownReferences != 0)
        console.Result("  " + Grouped(summary.database.unknownReferences) +
                       " references lead out of the document and are absent\n");
    const bool hasCodes = summary.database.RowsOf("trouble_code") != 0;
    const std::string query = hasCodes ? "SELECT code, error_text, record FROM trouble_codes"
                                       : "SELECT qualifier, service_id, sub_value FROM services";
    console.Result("Next, try:\n  sqlite3 -box \"" + summary.databaseFile + "\" \"" + query + " LIMIT 10\"\n");
}

} // namespace

void PrintSummary(Console& console, const Summary& summary) {
    PrintImported(console, summary);
    PrintLedger(console, summary.ledger);
    PrintLeftOut(console, summary.ledger);
    PrintDropped(console, summary.ledger);
    LogLedger(console, summary.ledger);
    PrintProblems(console, summary.diagnostics);
    PrintDatabase(console, summary);
}

std::string Grouped(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::size_t at = text.size(); at > 3;) {
        at -= 3;
        text.insert(at, ",");
    }
    return text;
}

std::string Counted(std::uint64_t number, const char* what) {
    return Grouped(number) + " " + what + (number == 1 ? "" : "s");
}

std::string PadRight(std::string text, std::size_t width) {
    const std::size_t columns = Columns(text);
    if (columns < width)
        text.append(width - columns, ' ');
    return text;
}

std::string PadLeft(const std::string& text, std::size_t width) {
    const std::size_t columns = Columns(text);
    return columns < width ? std::string(width - columns, ' ') + text : text;
}

std::string SizeText(std::uint64_t bytes) {
    static constexpr std::array<const char*, 4> units{"bytes", "kB", "MB", "GB"};
    if (bytes < 1000)
        return std::to_string(bytes) + " bytes";
    auto size = static_cast<double>(bytes);
    std::size_t unit = 0;
    for (; size >= 1000.0 && unit + 1 < units.size(); ++unit)
        size /= 1000.0;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f %s", size, units[unit]);
    return text.data();
}

} // namespace ConsoleImport
