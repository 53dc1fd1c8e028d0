#include "text/Encoding.h"

#include "text/Utf8.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace OdxImport {

namespace {

enum class Encoding { Utf8, Utf16Le, Utf16Be, Latin1, Unsupported };

struct Mark {
    Encoding encoding;
    std::size_t length; ///< of the byte order mark
    const char* shown;
};

/// By byte order mark, or by how "<?" or "<O" looks. Nothing when the bytes look like ASCII.
std::optional<Mark> FindMark(std::string_view bytes) {
    using namespace std::string_view_literals;
    static constexpr std::array<std::pair<std::string_view, Mark>, 7> marks{{
        {"\xFF\xFE\0\0"sv, {Encoding::Unsupported, 4, "UTF-32"}},
        {"\0\0\xFE\xFF"sv, {Encoding::Unsupported, 4, "UTF-32"}},
        {"\xEF\xBB\xBF"sv, {Encoding::Utf8, 3, "UTF-8"}},
        {"\xFF\xFE"sv, {Encoding::Utf16Le, 2, "UTF-16"}},
        {"\xFE\xFF"sv, {Encoding::Utf16Be, 2, "UTF-16"}},
        {"<\0"sv, {Encoding::Utf16Le, 0, "UTF-16"}},
        {"\0<"sv, {Encoding::Utf16Be, 0, "UTF-16"}},
    }};
    for (const auto& [start, mark] : marks)
        if (bytes.starts_with(start))
            return mark;
    return std::nullopt;
}

/// The encoding that the XML declaration names, in capitals; empty when it names none.
std::string DeclaredEncoding(std::string_view text) {
    if (!text.starts_with("<?xml"))
        return {};
    const std::string_view declaration = text.substr(0, std::min(text.find("?>"), text.size()));
    std::size_t at = declaration.find("encoding");
    if (at == std::string_view::npos)
        return {};
    at = declaration.find_first_of("\"'", at);
    if (at == std::string_view::npos)
        return {};
    const std::size_t end = declaration.find(declaration[at], at + 1);
    if (end == std::string_view::npos)
        return {};
    std::string name(declaration.substr(at + 1, end - at - 1));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return name;
}

bool IsUtf16Name(std::string_view name) {
    return name == "UTF-16" || name == "UTF16" || name == "UTF-16LE" || name == "UTF-16BE" || name == "ISO-10646-UCS-2";
}

bool IsUtf8Name(std::string_view name) {
    return name.empty() || name == "UTF-8" || name == "UTF8" || name == "US-ASCII" || name == "ASCII";
}

bool IsLatin1Name(std::string_view name) {
    return name == "ISO-8859-1" || name == "ISO8859-1" || name == "ISO_8859-1" || name == "LATIN1" || name == "LATIN-1";
}

bool IsWindows1252Name(std::string_view name) {
    return name == "WINDOWS-1252" || name == "CP1252" || name == "CP-1252";
}

/// What the bytes 0x80 to 0x9F of Windows-1252 stand for; the five that stand for nothing keep their numbers.
constexpr std::array<char32_t, 32> windows1252{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint32_t LineAt(std::string_view text, std::size_t offset) {
    return 1 + static_cast<std::uint32_t>(
                   std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n'));
}

DecodedText ToDecoded(std::string_view text) {
    Bytes bytes(text.size());
    std::copy(text.begin(), text.end(), bytes.Data());
    return {std::move(bytes), 0};
}

class Decoder {
public:
    Decoder(const std::string& name, const Reporter& reporter) : m_name(name), m_reporter(reporter) {}

    std::optional<DecodedText> Decode(Bytes&& bytes) const {
        const std::optional<Mark> mark = FindMark(bytes.View());
        if (!mark)
            return DecodeAsDeclared(std::move(bytes));
        if (mark->encoding == Encoding::Unsupported) {
            Report(Rule::EncodingUnsupported, 0, std::string("the document is in ") + mark->shown);
            return std::nullopt;
        }
        DecodedText text =
            mark->encoding == Encoding::Utf8 ? DecodeUtf8(std::move(bytes), mark->length) : DecodeUtf16(bytes, *mark);
        const std::string declared = DeclaredEncoding(text.bytes.View().substr(text.start));
        const bool fits =
            mark->encoding == Encoding::Utf8 ? IsUtf8Name(declared) : declared.empty() || IsUtf16Name(declared);
        if (!fits)
            Report(Rule::EncodingContradiction, 1,
                   "the first line names " + declared + ", but the bytes are " + mark->shown + "; read as that");
        return text;
    }

private:
    std::optional<DecodedText> DecodeAsDeclared(Bytes&& bytes) const {
        const std::string declared = DeclaredEncoding(bytes.View());
        if (IsLatin1Name(declared))
            return DecodeLatin1(bytes);
        if (IsWindows1252Name(declared))
            return DecodeWindows1252(bytes);
        if (IsUtf16Name(declared))
            Report(Rule::EncodingContradiction, 1,
                   "the first line names " + declared + ", but the bytes are not; read as UTF-8");
        else if (!IsUtf8Name(declared) && !IsAscii(bytes.View())) {
            Report(Rule::EncodingUnsupported, 1, "the document is in " + declared);
            return std::nullopt;
        }
        return DecodeUtf8(std::move(bytes), 0);
    }

    DecodedText DecodeUtf8(Bytes&& bytes, std::size_t start) const {
        const std::size_t bad = FirstBytesNotUtf8(bytes.View());
        if (bad == bytes.Size())
            return {std::move(bytes), start};
        Report(Rule::BytesNotInEncoding, LineAt(bytes.View(), bad),
               "here begins the first of the bytes that are no UTF-8; such bytes are read as ISO-8859-1");
        const std::string_view text = bytes.View();
        std::string repaired;
        repaired.reserve(text.size() + text.size() / 8);
        for (std::size_t at = start; at < text.size();) {
            const std::size_t length = Utf8SequenceLength(text, at);
            if (length == 0)
                AppendUtf8(repaired, static_cast<unsigned char>(text[at]));
            else
                repaired.append(text, at, length);
            at += std::max<std::size_t>(length, 1);
        }
        return ToDecoded(repaired);
    }

    DecodedText DecodeLatin1(const Bytes& bytes) const {
        const std::string_view text = bytes.View();
        const auto high = std::count_if(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
        Bytes utf8(text.size() + static_cast<std::size_t>(high));
        char* out = utf8.Data();
        for (const char c : text) {
            const auto unit = static_cast<unsigned char>(c);
            if (unit >= 0x80) {
                *out++ = static_cast<char>(0xC0 | (unit >> 6));
                *out++ = static_cast<char>(0x80 | (unit & 0x3F));
            } else {
                *out++ = c;
            }
        }
        return {std::move(utf8), 0};
    }

    static DecodedText DecodeWindows1252(const Bytes& bytes) {
        std::string utf8;
        utf8.reserve(bytes.Size() + bytes.Size() / 16);
        for (const char c : bytes.View()) {
            const auto unit = static_cast<unsigned char>(c);
            AppendUtf8(utf8, unit >= 0x80 && unit < 0xA0 ? windows1252[unit - 0x80u] : unit);
        }
        return ToDecoded(utf8);
    }

    DecodedText DecodeUtf16(const Bytes& bytes, const Mark& mark) const {
        const std::string_view text = bytes.View();
        const std::size_t low = mark.encoding == Encoding::Utf16Le ? 0 : 1;
        const auto unitAt = [&](std::size_t at) {
            return static_cast<char32_t>(static_cast<unsigned char>(text[at + low]) |
                                         static_cast<unsigned char>(text[at + 1 - low]) << 8);
        };
        std::string utf8;
        utf8.reserve(text.size() / 2 + text.size() / 16);
        bool isWell = text.size() % 2 == 0;
        for (std::size_t at = mark.length; at + 2 <= text.size(); at += 2) {
            char32_t point = unitAt(at);
            if (point >= 0xD800 && point <= 0xDBFF && at + 4 <= text.size() && (unitAt(at + 2) & 0xFC00) == 0xDC00) {
                point = 0x10000 + ((point - 0xD800) << 10) + (unitAt(at + 2) - 0xDC00);
                at += 2;
            } else if (point >= 0xD800 && point <= 0xDFFF) {
                isWell = false;
            }
            AppendUtf8(utf8, point);
        }
        if (!isWell)
            Report(Rule::BytesNotInEncoding, 0,
                   "the document has halves of characters; each is replaced by U+FFFD or left out");
        return ToDecoded(utf8);
    }

    static bool IsAscii(std::string_view text) {
        return std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
    }

    void Report(Rule rule, std::uint32_t line, std::string message) const {
        m_reporter.Report(rule, {m_name, line, 0, {}}, std::move(message));
    }

    const std::string& m_name;
    const Reporter& m_reporter;
};

} // namespace

std::optional<DecodedText> DecodeDocument(Bytes&& bytes, const std::string& name, const Reporter& reporter) {
    return Decoder(name, reporter).Decode(std::move(bytes));
}

} // namespace OdxImport
