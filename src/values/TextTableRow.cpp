#include <ImportDame/TextTableRow.h>

namespace ImportDame {

VTextTableRow::VTextTableRow() = default;

VTextTableRow::~VTextTableRow() = default;

void VTextTableRow::SetStartValue(VValue& value) {
    m_range.SetStartValue(value);
}

void VTextTableRow::SetEndValue(VValue& value) {
    m_range.SetEndValue(value);
}

void VTextTableRow::SetMappedValue(const wchar_t* text) {
    m_mappedValue.SetText(text);
}

void VTextTableRow::SetAdditionalInfo(const wchar_t* text) {
    m_additionalInfo.SetText(text);
}

bool VTextTableRow::operator==(const VTextTableRow& other) const {
    return m_mappedValue == other.m_mappedValue && m_additionalInfo == other.m_additionalInfo &&
           m_range == other.m_range;
}

bool VTextTableRow::operator!=(const VTextTableRow& other) const {
    return !(*this == other);
}

} // namespace ImportDame
