#ifndef ODXIMPORT_MAPPING_FAULTMEMORY_H
#define ODXIMPORT_MAPPING_FAULTMEMORY_H

#include "mapping/Services.h"

#include <vector>

namespace ImportDame {
class VTroubleCodeCollection;
}

namespace OdxImport {

struct FaultMemory {
    ImportDame::VTroubleCodeCollection* codes;
    ImportDame::VDataType* type; ///< of the DTC-DOP the codes are from
};

/// Tells every trouble-code collection which service reads it: the first whose positive response holds a value of the
/// DTC-DOP, however deep; and the position of the value, where that is fixed. A collection that no service reads keeps
/// an empty mapping.
void MapFaultMemories(const std::vector<FaultMemory>& memories, const Services& services, DataTypes& types,
                      const Workspace& workspace);

} // namespace OdxImport

#endif
