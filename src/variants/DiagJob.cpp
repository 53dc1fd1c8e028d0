#include <ImportDame/DiagJob.h>

#include <ImportDame/DiagCommVisitor.h>

namespace ImportDame {

VDiagJob::VDiagJob(VImportDoc& importDoc) : VDiagComm(importDoc) {}

VDiagJob::VDiagJob(const VDiagJob& other) = default;

VDiagJob::~VDiagJob() = default;

void VDiagJob::Accept(VDiagCommVisitor& visitor) {
    visitor.VisitDiagJob(*this);
}

} // namespace ImportDame
