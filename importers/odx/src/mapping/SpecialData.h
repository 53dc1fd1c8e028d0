#ifndef ODXIMPORT_MAPPING_SPECIALDATA_H
#define ODXIMPORT_MAPPING_SPECIALDATA_H

#include "mapping/Workspace.h"

#include <functional>
#include <string>

namespace ImportDame {
class VAttributeCollection;
}

namespace OdxImport {

/// One SD with the way to it: the names of its groups and its own, "Group/Inner/key".
using SpecialDatumTaker = std::function<void(const std::string& path, Element datum)>;

/// Goes through SDGS of the element, groups in groups included. A group is named by its SI, else by its caption.
void ForEachSpecialDatum(Element element, const Workspace& workspace, const SpecialDatumTaker& take);

/// Every SD below the element's SDGS becomes an attribute: path behind `outerPath`, text, text identifier.
void AddSpecialData(ImportDame::VAttributeCollection& attributes, Element element, const Workspace& workspace,
                    const std::string& outerPath = {});

/// Every value below the element's ADMIN-DATA becomes an attribute named by the tags that lead to it, special data by
/// the tags and their groups.
void AddAdminData(ImportDame::VAttributeCollection& attributes, Element element, const Workspace& workspace);

/// The same for any part of the description whose values are kept as they stand; its special data are not in it.
void AddLeaves(ImportDame::VAttributeCollection& attributes, Element part);

} // namespace OdxImport

#endif
