#ifndef ODXIMPORT_XML_TIDY_H
#define ODXIMPORT_XML_TIDY_H

#include "report/Reporter.h"

#include <cstdint>

namespace OdxImport {

class XmlDocument;

/// Takes the namespace prefixes off tags and attributes, joins the pieces of texts, and measures the nesting. False
/// when the document is nested deeper than `nesting`, which is reported.
bool Tidy(XmlDocument& document, std::uint32_t nesting, const Reporter& reporter);

} // namespace OdxImport

#endif
