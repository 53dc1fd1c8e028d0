#include <ImportDame/InterchangeableVisitor.h>

#include <ImportDame/Interchangeable.h>

namespace ImportDame {

VInterchangeableVisitor::~VInterchangeableVisitor() = default;

void VInterchangeableVisitor::DispatchInterchangeable(VInterchangeable& interchangeable) {
    interchangeable.Accept(*this);
}

} // namespace ImportDame
