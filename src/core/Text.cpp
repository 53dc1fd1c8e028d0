#include <ImportDame/Text.h>

#include "core/Require.h"

#include <utility>

namespace ImportDame {

VText::VText() = default;

VText::VText(const wchar_t* text) : m_text(text) {}

VText::VText(const VText& other) = default;

VText::~VText() = default;

VText& VText::operator=(const VText& other) {
    detail::Text text(other.m_text);
    detail::Text textId(other.m_textId);
    m_text = std::move(text);
    m_textId = std::move(textId);
    mbHasTextId = other.mbHasTextId;
    return *this;
}

bool VText::operator==(const VText& other) const {
    return m_text == other.m_text && m_textId == other.m_textId;
}

bool VText::operator!=(const VText& other) const {
    return !(*this == other);
}

void VText::SetText(const wchar_t* text) {
    m_text.Set(text);
}

const wchar_t* VText::GetTextId() const {
    detail::Require(mbHasTextId, detail::CheckSite::TextGetTextId);
    return m_textId.Get();
}

void VText::SetTextId(const wchar_t* textId) {
    m_textId.Set(textId);
    mbHasTextId = true;
}

} // namespace ImportDame
