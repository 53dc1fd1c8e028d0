#include <ImportDame/ProcedureDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VProcedureDataType::VProcedureDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VProcedureDataType::~VProcedureDataType() = default;

void VProcedureDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitProcedureDataType(*this);
}

} // namespace ImportDame
