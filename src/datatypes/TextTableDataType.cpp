#include <ImportDame/TextTableDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VTextTableDataType::VTextTableDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VTextTableDataType::~VTextTableDataType() = default;

void VTextTableDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitTextTableDataType(*this);
}

VCodedProperties& VTextTableDataType::CodedProperties() {
    return m_codedProperties;
}

VTextTableRowCollection& VTextTableDataType::TextTableRowCollection() {
    return m_textTableRowCollection;
}

} // namespace ImportDame
