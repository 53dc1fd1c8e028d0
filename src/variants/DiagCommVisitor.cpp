#include <ImportDame/DiagCommVisitor.h>

#include <ImportDame/DiagComm.h>

namespace ImportDame {

VDiagCommVisitor::VDiagCommVisitor() = default;

VDiagCommVisitor::VDiagCommVisitor(const VDiagCommVisitor& other) = default;

VDiagCommVisitor& VDiagCommVisitor::operator=(const VDiagCommVisitor& other) = default;

VDiagCommVisitor::~VDiagCommVisitor() = default;

void VDiagCommVisitor::DispatchDiagComm(VDiagComm& diagComm) {
    diagComm.Accept(*this);
}

} // namespace ImportDame
