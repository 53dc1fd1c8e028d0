#include <ImportDame/EndMarkerIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

namespace ImportDame {

VEndMarkerIterDataType::VEndMarkerIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection), m_terminationValue(L"") {}

VEndMarkerIterDataType::~VEndMarkerIterDataType() = default;

void VEndMarkerIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitEndMarkerIterDataType(*this);
}

VValue& VEndMarkerIterDataType::TerminationValue() {
    return m_terminationValue;
}

bool VEndMarkerIterDataType::HasTerminationDataType() const {
    return m_terminationDataType != nullptr;
}

VDataType& VEndMarkerIterDataType::GetTerminationDataType() {
    return *m_terminationDataType;
}

void VEndMarkerIterDataType::SetTerminationDataType(VDataType& dataType) {
    m_terminationDataType = &dataType;
}

} // namespace ImportDame
