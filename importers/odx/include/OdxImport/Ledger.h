#ifndef ODXIMPORT_LEDGER_H
#define ODXIMPORT_LEDGER_H

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace OdxImport {

/// What became of an element of the input.
enum class Fate : std::uint8_t {
    Imported,       ///< its content is in the document
    NotRepresented, ///< left out on purpose: the model has no place for it, or it is outside the chosen variant
    Dropped         ///< would belong into the document, but could not be used
};

/// Where every element of the input went, counted by the kind of element (its tag).
class Ledger {
public:
    struct Counts {
        std::uint64_t seen = 0;
        std::uint64_t imported = 0;
        std::uint64_t notRepresented = 0;
        std::uint64_t dropped = 0;

        /// Everything that was seen went somewhere.
        bool AddUp() const { return seen == imported + notRepresented + dropped; }
    };

    /// How many elements of one kind had one fate other than imported, and why.
    using Reasons = std::map<std::pair<Fate, std::string>, std::uint64_t, std::less<>>;

    struct Row {
        Counts counts;
        Reasons reasons;
    };

    using Rows = std::map<std::string, Row, std::less<>>; ///< by kind, in alphabetical order

    /// Notes that elements of this kind are in the input.
    void See(std::string_view kind, std::uint64_t count = 1);
    /// Notes what became of elements of this kind. `reason` is not used for imported ones.
    void Settle(std::string_view kind, Fate fate, std::string_view reason, std::uint64_t count = 1);

    const Rows& AllRows() const { return m_rows; }

    Counts Total() const;
    /// Every kind's counts add up.
    bool AddsUp() const;

private:
    Row& RowOf(std::string_view kind);

    Rows m_rows;
};

const char* ToText(Fate fate);

} // namespace OdxImport

#endif
