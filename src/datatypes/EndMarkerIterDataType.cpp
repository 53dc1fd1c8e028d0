#include <ImportDame/EndMarkerIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VEndMarkerIterDataType::VEndMarkerIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection), m_terminationValue(L"") {}

VEndMarkerIterDataType::~VEndMarkerIterDataType() = default;

void VEndMarkerIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitEndMarkerIterDataType(*this);
}

VDataType& VEndMarkerIterDataType::GetTerminationDataType() {
    return *m_terminationDataType;
}

void VEndMarkerIterDataType::SetTerminationDataType(VDataType& dataType) {
    m_terminationDataType = &dataType;
}

} // namespace ImportDame
