#include <ImportDame/ItemMapping.h>

namespace ImportDame {

VItemMapping::VItemMapping() = default;

VItemMapping::VItemMapping(const bool& isAutomaticallyForced) : m_isAutomaticallyForced(isAutomaticallyForced) {}

VItemMapping::VItemMapping(const VItemMapping& other) = default;

VItemMapping& VItemMapping::operator=(const VItemMapping& other) {
    m_content = other.m_content; // first, because only this can fail
    m_type = other.m_type;
    m_index = other.m_index;
    m_isAutomaticallyForced = other.m_isAutomaticallyForced;
    return *this;
}

VItemMapping::~VItemMapping() = default;

void VItemMapping::SetContent(const wchar_t* content) {
    m_content.Set(content);
}

void VItemMapping::SetIndex(unsigned int index) {
    m_index = index;
}

void VItemMapping::SetItemMappingType(const VItemMappingType& type) {
    m_type = type;
}

} // namespace ImportDame
