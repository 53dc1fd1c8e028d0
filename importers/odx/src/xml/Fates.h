#ifndef ODXIMPORT_XML_FATES_H
#define ODXIMPORT_XML_FATES_H

#include "OdxImport/Ledger.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace OdxImport {

/// What became of each element of one document. An element is known by its number.
class Fates {
public:
    struct Verdict {
        Fate fate;
        const char* reason; ///< a literal; empty for imported
    };

    Fates() = default;

    explicit Fates(std::size_t elements) : m_fates(elements, Open) {}

    void SetImported(std::uint32_t element) {
        if (m_fates[element] != Refused)
            m_fates[element] = Imported;
    }

    /// What was imported stays imported: another reader had use for it.
    void SetLeftOut(std::uint32_t element, Fate fate, const char* reason) {
        if (m_fates[element] == Imported || m_fates[element] == Refused)
            return;
        m_leftOut.insert_or_assign(element, Verdict{fate, reason});
        m_fates[element] = LeftOut;
    }

    /// What cannot be used is dropped, whoever reads it.
    void SetRefused(std::uint32_t element, const char* reason) {
        m_leftOut.insert_or_assign(element, Verdict{Fate::Dropped, reason});
        m_fates[element] = Refused;
    }

    bool IsRefused(std::uint32_t element) const { return m_fates[element] == Refused; }

    bool IsImported(std::uint32_t element) const { return m_fates[element] == Imported; }

    /// Nothing when nobody said anything about the element.
    std::optional<Verdict> Of(std::uint32_t element) const {
        switch (m_fates[element]) {
        case Open:
            return std::nullopt;
        case Imported:
            return Verdict{Fate::Imported, ""};
        default:
            return m_leftOut.at(element);
        }
    }

private:
    enum State : std::uint8_t { Open, Imported, LeftOut, Refused };

    std::vector<State> m_fates;
    std::unordered_map<std::uint32_t, Verdict> m_leftOut;
};

} // namespace OdxImport

#endif
