#include <ImportDame/NumeratorIterDataType.h>

#include <ImportDame/DataTypeVisitor.h>

#include "core/Require.h"

namespace ImportDame {

VNumeratorIterDataType::VNumeratorIterDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection) {}

VNumeratorIterDataType::~VNumeratorIterDataType() = default;

void VNumeratorIterDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitNumeratorIterDataType(*this);
}

bool VNumeratorIterDataType::NeedsSelector() const {
    return true;
}

VDataType& VNumeratorIterDataType::GetSelectorDataType() {
    detail::Require(HasSelectorDataType(), detail::CheckSite::NumeratorIterDataTypeGetSelectorDataType);
    return *m_selectorDataType;
}

void VNumeratorIterDataType::SetSelectorDataType(VDataType& dataType) {
    m_selectorDataType = &dataType;
}

bool VNumeratorIterDataType::HasSelectorDataType() const {
    return m_selectorDataType != nullptr;
}

const unsigned int& VNumeratorIterDataType::GetContentStartBitPosition() const {
    detail::Require(HasContentStartBitPosition(), detail::CheckSite::NumeratorIterDataTypeGetContentStartBitPosition);
    return m_contentStartBitPosition.Get();
}

void VNumeratorIterDataType::SetContentStartBitPosition(const unsigned int& bitPosition) {
    m_contentStartBitPosition.Set(bitPosition);
}

void VNumeratorIterDataType::UnsetContentStartBitPosition() {
    m_contentStartBitPosition.Unset();
}

const unsigned int& VNumeratorIterDataType::GetSelectorStartBitPosition() const {
    detail::Require(HasSelectorStartBitPosition(), detail::CheckSite::NumeratorIterDataTypeGetSelectorStartBitPosition);
    return m_selectorStartBitPosition.Get();
}

void VNumeratorIterDataType::SetSelectorStartBitPosition(const unsigned int& bitPosition) {
    m_selectorStartBitPosition.Set(bitPosition);
}

void VNumeratorIterDataType::UnsetSelectorStartBitPosition() {
    m_selectorStartBitPosition.Unset();
}

void VNumeratorIterDataType::SetOffset(const unsigned int& offset) {
    m_offset = offset;
}

} // namespace ImportDame
