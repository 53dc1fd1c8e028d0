#include <ImportDame/BasePacketDataType.h>

namespace ImportDame {

VBasePacketDataType::VBasePacketDataType(VDataTypeCollection& dataTypeCollection)
    : VDataType(dataTypeCollection), m_interchangeableCollection(ImportDoc()) {}

VBasePacketDataType::~VBasePacketDataType() = default;

bool VBasePacketDataType::NeedsSelector() const {
    return false;
}

VInterchangeableCollection& VBasePacketDataType::InterchangeableCollection() {
    return m_interchangeableCollection;
}

} // namespace ImportDame
