#include "SqliteBackend/Utf8.h"

#include <cstddef>

namespace SqliteBackend {

namespace {

constexpr std::uint32_t replacement = 0xFFFD;

bool IsSurrogate(std::uint32_t code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

bool IsPair(std::uint32_t high, std::uint32_t low) {
    return high >= 0xD800 && high <= 0xDBFF && low >= 0xDC00 && low <= 0xDFFF;
}

void Append(std::uint32_t code, std::string& out) {
    const auto continuation = [code](unsigned shift) { return static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += continuation(0);
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += continuation(6);
        out += continuation(0);
    } else {
        out += static_cast<char>(0xF0 | (code >> 18));
        out += continuation(12);
        out += continuation(6);
        out += continuation(0);
    }
}

std::uint32_t Unit(wchar_t character) {
    return sizeof(wchar_t) == 2 ? static_cast<std::uint16_t>(character) : static_cast<std::uint32_t>(character);
}

bool IsAscii(std::wstring_view text) {
    std::uint32_t bits = 0;
    for (const wchar_t character : text) // without an early end this is done with vectors
        bits |= Unit(character);
    return bits < 0x80;
}

void AppendAscii(std::wstring_view text, std::string& out) {
    const std::size_t begin = out.size();
    out.resize(begin + text.size());
    for (std::size_t index = 0; index < text.size(); ++index)
        out[begin + index] = static_cast<char>(text[index]);
}

/// The length of the well-formed sequence at the start of the text, which is not empty; 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return first == 0 ? 0 : 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t index = 1; index < length; ++index)
        if ((byte(index) & 0xC0) != 0x80)
            return 0;
    const bool isOverlong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
    const bool isOutside = (first == 0xED && byte(1) > 0x9F) || (first == 0xF4 && byte(1) > 0x8F);
    return isOverlong || isOutside ? 0 : length;
}

} // namespace

std::uint64_t AppendUtf8(std::wstring_view text, std::string& out) {
    if (IsAscii(text)) {
        AppendAscii(text, out);
        return 0;
    }
    std::uint64_t replaced = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        std::uint32_t code = Unit(text[index]);
        if (index + 1 < text.size() && IsPair(code, Unit(text[index + 1]))) {
            code = 0x10000 + ((code - 0xD800) << 10) + (Unit(text[index + 1]) - 0xDC00);
            ++index;
        } else if (IsSurrogate(code) || code > 0x10FFFF) {
            code = replacement;
            ++replaced;
        }
        Append(code, out);
    }
    return replaced;
}

std::uint64_t AppendValidUtf8(std::string_view text, std::string& out) {
    std::uint64_t replaced = 0;
    while (!text.empty()) {
        const std::size_t length = SequenceLength(text);
        if (length == 0) {
            Append(replacement, out);
            ++replaced;
        } else {
            out.append(text.substr(0, length));
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return replaced;
}

std::string PathText(const std::u8string& path) {
    return std::string(path.begin(), path.end());
}

} // namespace SqliteBackend
