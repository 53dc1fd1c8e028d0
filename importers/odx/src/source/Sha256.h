#ifndef ODXIMPORT_SOURCE_SHA256_H
#define ODXIMPORT_SOURCE_SHA256_H

#include <string>
#include <string_view>

namespace OdxImport {

/// SHA-256 of the bytes as 64 lower-case hexadecimal digits.
std::string Sha256(std::string_view bytes);

} // namespace OdxImport

#endif
