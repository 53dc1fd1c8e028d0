#include <ImportDame/RecordTemplateMapping.h>

#include "core/Require.h"

#include <algorithm>
#include <utility>

namespace ImportDame {

const int VRecordTemplateMapping::sInvalidIndex = -1;

VRecordTemplateMapping::VRecordTemplateMapping() = default;

VRecordTemplateMapping::VRecordTemplateMapping(const VRecordTemplateMapping& other) = default;

VRecordTemplateMapping& VRecordTemplateMapping::operator=(const VRecordTemplateMapping& other) {
    // Emptied before the source is read, also when that is the same object.
    auto itemMappings = this == &other ? std::vector<VItemMapping>() : other.m_itemMappings;
    m_itemMappings = std::move(itemMappings);
    return *this;
}

VRecordTemplateMapping::~VRecordTemplateMapping() = default;

void VRecordTemplateMapping::Append(VItemMapping& itemMapping) {
    m_itemMappings.push_back(itemMapping);
}

void VRecordTemplateMapping::Clear() {
    m_itemMappings.clear();
}

unsigned long long VRecordTemplateMapping::GetNumberOfTemplateItem() const {
    return m_itemMappings.size();
}

const VItemMapping& VRecordTemplateMapping::GetItemMapping(unsigned int iNum) const {
    detail::Require(iNum < m_itemMappings.size(), detail::CheckSite::RecordTemplateMappingGetItemMapping);
    return m_itemMappings[iNum];
}

void VRecordTemplateMapping::OverwriteItemMapping(unsigned int iNum, VItemMapping& itemMapping) {
    detail::Require(iNum < m_itemMappings.size(), detail::CheckSite::RecordTemplateMappingOverwriteItemMapping);
    m_itemMappings[iNum] = itemMapping;
}

int VRecordTemplateMapping::GetMappedIndex(const wchar_t* name) const {
    const std::wstring_view wanted(name);
    const auto position = std::ranges::find(m_itemMappings, wanted, &VItemMapping::GetContent);
    return position == m_itemMappings.end() ? sInvalidIndex : static_cast<int>(position - m_itemMappings.begin());
}

bool VRecordTemplateMapping::HasTemplateItem(const wchar_t* name) const {
    return GetMappedIndex(name) != sInvalidIndex;
}

bool VRecordTemplateMapping::IsRecordTemplateMappingOK(std::set<std::wstring> allowedNames) const {
    return std::ranges::all_of(m_itemMappings, [&](const VItemMapping& itemMapping) {
        return allowedNames.contains(itemMapping.GetContent());
    });
}

} // namespace ImportDame
