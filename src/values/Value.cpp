#include <ImportDame/Value.h>

#include <ImportDame/ValueUtil.h>

#include "core/LogGroup.h"
#include "core/Require.h"
#include "values/FixedNumber.h"
#include "values/LeadingInteger.h"
#include "values/PositionalNumber.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace ImportDame {

using detail::CheckSite;
using detail::Require;

const std::wstring VValue::c_separator = L" ";

VValue::VValue() = default;

VValue::VValue(double value) {
    SetAsDouble(value);
}

VValue::VValue(const wchar_t* text) : m_text(text) {}

VValue::VValue(const VValue& other) = default;

VValue& VValue::operator=(const VValue& other) {
    if (this != &other) {
        VValue copy(other);
        Swap(copy);
    }
    return *this;
}

VValue::~VValue() = default;

void VValue::Set(const wchar_t* text) {
    m_text.Set(text);
    m_quantity = atomic;
}

const wchar_t* VValue::Get() {
    Require(m_quantity == atomic, CheckSite::ValueGet);
    return m_text.Get();
}

void VValue::SetAsDouble(double value) {
    std::array<wchar_t, 512> buffer;
    m_text.Set(detail::PrintFixed(value, buffer));
    m_quantity = atomic;
}

double VValue::GetAsDouble() const {
    Require(m_quantity == atomic, CheckSite::ValueGetAsDouble);
    if (const auto number = detail::ParsePositionalNumber(m_text.View(), 10))
        return *number;
    bool ok = false;
    const double number = NValueUtil::StrToDbl(m_text.Get(), 10, &ok);
    if (!ok)
        detail::LogError(L"Internal error: representation of atomic value cannot be converted to double");
    return number;
}

void VValue::AddFieldElement(const wchar_t* text) {
    m_reversedElements.Change().emplace_back(text);
    m_quantity = field;
}

void VValue::SetTextField(const wchar_t* text) {
    const std::wstring_view characters(text);
    std::vector<detail::Text> reversedElements;
    reversedElements.reserve(characters.size());
    for (auto position = characters.rbegin(); position != characters.rend(); ++position)
        reversedElements.emplace_back(std::wstring_view(&*position, 1));
    m_reversedElements.Change().swap(reversedElements);
    m_quantity = field;
}

void VValue::SetNonTextField(const wchar_t* text) {
    std::vector<detail::Text> elements;
    for (std::wstring_view rest(text); !rest.empty();) {
        const std::wstring_view element = rest.substr(0, rest.find(c_separator));
        elements.emplace_back(element);
        rest.remove_prefix(element.size());
        while (rest.starts_with(c_separator))
            rest.remove_prefix(c_separator.size());
    }
    std::reverse(elements.begin(), elements.end());
    m_reversedElements.Change().swap(elements);
    m_quantity = field;
}

void VValue::ClearField() {
    Require(m_quantity == field, CheckSite::ValueClearField);
    m_reversedElements.Clear();
}

bool VValue::IsField() const {
    Require(m_quantity == atomic || m_quantity == field, CheckSite::ValueIsField);
    return m_quantity == field;
}

bool VValue::IsFieldEmpty() {
    Require(m_quantity == field, CheckSite::ValueIsFieldEmpty);
    return m_reversedElements.IsEmpty();
}

unsigned long long VValue::GetFieldSize() {
    Require(m_quantity == field, CheckSite::ValueGetFieldSize);
    return m_reversedElements.Texts().size();
}

const wchar_t* VValue::GetElement(unsigned int index) const {
    Require(m_quantity == field, CheckSite::ValueGetElement);
    const auto reversedElements = m_reversedElements.Texts();
    return reversedElements[reversedElements.size() - 1 - index].Get();
}

void VValue::IsPhysical(bool isPhysical) {
    m_isPhysical = isPhysical;
}

bool VValue::operator==(const VValue& other) const {
    if (m_quantity != other.m_quantity || m_isPhysical != other.m_isPhysical)
        return false;
    return m_quantity == field ? m_reversedElements == other.m_reversedElements : m_text == other.m_text;
}

bool VValue::operator!=(const VValue& other) const {
    return !(*this == other);
}

bool VValue::operator>=(const VValue& other) const {
    if (m_quantity != other.m_quantity)
        return false;
    if (m_quantity != field)
        return GetAsDouble() >= other.GetAsDouble();
    const auto elements = m_reversedElements.Texts();
    const auto otherElements = other.m_reversedElements.Texts();
    if (elements.size() != otherElements.size())
        return elements.size() > otherElements.size();
    const auto [own, others] = std::mismatch(elements.rbegin(), elements.rend(), otherElements.rbegin());
    return own == elements.rend() || detail::LeadingInteger(own->View()) >= detail::LeadingInteger(others->View());
}

bool VValue::operator<=(const VValue& other) const {
    return m_quantity == other.m_quantity && (!(*this >= other) || *this == other);
}

void VValue::Swap(VValue& other) noexcept {
    std::swap(m_reversedElements, other.m_reversedElements);
    std::swap(m_text, other.m_text);
    std::swap(m_quantity, other.m_quantity);
    std::swap(m_isPhysical, other.m_isPhysical);
}

} // namespace ImportDame
