#include <ImportDame/PiecewiseLinearDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VPiecewiseLinearDataType::VPiecewiseLinearDataType(VDataTypeCollection& dataTypeCollection)
    : VDataType(dataTypeCollection) {}

VPiecewiseLinearDataType::~VPiecewiseLinearDataType() = default;

void VPiecewiseLinearDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitPiecewiseLinearDataType(*this);
}

VCodedAtomProperties& VPiecewiseLinearDataType::CodedAtomProperties() {
    return m_codedAtomProperties;
}

VPhysicalAtomProperties& VPiecewiseLinearDataType::PhysicalAtomProperties() {
    return m_physicalAtomProperties;
}

VPhysicalDisplayProperties& VPiecewiseLinearDataType::PhysicalDisplayProperties() {
    return m_physicalDisplayProperties;
}

VLinearConversionCollection& VPiecewiseLinearDataType::LinearConversionCollection() {
    return m_linearConversionCollection;
}

} // namespace ImportDame
