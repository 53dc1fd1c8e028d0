#include <ImportDame/ValueTableDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VValueTableDataType::VValueTableDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VValueTableDataType::~VValueTableDataType() = default;

void VValueTableDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitValueTableDataType(*this);
}

VCodedAtomProperties& VValueTableDataType::CodedAtomProperties() {
    return m_codedAtomProperties;
}

VPhysicalAtomProperties& VValueTableDataType::PhysicalAtomProperties() {
    return m_physicalAtomProperties;
}

VPhysicalDisplayProperties& VValueTableDataType::PhysicalDisplayProperties() {
    return m_physicalDisplayProperties;
}

VValueTableRowCollection& VValueTableDataType::ValueTableRowCollection() {
    return m_valueTableRowCollection;
}

bool VValueTableDataType::IsInterpolated() {
    return m_isInterpolated;
}

void VValueTableDataType::IsInterpolated(bool isInterpolated) {
    m_isInterpolated = isInterpolated;
}

} // namespace ImportDame
