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

VProperties::VQuantity VPhysicalProperties::GetQuantity() const {
    return m_quantity;
}

void VPhysicalProperties::SetQuantity(VProperties::VQuantity quantity) {
    m_quantity = quantity;
}

VPhysicalAtomProperties& VPhysicalProperties::PhysicalAtomProperties() {
    return m_physicalAtomProperties;
}

VFieldProperties& VPhysicalProperties::PhysicalFieldProperties() {
    return m_physicalFieldProperties;
}

VProperties::VEncoding VPhysicalProperties::GetEncoding() const {
    return m_physicalAtomProperties.GetEncoding();
}

void VPhysicalProperties::SetEncoding(VProperties::VEncoding encoding) {
    m_physicalAtomProperties.SetEncoding(encoding);
}

unsigned int VPhysicalProperties::GetAtomicBitLength() const {
    return m_physicalAtomProperties.GetBitLength();
}

void VPhysicalProperties::SetAtomicBitLength(unsigned int bitLength) {
    m_physicalAtomProperties.SetBitLength(bitLength);
}

VPhysicalDisplayProperties::VDisplayFormat VPhysicalProperties::GetDisplayFormat() const {
    return m_physicalAtomProperties.GetDisplayFormat();
}

void VPhysicalProperties::SetDisplayFormat(VPhysicalDisplayProperties::VDisplayFormat displayFormat) {
    m_physicalAtomProperties.SetDisplayFormat(displayFormat);
}

unsigned int VPhysicalProperties::GetPrecision() const {
    return m_physicalAtomProperties.GetPrecision();
}

void VPhysicalProperties::SetPrecision(unsigned int precision) {
    m_physicalAtomProperties.SetPrecision(precision);
}

const wchar_t* VPhysicalProperties::GetUnit() const {
    return m_physicalAtomProperties.GetUnit();
}

void VPhysicalProperties::SetUnit(const wchar_t* unit) {
    m_physicalAtomProperties.SetUnit(unit);
}

bool VPhysicalProperties::IsNum() const {
    return m_physicalAtomProperties.IsNum();
}

bool VPhysicalProperties::IsText() const {
    return m_physicalAtomProperties.IsText();
}

VFieldProperties::VSizeInfo VPhysicalProperties::GetSizeInfo() const {
    return m_physicalFieldProperties.GetSizeInfo();
}

void VPhysicalProperties::SetSizeInfo(VFieldProperties::VSizeInfo sizeInfo) {
    m_physicalFieldProperties.SetSizeInfo(sizeInfo);
    m_quantity = VProperties::field;
}

unsigned int VPhysicalProperties::GetMinLength() const {
    return m_physicalFieldProperties.GetMinLength();
}

void VPhysicalProperties::SetMinLength(unsigned int minLength) {
    m_physicalFieldProperties.SetMinLength(minLength);
    m_quantity = VProperties::field;
}

unsigned int VPhysicalProperties::GetMaxLength() const {
    return m_physicalFieldProperties.GetMaxLength();
}

void VPhysicalProperties::SetMaxLength(unsigned int maxLength) {
    m_physicalFieldProperties.SetMaxLength(maxLength);
    m_quantity = VProperties::field;
}

} // namespace ImportDame
