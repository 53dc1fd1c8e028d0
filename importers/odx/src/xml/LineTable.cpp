#include "xml/LineTable.h"

#include <algorithm>
#include <cstring>

namespace OdxImport {

LineTable::LineTable(std::string_view text) {
    // A text with carriage returns alone comes from systems that end lines with them.
    const char end = text.find('\n') == std::string_view::npos ? '\r' : '\n';
    const char* const begin = text.data();
    const char* const stop = begin + text.size();
    for (const char* at = begin; at != stop;) {
        const void* found = std::memchr(at, end, static_cast<std::size_t>(stop - at));
        if (found == nullptr)
            break;
        at = static_cast<const char*>(found) + 1;
        m_starts.push_back(static_cast<std::uint32_t>(at - begin));
    }
}

Position LineTable::Of(std::size_t offset) const {
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
    const std::size_t start = next == m_starts.begin() ? 0 : *(next - 1);
    return {static_cast<std::uint32_t>(next - m_starts.begin()) + 1, static_cast<std::uint32_t>(offset - start) + 1};
}

} // namespace OdxImport
