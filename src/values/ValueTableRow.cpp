#include <ImportDame/ValueTableRow.h>

namespace ImportDame {

VValueTableRow::VValueTableRow() = default;

VValueTableRow::~VValueTableRow() = default;

double VValueTableRow::GetCodedValue() const {
    return m_codedValue;
}

void VValueTableRow::SetCodedValue(double value) {
    m_codedValue = value;
}

double VValueTableRow::GetMappedValue() const {
    return m_mappedValue;
}

void VValueTableRow::SetMappedValue(double value) {
    m_mappedValue = value;
}

bool VValueTableRow::operator==(const VValueTableRow& other) const {
    return m_mappedValue == other.m_mappedValue && m_codedValue == other.m_codedValue;
}

bool VValueTableRow::operator!=(const VValueTableRow& other) const {
    return !(*this == other);
}

} // namespace ImportDame
