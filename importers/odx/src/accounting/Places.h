#ifndef ODXIMPORT_ACCOUNTING_PLACES_H
#define ODXIMPORT_ACCOUNTING_PLACES_H

#include <string_view>

namespace OdxImport {

/// Where elements of a tag are looked for.
struct Place {
    std::string_view parent; ///< tag; empty: any layer
    bool isReadOnce = false; ///< only the first of the tag in its parent is read
};

/// Null for tags of which nothing is known.
const Place* PlaceOf(std::string_view tag);

} // namespace OdxImport

#endif
