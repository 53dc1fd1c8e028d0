#include "OdxImport/Ledger.h"

#include <algorithm>
#include <array>

namespace OdxImport {

Ledger::Row& Ledger::RowOf(std::string_view kind) {
    const auto found = m_rows.find(kind);
    return found != m_rows.end() ? found->second : m_rows[std::string(kind)];
}

void Ledger::See(std::string_view kind, std::uint64_t count) {
    RowOf(kind).counts.seen += count;
}

void Ledger::Settle(std::string_view kind, Fate fate, std::string_view reason, std::uint64_t count) {
    Row& row = RowOf(kind);
    if (fate == Fate::Imported) {
        row.counts.imported += count;
        return;
    }
    row.reasons[{fate, std::string(reason)}] += count;
    (fate == Fate::Dropped ? row.counts.dropped : row.counts.notRepresented) += count;
}

Ledger::Counts Ledger::Total() const {
    Counts total;
    for (const auto& [kind, row] : m_rows) {
        total.seen += row.counts.seen;
        total.imported += row.counts.imported;
        total.notRepresented += row.counts.notRepresented;
        total.dropped += row.counts.dropped;
    }
    return total;
}

bool Ledger::AddsUp() const {
    return std::all_of(m_rows.begin(), m_rows.end(), [](const auto& row) { return row.second.counts.AddUp(); });
}

const char* ToText(Fate fate) {
    static constexpr std::array<const char*, 3> texts{"imported", "not represented", "dropped"};
    return texts[static_cast<std::size_t>(fate)];
}

} // namespace OdxImport
