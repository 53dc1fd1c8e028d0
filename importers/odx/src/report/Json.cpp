#include "report/Json.h"

#include "text/Utf8.h"

namespace OdxImport {

namespace {

void AppendControl(std::string& out, unsigned char c) {
    static constexpr char digits[] = "0123456789abcdef";
    out += "\\u00";
    out += digits[c >> 4];
    out += digits[c & 15];
}

void AppendAscii(std::string& out, char c) {
    switch (c) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        break;
    }
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
        AppendControl(out, static_cast<unsigned char>(c));
    else
        out += c;
}

} // namespace

void AppendJsonString(std::string& out, std::string_view text) {
    out += '"';
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = Utf8SequenceLength(text, at);
        if (length == 0) {
            out += "\xEF\xBF\xBD";
            ++at;
        } else if (length == 1) {
            AppendAscii(out, text[at]);
            ++at;
        } else {
            out.append(text, at, length);
            at += length;
        }
    }
    out += '"';
}

} // namespace OdxImport
