#ifndef ODXIMPORT_MAPPING_JOBPARAMS_H
#define ODXIMPORT_MAPPING_JOBPARAMS_H

#include "mapping/Naming.h"

namespace OdxImport {

/// Every parameter of a job becomes an attribute INPUT-PARAM, OUTPUT-PARAM or NEG-OUTPUT-PARAM with its name as the
/// value; its data object, default value and semantic are inner attributes.
void AddJobParams(ImportDame::VAttributeCollection& attributes, Element job, const Naming& naming,
                  const Workspace& workspace);

} // namespace OdxImport

#endif
