#include "import/MutateXml.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>

namespace Fuzz {

namespace {

/// A stretch of the document; empty when nothing was found.
struct Part {
    std::size_t start = 0;
    std::size_t length = 0;
};

class XmlChanger {
public:
    XmlChanger(std::string_view text, unsigned int seed) : m_text(text), m_random(seed) {}

    std::string Changed() {
        switch (m_random() % 6) {
        case 0:
            return Replaced(AnyElement(), "");
        case 1:
            return Replaced({Anywhere('<'), 0}, Text(AnyElement()));
        case 2:
            return Replaced(AnyElement(), Text(AnyElement()));
        case 3:
            return Replaced(AnyBetween('>', '<'), Text(AnyBetween('>', '<')));
        case 4:
            return Replaced(AnyBetween('"', '"'), Text(AnyBetween('"', '"')));
        default:
            return Replaced(m_random() % 2 == 0 ? AnyBetween('>', '<') : AnyBetween('"', '"'), AnyWord());
        }
    }

private:
    /// The next one of the character from any place on.
    std::size_t Anywhere(char character) {
        const std::size_t place = m_text.find(character, m_text.empty() ? 0 : m_random() % m_text.size());
        return std::min(place, m_text.size());
    }

    /// From an opening tag to the first closing one of the same name.
    Part AnyElement() {
        const std::size_t start = Anywhere('<');
        const std::size_t nameEnd = m_text.find_first_of(" />\n", start);
        if (nameEnd == m_text.npos || nameEnd == start + 1)
            return {start, 0};
        const std::string close = "</" + std::string(m_text.substr(start + 1, nameEnd - start - 1)) + ">";
        const std::size_t end = m_text.find(close, nameEnd);
        return {start, end == m_text.npos ? 0 : end + close.size() - start};
    }

    Part AnyBetween(char before, char after) {
        const std::size_t start = std::min(Anywhere(before) + 1, m_text.size());
        const std::size_t end = m_text.find(after, start);
        return {start, end == m_text.npos ? 0 : end - start};
    }

    std::string_view AnyWord() {
        static constexpr std::array<std::string_view, 22> words{"",
                                                                "0",
                                                                "-1",
                                                                "1",
                                                                "8",
                                                                "33",
                                                                "65",
                                                                "4294967295",
                                                                "18446744073709551616",
                                                                "0.05",
                                                                "1E+308",
                                                                "-1.5E-3",
                                                                "0x1F",
                                                                "FFFFFFFF",
                                                                "A_INT32",
                                                                "VALUE",
                                                                "A_UTF8STRING",
                                                                "A_BYTEFIELD",
                                                                "true",
                                                                "LINEAR",
                                                                "CODED-CONST",
                                                                "\xC3\xA4"};
        return words[m_random() % words.size()];
    }

    std::string_view Text(Part part) { return m_text.substr(part.start, part.length); }

    std::string Replaced(Part part, std::string_view text) {
        std::string changed(m_text);
        return changed.replace(part.start, part.length, text);
    }

    std::string_view m_text;
    std::minstd_rand m_random;
};

} // namespace

std::size_t MutateXml(unsigned char* data, std::size_t size, std::size_t capacity, unsigned int seed) {
    const std::string changed = XmlChanger({reinterpret_cast<const char*>(data), size}, seed).Changed();
    const std::size_t newSize = std::min(changed.size(), capacity);
    std::copy_n(changed.begin(), newSize, data);
    return newSize;
}

} // namespace Fuzz
