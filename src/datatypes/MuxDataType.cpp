#include <ImportDame/MuxDataType.h>

#include <ImportDame/DataTypeVisitor.h>

#include "core/Require.h"

namespace ImportDame {

VMuxDataType::VMuxDataType(VDataTypeCollection& dataTypeCollection)
    : VBasePacketDataType(dataTypeCollection), m_defaultCase(ImportDoc()), m_caseCollection(ImportDoc()) {}

VMuxDataType::~VMuxDataType() = default;

void VMuxDataType::Accept(VDataTypeVisitor& visitor) {
    visitor.VisitMuxDataType(*this);
}

bool VMuxDataType::NeedsSelector() const {
    return true;
}

VInterchangeableCollection& VMuxDataType::GetDefaultCase() {
    return m_defaultCase;
}

VCaseCollection& VMuxDataType::GetCaseCollection() {
    return m_caseCollection;
}

VDataType& VMuxDataType::GetSelectorDataType() {
    detail::Require(HasSelectorDataType(), detail::CheckSite::MuxDataTypeGetSelectorDataType);
    return *m_selectorDataType;
}

void VMuxDataType::SetSelectorDataType(VDataType& dataType) {
    m_selectorDataType = &dataType;
}

bool VMuxDataType::HasSelectorDataType() const {
    return m_selectorDataType != nullptr;
}

const unsigned int& VMuxDataType::GetMuxStartBitPosition() const {
    detail::Require(HasMuxStartBitPosition(), detail::CheckSite::MuxDataTypeGetMuxStartBitPosition);
    return m_muxStartBitPosition.Get();
}

void VMuxDataType::SetMuxStartBitPosition(const unsigned int& bitPosition) {
    m_muxStartBitPosition.Set(bitPosition);
}

void VMuxDataType::UnsetMuxStartBitPosition() {
    m_muxStartBitPosition.Unset();
}

const unsigned int& VMuxDataType::GetSelectorStartBitPosition() const {
    detail::Require(HasSelectorStartBitPosition(), detail::CheckSite::MuxDataTypeGetSelectorStartBitPosition);
    return m_selectorStartBitPosition.Get();
}

void VMuxDataType::SetSelectorStartBitPosition(const unsigned int& bitPosition) {
    m_selectorStartBitPosition.Set(bitPosition);
}

void VMuxDataType::UnsetSelectorStartBitPosition() {
    m_selectorStartBitPosition.Unset();
}

} // namespace ImportDame
