#include <ImportDame/ProcedureDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VProcedureDataType::VProcedureDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VProcedureDataType::~VProcedureDataType() = default;

void VProcedureDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitProcedureDataType(*this);
}

VCodedProperties& VProcedureDataType::CodedProperties() {
    return m_codedProperties;
}

VPhysicalProperties& VProcedureDataType::PhysicalProperties() {
    return m_physicalProperties;
}

VFunctionCollection& VProcedureDataType::CodedToPhysFunctionCollection() {
    return m_codedToPhysFunctionCollection;
}

VFunctionCollection& VProcedureDataType::PhysToCodedFunctionCollection() {
    return m_physToCodedFunctionCollection;
}

} // namespace ImportDame
