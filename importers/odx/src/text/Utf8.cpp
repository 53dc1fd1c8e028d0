#include "text/Utf8.h"

#include <cstdint>
#include <cstring>

namespace OdxImport {

namespace {

constexpr char32_t replacement = 0xFFFD;

unsigned ByteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

bool IsContinuation(std::string_view text, std::size_t at) {
    return at < text.size() && (ByteAt(text, at) & 0xC0u) == 0x80u;
}

/// Second byte: excludes over-long forms, surrogates and what is beyond U+10FFFF.
bool FitsLead(unsigned lead, unsigned second) {
    switch (lead) {
    case 0xE0:
        return second >= 0xA0;
    case 0xED:
        return second < 0xA0;
    case 0xF0:
        return second >= 0x90;
    case 0xF4:
        return second < 0x90;
    default:
        return true;
    }
}

char32_t Decode(std::string_view text, std::size_t at, std::size_t length) {
    static constexpr unsigned masks[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t point = ByteAt(text, at) & masks[length];
    for (std::size_t i = 1; i < length; ++i)
        point = (point << 6) | (ByteAt(text, at + i) & 0x3Fu);
    return point;
}

/// Length of the run of ASCII that begins at `at`.
std::size_t AsciiRun(std::string_view text, std::size_t at) {
    const std::size_t start = at;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, text.data() + at, 8);
        if ((eight & 0x8080808080808080u) != 0)
            break;
    }
    while (at < text.size() && ByteAt(text, at) < 0x80)
        ++at;
    return at - start;
}

void AppendWide(std::wstring& out, char32_t point) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (point > 0xFFFF) {
            out += static_cast<wchar_t>(0xD800 + ((point - 0x10000) >> 10));
            out += static_cast<wchar_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
            return;
        }
    }
    out += static_cast<wchar_t>(point);
}

bool IsSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDFFF;
}

} // namespace

std::size_t Utf8SequenceLength(std::string_view text, std::size_t at) {
    const unsigned lead = ByteAt(text, at);
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2 || lead > 0xF4 || !IsContinuation(text, at + 1) || !FitsLead(lead, ByteAt(text, at + 1)))
        return 0;
    if (lead < 0xE0)
        return 2;
    if (!IsContinuation(text, at + 2))
        return 0;
    if (lead < 0xF0)
        return 3;
    return IsContinuation(text, at + 3) ? 4 : 0;
}

std::size_t FirstBytesNotUtf8(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        at += AsciiRun(text, at);
        if (at == text.size())
            break;
        const std::size_t length = Utf8SequenceLength(text, at);
        if (length == 0)
            break;
        at += length;
    }
    return at;
}

void AppendUtf8(std::string& out, char32_t point) {
    if (IsSurrogate(point) || point > 0x10FFFF)
        point = replacement;
    if (point < 0x80) {
        out += static_cast<char>(point);
        return;
    }
    const int extra = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    static constexpr unsigned leads[] = {0, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(leads[extra] | (point >> (6 * extra)));
    for (int i = extra - 1; i >= 0; --i)
        out += static_cast<char>(0x80u | ((point >> (6 * i)) & 0x3Fu));
}

std::wstring Widen(std::string_view utf8) {
    std::wstring wide;
    wide.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t run = AsciiRun(utf8, at);
        wide.append(utf8.begin() + static_cast<std::ptrdiff_t>(at),
                    utf8.begin() + static_cast<std::ptrdiff_t>(at + run));
        at += run;
        if (at == utf8.size())
            break;
        const std::size_t length = Utf8SequenceLength(utf8, at);
        AppendWide(wide, length == 0 ? replacement : Decode(utf8, at, length));
        at += length == 0 ? 1 : length;
    }
    return wide;
}

std::string Narrow(std::wstring_view wide) {
    std::string utf8;
    utf8.reserve(wide.size());
    for (std::size_t i = 0; i < wide.size(); ++i) {
        char32_t point = static_cast<char32_t>(wide[i]);
        if (sizeof(wchar_t) == 2 && point >= 0xD800 && point <= 0xDBFF && i + 1 < wide.size()) {
            const char32_t low = static_cast<char32_t>(wide[i + 1]);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                point = 0x10000 + ((point - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        AppendUtf8(utf8, point);
    }
    return utf8;
}

} // namespace OdxImport
