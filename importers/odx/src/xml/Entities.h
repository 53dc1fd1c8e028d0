#ifndef ODXIMPORT_XML_ENTITIES_H
#define ODXIMPORT_XML_ENTITIES_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OdxImport {

struct UnknownEntity {
    std::string name; ///< of the first one, without & and ;
    std::size_t offset = 0;
    std::size_t count = 0;               ///< how many there are
    std::vector<std::size_t> characters; ///< where the references to characters begin that there are not
};

/// Looks for entities that are none of the five of XML and no references to characters, comments and CDATA left aside.
std::optional<UnknownEntity> FindUnknownEntities(std::string_view xml);

} // namespace OdxImport

#endif
