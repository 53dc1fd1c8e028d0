#include "LoadEncoding.h"

#include <array>
#include <cstddef>
#include <utility>

namespace OdxLoad {

namespace {

constexpr std::array<std::pair<std::string_view, Encoding>, 4> names{{{"UTF-8", Encoding::Utf8},
                                                                      {"ISO-8859-1", Encoding::Latin1},
                                                                      {"UTF-16LE", Encoding::Utf16Le},
                                                                      {"UTF-16BE", Encoding::Utf16Be}}};

/// Takes the first character off the text, which is well-formed UTF-8.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t point = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i)
        point = (point << 6) | (static_cast<unsigned char>(text.at(i)) & 0x3Fu);
    text.remove_prefix(length);
    return point;
}

void AppendUnit(std::string& out, char32_t unit, bool isLittle) {
    const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8);
    out += isLittle ? low : high;
    out += isLittle ? high : low;
}

void AppendUtf16(std::string& out, char32_t point, bool isLittle) {
    if (point < 0x10000) {
        AppendUnit(out, point, isLittle);
    } else {
        AppendUnit(out, 0xD800 + ((point - 0x10000) >> 10), isLittle);
        AppendUnit(out, 0xDC00 + ((point - 0x10000) & 0x3FF), isLittle);
    }
}

void AppendLatin1(std::string& out, char32_t point) {
    if (point < 0x100)
        out += static_cast<char>(point);
    else
        out += "&#" + std::to_string(static_cast<unsigned long>(point)) + ";";
}

} // namespace

std::optional<Encoding> EncodingOf(std::string_view name) {
    for (const auto& [known, encoding] : names)
        if (known == name)
            return encoding;
    return std::nullopt;
}

std::string_view DeclaredName(Encoding encoding) {
    switch (encoding) {
    case Encoding::Utf8:
        return "UTF-8";
    case Encoding::Latin1:
        return "ISO-8859-1";
    default:
        return "UTF-16";
    }
}

std::string_view ByteOrderMark(Encoding encoding) {
    switch (encoding) {
    case Encoding::Utf16Le:
        return "\xFF\xFE";
    case Encoding::Utf16Be:
        return "\xFE\xFF";
    default:
        return {};
    }
}

std::string Encode(std::string_view text, Encoding encoding) {
    if (encoding == Encoding::Utf8)
        return std::string(text);
    std::string out;
    while (!text.empty()) {
        const char32_t point = TakeCharacter(text);
        if (encoding == Encoding::Latin1)
            AppendLatin1(out, point);
        else
            AppendUtf16(out, point, encoding == Encoding::Utf16Le);
    }
    return out;
}

} // namespace OdxLoad
