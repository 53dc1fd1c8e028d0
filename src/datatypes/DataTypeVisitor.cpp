#include <ImportDame/DataTypeVisitor.h>

#include <ImportDame/DataType.h>

namespace ImportDame {

VDataTypeVisitor::~VDataTypeVisitor() = default;

void VDataTypeVisitor::DispatchDataType(VDataType& dataType) {
    dataType.Accept(*this);
}

} // namespace ImportDame
