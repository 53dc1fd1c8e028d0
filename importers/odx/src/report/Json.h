#ifndef ODXIMPORT_REPORT_JSON_H
#define ODXIMPORT_REPORT_JSON_H

#include <string>
#include <string_view>

namespace OdxImport {

/// Appends the text in quotation marks, escaped. Bytes that are no UTF-8 become U+FFFD, so the result is always valid.
void AppendJsonString(std::string& out, std::string_view text);

} // namespace OdxImport

#endif
