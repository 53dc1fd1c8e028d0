#include <ImportDame/Conversion.h>

#include "core/Require.h"

namespace ImportDame {

VConversion::VConversion() = default;

VConversion::~VConversion() = default;

VValue VConversion::GetCompuInverseValue() {
    detail::Require(HasCompuInverseValue(), detail::CheckSite::ConversionGetCompuInverseValue);
    return m_compuInverseValue;
}

bool VConversion::HasCompuInverseValue() const {
    return m_hasCompuInverseValue;
}

void VConversion::SetCompuInverseValue(const VValue& value) {
    m_compuInverseValue = value;
    m_hasCompuInverseValue = true;
}

} // namespace ImportDame
