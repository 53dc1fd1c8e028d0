#ifndef ODXIMPORT_TEXT_UTF8_H
#define ODXIMPORT_TEXT_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

namespace OdxImport {

/// Bytes of the well-formed sequence that begins at `at`, 1 to 4; 0 when none begins there.
std::size_t Utf8SequenceLength(std::string_view text, std::size_t at);

/// Offset of the first byte that is not part of a well-formed sequence; text.size() when all are.
std::size_t FirstBytesNotUtf8(std::string_view text);

void AppendUtf8(std::string& out, char32_t codePoint);

/// Wide text of the platform, UTF-16 or UTF-32. Bytes that are no UTF-8 become U+FFFD.
std::wstring Widen(std::string_view utf8);

/// The way back. Unpaired surrogates become U+FFFD.
std::string Narrow(std::wstring_view wide);

} // namespace OdxImport

#endif
