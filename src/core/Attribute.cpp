#include <ImportDame/Attribute.h>

namespace ImportDame {

VAttribute::VAttribute(VImportDoc& importDoc) : VQualified(importDoc) {}

VAttribute::VAttribute(const VAttribute& other) = default;

VAttribute::VAttribute(const VAttribute& other, VImportDoc& importDoc)
    : VQualified(other, importDoc), m_value(other.m_value) {}

VAttribute::~VAttribute() = default;

void VAttribute::SetValue(const wchar_t* value) {
    m_value.Set(value);
}

} // namespace ImportDame
