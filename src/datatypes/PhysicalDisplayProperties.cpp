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

void VPhysicalDisplayProperties::SetDisplayFormat(VDisplayFormat displayFormat) {
    m_displayFormat = displayFormat;
}

void VPhysicalDisplayProperties::SetPrecision(unsigned int precision) {
    m_precision = precision;
}

void VPhysicalDisplayProperties::SetUnit(const wchar_t* unit) {
    m_unit.Set(unit);
}

void VPhysicalDisplayProperties::SetSigned(const bool& isSigned) {
    m_isSigned = isSigned;
}

} // namespace ImportDame
