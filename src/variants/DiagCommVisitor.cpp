#include <ImportDame/DiagCommVisitor.h>

#include <ImportDame/DiagComm.h>

namespace ImportDame {

VDiagCommVisitor::~VDiagCommVisitor() = default;

void VDiagCommVisitor::DispatchDiagComm(VDiagComm& diagComm) {
    diagComm.Accept(*this);
}

} // namespace ImportDame
