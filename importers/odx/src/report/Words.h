#ifndef ODXIMPORT_REPORT_WORDS_H
#define ODXIMPORT_REPORT_WORDS_H

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace OdxImport {

/// The pieces in one text.
inline std::string Words(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

/// Bytes of a name that is repeated at many objects; honest names have at most 128 characters.
inline constexpr std::size_t longestName = 512;

/// The text, or as much of it as fits with an ellipsis; characters of UTF-8 stay whole.
inline std::string Shortened(std::string_view text, std::size_t mostBytes) {
    if (text.size() <= mostBytes)
        return std::string(text);
    while (mostBytes > 0 && (static_cast<unsigned char>(text[mostBytes]) & 0xC0) == 0x80)
        --mostBytes;
    return std::string(text.substr(0, mostBytes)) + "\u2026";
}

} // namespace OdxImport

#endif
