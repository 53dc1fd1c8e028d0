#include <ImportDame/ValueTableDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VValueTableDataType::VValueTableDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VValueTableDataType::~VValueTableDataType() = default;

void VValueTableDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitValueTableDataType(*this);
}

void VValueTableDataType::IsInterpolated(bool isInterpolated) {
    m_isInterpolated = isInterpolated;
}

} // namespace ImportDame
