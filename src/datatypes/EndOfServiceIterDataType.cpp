#include <ImportDame/EndOfServiceIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VEndOfServiceIterDataType::VEndOfServiceIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection) {}

VEndOfServiceIterDataType::~VEndOfServiceIterDataType() = default;

void VEndOfServiceIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitEndOfServiceIterDataType(*this);
}

const unsigned int& VEndOfServiceIterDataType::GetMinNumberOfItems() const {
    return m_minNumberOfItems;
}

void VEndOfServiceIterDataType::SetMinNumberOfItems(const unsigned int& minNumberOfItems) {
    m_minNumberOfItems = minNumberOfItems;
}

bool VEndOfServiceIterDataType::HasMaxNumberOfItems() const {
    return m_maxNumberOfItems.IsPresent();
}

const unsigned int& VEndOfServiceIterDataType::GetMaxNumberOfItems() const {
    return m_maxNumberOfItems.Get();
}

void VEndOfServiceIterDataType::SetMaxNumberOfItems(const unsigned int& maxNumberOfItems) {
    m_maxNumberOfItems.Set(maxNumberOfItems);
}

void VEndOfServiceIterDataType::UnsetMaxNumberOfItems() {
    m_maxNumberOfItems.Unset();
}

} // namespace ImportDame
