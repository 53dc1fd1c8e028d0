#ifndef ODXIMPORT_MAPPING_CONDUCT_H
#define ODXIMPORT_MAPPING_CONDUCT_H

#include "mapping/Workspace.h"

namespace ImportDame {
class VAttributeCollection;
}

namespace OdxImport {

/// Who may use a service, a job or a row of a table, in which states, and what it changes: attributes with the names of
/// the audiences, states, state transitions, protocols and related services.
void AddConduct(ImportDame::VAttributeCollection& attributes, Element object, const Workspace& workspace);

/// Every name that the links of the list lead to becomes an attribute.
void AddLinkedNames(ImportDame::VAttributeCollection& attributes, Element list, const char* link, const wchar_t* name,
                    Kinds kinds, const Workspace& workspace);

/// The libraries that the programs below the element use: attributes LIBRARY with their files as inner attributes.
void AddLibraries(ImportDame::VAttributeCollection& attributes, Element programs, const Workspace& workspace);

} // namespace OdxImport

#endif
