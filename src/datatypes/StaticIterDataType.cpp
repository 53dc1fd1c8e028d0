#include <ImportDame/StaticIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VStaticIterDataType::VStaticIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection) {}

VStaticIterDataType::~VStaticIterDataType() = default;

void VStaticIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitStaticIterDataType(*this);
}

void VStaticIterDataType::SetNumOfItems(const unsigned int& numOfItems) {
    m_numOfItems = numOfItems;
}

} // namespace ImportDame
