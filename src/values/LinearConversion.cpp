#include <ImportDame/LinearConversion.h>

namespace ImportDame {

VLinearConversion::VLinearConversion() = default;

VLinearConversion::~VLinearConversion() = default;

double VLinearConversion::GetFactorNumerator() {
    return m_factorNumerator;
}

void VLinearConversion::SetFactorNumerator(double numerator) {
    m_factorNumerator = numerator;
}

unsigned int VLinearConversion::GetFactorDenominator() {
    return m_factorDenominator;
}

void VLinearConversion::SetFactorDenominator(unsigned int denominator) {
    m_factorDenominator = denominator;
}

double VLinearConversion::GetOffset() {
    return m_offset;
}

void VLinearConversion::SetOffset(double offset) {
    m_offset = offset;
}

VRange& VLinearConversion::GetRange() {
    return m_range;
}

void VLinearConversion::SetStartValue(double value) {
    m_range.SetStartValue(VValue(value));
}

void VLinearConversion::SetEndValue(double value) {
    m_range.SetEndValue(VValue(value));
}

double VLinearConversion::GetStartValue() {
    return m_range.GetStartValue().GetAsDouble();
}

double VLinearConversion::GetEndValue() {
    return m_range.GetEndValue().GetAsDouble();
}

bool VLinearConversion::HasStartValue() {
    return m_range.HasStartValue();
}

bool VLinearConversion::HasEndValue() {
    return m_range.HasEndValue();
}

bool VLinearConversion::operator==(const VLinearConversion& other) const {
    return m_factorNumerator == other.m_factorNumerator && m_factorDenominator == other.m_factorDenominator &&
           m_offset == other.m_offset && m_range == other.m_range;
}

bool VLinearConversion::operator!=(const VLinearConversion& other) const {
    return !(*this == other);
}

} // namespace ImportDame
