#include <ImportDame/IterDataType.h>

namespace ImportDame {

VIterDataType::VIterDataType(VDataTypeCollection& dataTypeCollection) : VBasePacketDataType(dataTypeCollection) {}

VIterDataType::~VIterDataType() = default;

} // namespace ImportDame
