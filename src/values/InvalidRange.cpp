#include <ImportDame/InvalidRange.h>

namespace ImportDame {

VInvalidRange::VInvalidRange() = default;

VInvalidRange::~VInvalidRange() = default;

void VInvalidRange::SetRange(const VValue& start, const VValue& end) {
    VRange range(static_cast<const VRange&>(*this));
    range.SetStartValue(start);
    range.SetEndValue(end);
    VRange::operator=(range);
}

void VInvalidRange::SetInvalidity(VInvalidity invalidity) {
    m_invalidity = invalidity;
}

void VInvalidRange::SetAssignedText(const wchar_t* text) {
    m_assignedText.SetText(text);
}

bool VInvalidRange::operator==(const VInvalidRange& other) const {
    return VRange::operator==(other) && m_invalidity == other.m_invalidity && m_assignedText == other.m_assignedText;
}

bool VInvalidRange::operator!=(const VInvalidRange& other) const {
    return !(*this == other);
}

} // namespace ImportDame
