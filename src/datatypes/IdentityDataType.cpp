#include <ImportDame/IdentityDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VIdentityDataType::VIdentityDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

VIdentityDataType::~VIdentityDataType() = default;

void VIdentityDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitIdentityDataType(*this);
}

} // namespace ImportDame
