#ifndef ODXLOAD_LOADENCODING_H
#define ODXLOAD_LOADENCODING_H

#include <optional>
#include <string>
#include <string_view>

namespace OdxLoad {

enum class Encoding { Utf8, Latin1, Utf16Le, Utf16Be };

/// By the name that an XML declaration has for it: "UTF-8", "ISO-8859-1", "UTF-16LE", "UTF-16BE".
std::optional<Encoding> EncodingOf(std::string_view name);

/// What the document's first line calls it: byte order is for the byte order mark to tell.
std::string_view DeclaredName(Encoding encoding);

/// Empty where the encoding needs none.
std::string_view ByteOrderMark(Encoding encoding);

/// From UTF-8. What the encoding has no character for becomes a character reference.
std::string Encode(std::string_view text, Encoding encoding);

} // namespace OdxLoad

#endif
