#ifndef ODXIMPORT_XML_LINETABLE_H
#define ODXIMPORT_XML_LINETABLE_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace OdxImport {

struct Position {
    std::uint32_t line = 0;   ///< from 1
    std::uint32_t column = 0; ///< from 1, in bytes
};

/// Where the lines of a text begin. A text is at most 4 GiB.
class LineTable {
public:
    LineTable() = default;
    explicit LineTable(std::string_view text);

    Position Of(std::size_t offset) const;

private:
    std::vector<std::uint32_t> m_starts; ///< of the second line and all that follow
};

} // namespace OdxImport

#endif
