#include <ImportDame/IdentityDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VIdentityDataType::VIdentityDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VIdentityDataType::~VIdentityDataType() = default;

void VIdentityDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitIdentityDataType(*this);
}

VCodedProperties& VIdentityDataType::CodedProperties() {
    return m_codedProperties;
}

VPhysicalDisplayProperties& VIdentityDataType::PhysicalDisplayProperties() {
    return m_physicalDisplayProperties;
}

} // namespace ImportDame
