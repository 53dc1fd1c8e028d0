#include <ImportDame/EndOfServiceIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VEndOfServiceIterDataType::VEndOfServiceIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection) {}

VEndOfServiceIterDataType::~VEndOfServiceIterDataType() = default;

void VEndOfServiceIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitEndOfServiceIterDataType(*this);
}

void VEndOfServiceIterDataType::SetMinNumberOfItems(const unsigned int& minNumberOfItems) {
    m_minNumberOfItems = minNumberOfItems;
}

void VEndOfServiceIterDataType::SetMaxNumberOfItems(const unsigned int& maxNumberOfItems) {
    m_maxNumberOfItems.Set(maxNumberOfItems);
}

void VEndOfServiceIterDataType::UnsetMaxNumberOfItems() {
    m_maxNumberOfItems.Unset();
}

} // namespace ImportDame
