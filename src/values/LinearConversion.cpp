#include <ImportDame/LinearConversion.h>

namespace ImportDame {

VLinearConversion::VLinearConversion() = default;

VLinearConversion::~VLinearConversion() = default;

void VLinearConversion::SetFactorNumerator(double numerator) {
    m_factorNumerator = numerator;
}

void VLinearConversion::SetFactorDenominator(unsigned int denominator) {
    m_factorDenominator = denominator;
}

void VLinearConversion::SetOffset(double offset) {
    m_offset = offset;
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

bool VLinearConversion::operator==(const VLinearConversion& other) const {
    return m_factorNumerator == other.m_factorNumerator && m_factorDenominator == other.m_factorDenominator &&
           m_offset == other.m_offset && m_range == other.m_range;
}

bool VLinearConversion::operator!=(const VLinearConversion& other) const {
    return !(*this == other);
}

} // namespace ImportDame
