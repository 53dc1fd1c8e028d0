#ifndef ODXIMPORT_XML_FATES_H
#define ODXIMPORT_XML_FATES_H

#include "OdxImport/Ledger.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace OdxImport {

/// What became of each element of one document, two bits for each. An element is known by the offset of its name; two
/// names are at least three bytes apart, as in "<a><b>".
class Fates {
public:
    struct Verdict {
        Fate fate;
        const char* reason; ///< a literal; empty for imported
    };

    Fates() = default;

    explicit Fates(std::size_t documentBytes) : m_bits(documentBytes / (bytesPerName * fatesPerByte) + 1) {}

    void SetImported(std::size_t offset) { Set(offset, 1); }

    /// What was imported stays imported: another reader had use for it.
    void SetLeftOut(std::size_t offset, Fate fate, const char* reason) {
        if (Get(offset) == 1)
            return;
        Set(offset, 2);
        m_leftOut.insert_or_assign(static_cast<std::uint32_t>(offset), Verdict{fate, reason});
    }

    bool IsImported(std::size_t offset) const { return Get(offset) == 1; }

    /// Nothing when nobody said anything about the element.
    std::optional<Verdict> Of(std::size_t offset) const {
        switch (Get(offset)) {
        case 0:
            return std::nullopt;
        case 1:
            return Verdict{Fate::Imported, ""};
        default:
            return m_leftOut.at(static_cast<std::uint32_t>(offset));
        }
    }

private:
    static constexpr std::size_t bytesPerName = 3;
    static constexpr std::size_t fatesPerByte = 4;

    unsigned Get(std::size_t offset) const {
        const std::size_t slot = offset / bytesPerName;
        return (m_bits[slot / fatesPerByte] >> (slot % fatesPerByte * 2)) & 3u;
    }

    void Set(std::size_t offset, unsigned value) {
        const std::size_t slot = offset / bytesPerName;
        const auto shift = static_cast<unsigned>(slot % fatesPerByte * 2);
        std::uint8_t& byte = m_bits[slot / fatesPerByte];
        byte = static_cast<std::uint8_t>((byte & ~(3u << shift)) | (value << shift));
    }

    std::vector<std::uint8_t> m_bits;
    std::unordered_map<std::uint32_t, Verdict> m_leftOut;
};

} // namespace OdxImport

#endif
