#include <ImportDame/PhysicalDisplayProperties.h>

namespace ImportDame {

VPhysicalDisplayProperties::VPhysicalDisplayProperties() = default;

VPhysicalDisplayProperties::VPhysicalDisplayProperties(const VPhysicalDisplayProperties& other) = default;

VPhysicalDisplayProperties::~VPhysicalDisplayProperties() = default;

bool VPhysicalDisplayProperties::operator==(const VPhysicalDisplayProperties& other) const {
    return m_displayFormat == other.m_displayFormat && m_precision == other.m_precision && m_unit == other.m_unit &&
           m_isSigned == other.m_isSigned;
}

bool VPhysicalDisplayProperties::operator!=(const VPhysicalDisplayProperties& other) const {
    return !(*this == other);
}

VPhysicalDisplayProperties::VDisplayFormat VPhysicalDisplayProperties::GetDisplayFormat() const {
    return m_displayFormat;
}

void VPhysicalDisplayProperties::SetDisplayFormat(VDisplayFormat displayFormat) {
    m_displayFormat = displayFormat;
}

unsigned int VPhysicalDisplayProperties::GetPrecision() const {
    return m_precision;
}

void VPhysicalDisplayProperties::SetPrecision(unsigned int precision) {
    m_precision = precision;
}

const wchar_t* VPhysicalDisplayProperties::GetUnit() const {
    return m_unit.Get();
}

void VPhysicalDisplayProperties::SetUnit(const wchar_t* unit) {
    m_unit.Set(unit);
}

bool VPhysicalDisplayProperties::IsSigned() const {
    return m_isSigned;
}

void VPhysicalDisplayProperties::SetSigned(const bool& isSigned) {
    m_isSigned = isSigned;
}

} // namespace ImportDame
