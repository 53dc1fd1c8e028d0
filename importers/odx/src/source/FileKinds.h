#ifndef ODXIMPORT_SOURCE_FILEKINDS_H
#define ODXIMPORT_SOURCE_FILEKINDS_H

#include <cstddef>
#include <string_view>

namespace OdxImport {

/// The name ends like that of an ODX document (.odx, .odx-d, .odx-cs …), in any case of letters.
bool IsOdxName(std::string_view name);

/// The name ends in .xml, in any case of letters: what is in the file tells whether it is an ODX document.
bool IsXmlName(std::string_view name);

/// How much of a file `LooksLikeOdx` needs at most.
inline constexpr std::size_t headBytes = 8192;

/// The first bytes of a file, in whatever encoding, show the root of an ODX document.
bool LooksLikeOdx(std::string_view head);

/// The name ends in .pdx, in any case of letters.
bool IsArchiveName(std::string_view name);

} // namespace OdxImport

#endif
