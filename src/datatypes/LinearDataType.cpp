#include <ImportDame/LinearDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VLinearDataType::VLinearDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VLinearDataType::~VLinearDataType() = default;

void VLinearDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitLinearDataType(*this);
}

VCodedAtomProperties& VLinearDataType::CodedAtomProperties() {
    return m_codedAtomProperties;
}

VPhysicalAtomProperties& VLinearDataType::PhysicalAtomProperties() {
    return m_physicalAtomProperties;
}

VPhysicalDisplayProperties& VLinearDataType::PhysicalDisplayProperties() {
    return m_physicalDisplayProperties;
}

VLinearConversion& VLinearDataType::LinearConversion() {
    return m_linearConversion;
}

} // namespace ImportDame
