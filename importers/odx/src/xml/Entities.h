#ifndef ODXIMPORT_XML_ENTITIES_H
#define ODXIMPORT_XML_ENTITIES_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace OdxImport {

struct UnknownEntity {
    std::string name; ///< of the first one, without & and ;
    std::size_t offset = 0;
    std::size_t count = 0; ///< how many there are
};

/// Looks for entities that are none of the five of XML and no character references, comments and CDATA left aside.
std::optional<UnknownEntity> FindUnknownEntities(std::string_view xml);

} // namespace OdxImport

#endif
