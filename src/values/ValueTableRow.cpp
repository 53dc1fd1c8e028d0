#include <ImportDame/ValueTableRow.h>

namespace ImportDame {

VValueTableRow::VValueTableRow() = default;

VValueTableRow::~VValueTableRow() = default;

void VValueTableRow::SetCodedValue(double value) {
    m_codedValue = value;
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
