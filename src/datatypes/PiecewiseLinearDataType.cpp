#include <ImportDame/PiecewiseLinearDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VPiecewiseLinearDataType::VPiecewiseLinearDataType(VDataTypeCollection& dataTypeCollection)
    : VDataType(dataTypeCollection) {}

VPiecewiseLinearDataType::~VPiecewiseLinearDataType() = default;

void VPiecewiseLinearDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitPiecewiseLinearDataType(*this);
}

} // namespace ImportDame
