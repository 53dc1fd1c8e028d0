#ifndef ODXIMPORT_SOURCE_FILEKINDS_H
#define ODXIMPORT_SOURCE_FILEKINDS_H

#include <string_view>

namespace OdxImport {

/// The name ends like that of an ODX document (.odx, .odx-d, .odx-cs …), in any case of letters.
bool IsOdxName(std::string_view name);

/// The name ends in .pdx, in any case of letters.
bool IsArchiveName(std::string_view name);

} // namespace OdxImport

#endif
