#include <ImportDame/DataObject.h>

#include <ImportDame/InterchangeableVisitor.h>

#include "core/Require.h"

namespace ImportDame {

VDataObject::VDataObject(VImportDoc& importDoc) : VBaseDataObject(importDoc) {}

VDataObject::~VDataObject() = default;

void VDataObject::Accept(VInterchangeableVisitor& visitor) {
    visitor.VisitDataObject(*this);
}

VValue VDataObject::GetDefaultValue() {
    detail::Require(m_hasDefaultValue, detail::CheckSite::DataObjectGetDefaultValue);
    return m_defaultValue;
}

void VDataObject::SetDefaultValue(const VValue& value) {
    m_defaultValue = value;
    m_hasDefaultValue = true;
}

void VDataObject::SetDefaultValue(VValue&& value) noexcept {
    m_defaultValue.Swap(value);
    m_hasDefaultValue = true;
}

VValue VDataObject::GetConstValue() {
    detail::Require(m_hasConstValue, detail::CheckSite::DataObjectGetConstValue);
    return m_constValue;
}

void VDataObject::SetConstValue(const VValue& value) {
    m_constValue = value;
    m_hasConstValue = true;
}

void VDataObject::SetConstValue(VValue&& value) noexcept {
    m_constValue.Swap(value);
    m_hasConstValue = true;
}

VDataObject& VDataObject::GetSelectorDataObject() {
    detail::Require(HasSelectorDataObject(), detail::CheckSite::DataObjectGetSelectorDataObject);
    return *m_selectorDataObject;
}

void VDataObject::SetSelectorDataObject(VDataObject& dataObject) {
    m_selectorDataObject = &dataObject;
}

} // namespace ImportDame
