#include <ImportDame/Range.h>

#include "core/Require.h"

namespace ImportDame {

VRange::VRange() = default;

VRange::VRange(const VRange& other) = default;

VRange& VRange::operator=(const VRange& other) {
    VRange copy(other);
    m_startValue.Swap(copy.m_startValue);
    m_endValue.Swap(copy.m_endValue);
    m_hasStartValue = copy.m_hasStartValue;
    m_hasEndValue = copy.m_hasEndValue;
    return *this;
}

VRange::~VRange() = default;

void VRange::SetStartValue(const VValue& value) {
    m_startValue = value;
    m_hasStartValue = true;
}

void VRange::SetEndValue(const VValue& value) {
    m_endValue = value;
    m_hasEndValue = true;
}

void VRange::SetStartValue(VValue&& value) noexcept {
    m_startValue.Swap(value);
    m_hasStartValue = true;
}

void VRange::SetEndValue(VValue&& value) noexcept {
    m_endValue.Swap(value);
    m_hasEndValue = true;
}

void VRange::UnsetStartValue() {
    m_hasStartValue = false;
}

void VRange::UnsetEndValue() {
    m_hasEndValue = false;
}

VValue VRange::GetStartValue() {
    detail::Require(m_hasStartValue, detail::CheckSite::RangeGetStartValue);
    return m_startValue;
}

VValue VRange::GetEndValue() {
    detail::Require(m_hasEndValue, detail::CheckSite::RangeGetEndValue);
    return m_endValue;
}

bool VRange::operator==(const VRange& other) const {
    return m_hasStartValue == other.m_hasStartValue && m_hasEndValue == other.m_hasEndValue &&
           m_startValue == other.m_startValue && m_endValue == other.m_endValue;
}

bool VRange::operator!=(const VRange& other) const {
    return !(*this == other);
}

} // namespace ImportDame
