#include <ImportDame/DiagComm.h>

namespace ImportDame {

VDiagComm::VDiagComm(VImportDoc& importDoc) : VQualified(importDoc) {}

VDiagComm::VDiagComm(const VDiagComm& other) = default;

VDiagComm::~VDiagComm() = default;

bool VDiagComm::IsImportedCompletly() {
    return IsImported();
}

void VDiagComm::InitCache() {}

} // namespace ImportDame
