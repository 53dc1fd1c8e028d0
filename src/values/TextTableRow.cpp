#include <ImportDame/TextTableRow.h>

namespace ImportDame {

VTextTableRow::VTextTableRow() = default;

VTextTableRow::~VTextTableRow() = default;

VRange& VTextTableRow::GetRange() {
    return m_range;
}

VValue VTextTableRow::GetStartValue() {
    return m_range.GetStartValue();
}

VValue VTextTableRow::GetEndValue() {
    return m_range.GetEndValue();
}

void VTextTableRow::SetStartValue(VValue& value) {
    m_range.SetStartValue(value);
}

void VTextTableRow::SetEndValue(VValue& value) {
    m_range.SetEndValue(value);
}

const wchar_t* VTextTableRow::GetMappedValue() {
    return m_mappedValue.GetText();
}

void VTextTableRow::SetMappedValue(const wchar_t* text) {
    m_mappedValue.SetText(text);
}

VText& VTextTableRow::MappedValue() {
    return m_mappedValue;
}

const wchar_t* VTextTableRow::GetAdditionalInfo() {
    return m_additionalInfo.GetText();
}

void VTextTableRow::SetAdditionalInfo(const wchar_t* text) {
    m_additionalInfo.SetText(text);
}

VText& VTextTableRow::AdditionalInfo() {
    return m_additionalInfo;
}

bool VTextTableRow::operator==(const VTextTableRow& other) const {
    return m_mappedValue == other.m_mappedValue && m_additionalInfo == other.m_additionalInfo &&
           m_range == other.m_range;
}

bool VTextTableRow::operator!=(const VTextTableRow& other) const {
    return !(*this == other);
}

} // namespace ImportDame
