#include <ImportDame/PhysicalProperties.h>

namespace ImportDame {

VPhysicalProperties::VPhysicalProperties() = default;

VPhysicalProperties::VPhysicalProperties(const VPhysicalProperties& other) = default;

VPhysicalProperties::~VPhysicalProperties() = default;

bool VPhysicalProperties::operator==(const VPhysicalProperties& other) const {
    return m_physicalAtomProperties == other.m_physicalAtomProperties &&
           m_physicalFieldProperties == other.m_physicalFieldProperties && m_quantity == other.m_quantity;
}

bool VPhysicalProperties::operator!=(const VPhysicalProperties& other) const {
    return !(*this == other);
}

void VPhysicalProperties::SetQuantity(VProperties::VQuantity quantity) {
    m_quantity = quantity;
}

void VPhysicalProperties::SetEncoding(VProperties::VEncoding encoding) {
    m_physicalAtomProperties.SetEncoding(encoding);
}

void VPhysicalProperties::SetAtomicBitLength(unsigned int bitLength) {
    m_physicalAtomProperties.SetBitLength(bitLength);
}

void VPhysicalProperties::SetDisplayFormat(VPhysicalDisplayProperties::VDisplayFormat displayFormat) {
    m_physicalAtomProperties.SetDisplayFormat(displayFormat);
}

void VPhysicalProperties::SetPrecision(unsigned int precision) {
    m_physicalAtomProperties.SetPrecision(precision);
}

void VPhysicalProperties::SetUnit(const wchar_t* unit) {
    m_physicalAtomProperties.SetUnit(unit);
}

void VPhysicalProperties::SetSizeInfo(VFieldProperties::VSizeInfo sizeInfo) {
    m_physicalFieldProperties.SetSizeInfo(sizeInfo);
    m_quantity = VProperties::field;
}

void VPhysicalProperties::SetMinLength(unsigned int minLength) {
    m_physicalFieldProperties.SetMinLength(minLength);
    m_quantity = VProperties::field;
}

void VPhysicalProperties::SetMaxLength(unsigned int maxLength) {
    m_physicalFieldProperties.SetMaxLength(maxLength);
    m_quantity = VProperties::field;
}

} // namespace ImportDame
