#ifndef ODXIMPORT_TEXT_ENCODING_H
#define ODXIMPORT_TEXT_ENCODING_H

#include "report/Reporter.h"
#include "source/Bytes.h"

#include <optional>
#include <string>

namespace OdxImport {

/// A document's text as UTF-8. `start` is where it begins, behind a byte order mark.
struct DecodedText {
    Bytes bytes;
    std::size_t start = 0;
};

/// Finds the encoding by byte order mark, first bytes and XML declaration, in this order, and converts to UTF-8. Bytes
/// that do not fit are read as ISO-8859-1 (in UTF-8) or become U+FFFD (in UTF-16), and are reported. UTF-8 is not
/// copied. Nothing when the encoding is not one that is read; that is reported too.
std::optional<DecodedText> DecodeDocument(Bytes&& bytes, const std::string& name, const Reporter& reporter);

} // namespace OdxImport

#endif
