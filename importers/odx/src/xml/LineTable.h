#ifndef ODXIMPORT_XML_LINETABLE_H
#define ODXIMPORT_XML_LINETABLE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace OdxImport {

struct Position {
    std::uint32_t line = 0;   ///< from 1
    std::uint32_t column = 0; ///< from 1, in bytes
};

/// Where the lines of a text begin, once their indentation is gone. Most lines take two bytes here.
class LineTable {
public:
    LineTable() = default;

    /// Takes the line ends and the white space out of the text that stand between one tag and the next, where a parser
    /// would pass over them, and moves the rest together. `length` becomes what is left of the text.
    LineTable(char* text, std::size_t& length);

    /// Of an offset in the text that was left, in the text as it was.
    Position Of(std::size_t offset) const;

private:
    /// A line to begin to count at.
    struct Mark {
        std::size_t offset;
        std::size_t number; ///< in `m_lines`
        std::uint32_t line;
        std::uint32_t indent;
    };

    void AddLine(std::size_t offset, std::size_t indent);
    void AddNumber(std::size_t number);
    std::size_t NumberAt(std::size_t& at) const;

    static constexpr std::uint32_t linesPerMark = 512;

    std::vector<std::uint8_t> m_lines; ///< of each line but the first: how far from the line before, and its indent
    std::vector<Mark> m_marks{{0, 0, 1, 0}};
    std::uint32_t m_lineCount = 1;
    std::size_t m_lastOffset = 0;
};

} // namespace OdxImport

#endif
