#include <ImportDame/LinearDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VLinearDataType::VLinearDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VLinearDataType::~VLinearDataType() = default;

void VLinearDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitLinearDataType(*this);
}

} // namespace ImportDame
