#include <ImportDame/PhysicalAtomProperties.h>

#include "datatypes/Encoding.h"

namespace ImportDame {

VPhysicalAtomProperties::VPhysicalAtomProperties() = default;

VPhysicalAtomProperties::VPhysicalAtomProperties(const VPhysicalAtomProperties& other) = default;

VPhysicalAtomProperties::~VPhysicalAtomProperties() = default;

bool VPhysicalAtomProperties::operator==(const VPhysicalAtomProperties& other) const {
    return m_encoding == other.m_encoding && m_bitLength == other.m_bitLength &&
           m_physicalDisplayProperties == other.m_physicalDisplayProperties;
}

bool VPhysicalAtomProperties::operator!=(const VPhysicalAtomProperties& other) const {
    return !(*this == other);
}

void VPhysicalAtomProperties::SetEncoding(VProperties::VEncoding encoding) {
    m_encoding = encoding;
}

void VPhysicalAtomProperties::SetBitLength(unsigned int bitLength) {
    m_bitLength = bitLength;
}

bool VPhysicalAtomProperties::IsNum() const {
    return detail::IsNumber(m_encoding);
}

bool VPhysicalAtomProperties::IsText() const {
    return detail::IsText(m_encoding);
}

void VPhysicalAtomProperties::SetDisplayFormat(VPhysicalDisplayProperties::VDisplayFormat displayFormat) {
    m_physicalDisplayProperties.SetDisplayFormat(displayFormat);
}

void VPhysicalAtomProperties::SetPrecision(unsigned int precision) {
    m_physicalDisplayProperties.SetPrecision(precision);
}

void VPhysicalAtomProperties::SetUnit(const wchar_t* unit) {
    m_physicalDisplayProperties.SetUnit(unit);
}

} // namespace ImportDame
