#include <ImportDame/BasePacketDataType.h>

namespace ImportDame {

VBasePacketDataType::VBasePacketDataType(VDataTypeCollection& dataTypeCollection)
    : VDataType(dataTypeCollection), m_interchangeableCollection(ImportDoc()) {}

VBasePacketDataType::~VBasePacketDataType() = default;

bool VBasePacketDataType::NeedsSelector() const {
    return false;
}

} // namespace ImportDame
