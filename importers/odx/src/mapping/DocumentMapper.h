#ifndef ODXIMPORT_MAPPING_DOCUMENTMAPPER_H
#define ODXIMPORT_MAPPING_DOCUMENTMAPPER_H

#include "OdxImport/Progress.h"
#include "mapping/Workspace.h"

#include <string>

namespace OdxImport {

/// Fills the workspace's document from its base variant, the ECU variants and everything they inherit.
void MapDocument(Workspace& workspace, const std::string& language, ProgressSink& progress);

} // namespace OdxImport

#endif
