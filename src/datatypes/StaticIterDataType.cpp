#include <ImportDame/StaticIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VStaticIterDataType::VStaticIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection) {}

VStaticIterDataType::~VStaticIterDataType() = default;

void VStaticIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitStaticIterDataType(*this);
}

const unsigned int& VStaticIterDataType::GetNumOfItems() const {
    return m_numOfItems;
}

void VStaticIterDataType::SetNumOfItems(const unsigned int& numOfItems) {
    m_numOfItems = numOfItems;
}

} // namespace ImportDame
