#include <ImportDame/TextTableDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VTextTableDataType::VTextTableDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VTextTableDataType::~VTextTableDataType() = default;

void VTextTableDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitTextTableDataType(*this);
}

} // namespace ImportDame
