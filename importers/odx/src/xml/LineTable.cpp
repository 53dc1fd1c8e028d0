#include "xml/LineTable.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace OdxImport {

namespace {

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

const char* Find(const char* from, const char* end, char c) {
    const void* found = from == end ? nullptr : std::memchr(from, c, static_cast<std::size_t>(end - from));
    return found == nullptr ? end : static_cast<const char*>(found);
}

/// Without the blanks at its end.
char* EndOfLine(const char* begin, char* end) {
    while (end != begin && IsSpace(end[-1]))
        --end;
    return end;
}

/// A text may hold ">" as well; what a tag ends with has "<" before it, and no other ">" between.
bool EndsWithTag(const char* begin, const char* end) {
    if (begin == end || end[-1] != '>')
        return false;
    for (--end; end != begin; --end)
        if (const char c = end[-1]; c == '<' || c == '>')
            return c == '<';
    return false;
}

} // namespace

LineTable::LineTable(char* text, std::size_t& length) {
    const std::string_view whole(text, length);
    // A text with carriage returns alone comes from systems that end lines with them.
    const char lineEnd = whole.find('\n') == std::string_view::npos ? '\r' : '\n';
    // "<" is everywhere, so that what follows it is looked for.
    const bool hasCdata = whole.find("![CDATA[") != std::string_view::npos;
    const char* const end = text + length;
    char* out = text;
    char* outLine = text;
    for (const char* at = text; at != end;) {
        const char* next = Find(at, end, lineEnd);
        const auto size = static_cast<std::size_t>(next - at);
        if (out != at)
            std::memmove(out, at, size);
        out += size;
        if (next == end)
            break;
        const char* const line = next + 1;
        const char* behind = line;
        while (behind != end && *behind != lineEnd && IsSpace(*behind))
            ++behind;
        char* const last = EndOfLine(outLine, out);
        const bool isBetweenTags = !hasCdata && behind != end && *behind == '<' && EndsWithTag(outLine, last);
        out = isBetweenTags ? last : out;
        if (!isBetweenTags)
            *out++ = lineEnd;
        at = isBetweenTags ? behind : line;
        outLine = out;
        AddLine(static_cast<std::size_t>(out - text), static_cast<std::size_t>(at - line));
    }
    length = static_cast<std::size_t>(out - text);
}

void LineTable::AddLine(std::size_t offset, std::size_t indent) {
    AddNumber(offset - m_lastOffset);
    AddNumber(indent);
    m_lastOffset = offset;
    if (++m_lineCount % linesPerMark == 0)
        m_marks.push_back({offset, m_lines.size(), m_lineCount, static_cast<std::uint32_t>(indent)});
}

/// Seven bits a byte, the lowest first.
void LineTable::AddNumber(std::size_t number) {
    for (; number >= 0x80; number >>= 7)
        m_lines.push_back(static_cast<std::uint8_t>(number | 0x80));
    m_lines.push_back(static_cast<std::uint8_t>(number));
}

std::size_t LineTable::NumberAt(std::size_t& at) const {
    std::size_t number = 0;
    for (unsigned shift = 0;; shift += 7) {
        const std::uint8_t byte = m_lines[at++];
        number |= std::size_t{byte & 0x7Fu} << shift;
        if ((byte & 0x80) == 0)
            return number;
    }
}

Position LineTable::Of(std::size_t offset) const {
    Mark at = *(std::upper_bound(m_marks.begin(), m_marks.end(), offset,
                                 [](std::size_t value, const Mark& mark) { return value < mark.offset; }) -
                1);
    while (at.number < m_lines.size()) {
        std::size_t number = at.number;
        const std::size_t next = at.offset + NumberAt(number);
        if (next > offset)
            break;
        at = {next, number, at.line + 1, static_cast<std::uint32_t>(NumberAt(number))};
        at.number = number;
    }
    return {at.line, static_cast<std::uint32_t>(offset - at.offset) + at.indent + 1};
}

} // namespace OdxImport
