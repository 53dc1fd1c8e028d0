#include <ImportDame/DataObject.h>

#include <ImportDame/InterchangeableVisitor.h>

#include "core/Require.h"

namespace ImportDame {

VDataObject::VDataObject(VImportDoc& importDoc) : VBaseDataObject(importDoc) {}

VDataObject::~VDataObject() = default;

void VDataObject::Accept(VInterchangeableVisitor& visitor) {
    visitor.VisitDataObject(*this);
}

bool VDataObject::HasDefaultValue() {
    return m_hasDefaultValue;
}

VValue VDataObject::GetDefaultValue() {
    detail::Require(m_hasDefaultValue, detail::CheckSite::DataObjectGetDefaultValue);
    return m_defaultValue;
}

void VDataObject::SetDefaultValue(const VValue& value) {
    m_defaultValue = value;
    m_hasDefaultValue = true;
}

bool VDataObject::HasConstValue() {
    return m_hasConstValue;
}

VValue VDataObject::GetConstValue() {
    detail::Require(m_hasConstValue, detail::CheckSite::DataObjectGetConstValue);
    return m_constValue;
}

void VDataObject::SetConstValue(const VValue& value) {
    m_constValue = value;
    m_hasConstValue = true;
}

bool VDataObject::HasSelectorDataObject() const {
    return m_selectorDataObject != nullptr;
}

VDataObject& VDataObject::GetSelectorDataObject() {
    detail::Require(HasSelectorDataObject(), detail::CheckSite::DataObjectGetSelectorDataObject);
    return *m_selectorDataObject;
}

void VDataObject::SetSelectorDataObject(VDataObject& dataObject) {
    m_selectorDataObject = &dataObject;
}

} // namespace ImportDame
