#include <ImportDame/FieldProperties.h>

namespace ImportDame {

VFieldProperties::VFieldProperties() = default;

VFieldProperties::VFieldProperties(const VFieldProperties& other) = default;

VFieldProperties::~VFieldProperties() = default;

bool VFieldProperties::operator==(const VFieldProperties& other) const {
    return m_sizeInfo == other.m_sizeInfo && m_minLength == other.m_minLength && m_maxLength == other.m_maxLength;
}

bool VFieldProperties::operator!=(const VFieldProperties& other) const {
    return !(*this == other);
}

void VFieldProperties::SetSizeInfo(VSizeInfo sizeInfo) {
    m_sizeInfo = sizeInfo;
}

void VFieldProperties::SetMinLength(unsigned int minLength) {
    m_minLength = minLength;
}

void VFieldProperties::SetMaxLength(unsigned int maxLength) {
    m_maxLength = maxLength;
}

} // namespace ImportDame
