#include <ImportDame/Qualified.h>

namespace ImportDame {

namespace {

unsigned int g_lastUniquenessId = 0;

} // namespace

VQualified::VQualified(VImportDoc& importDoc)
    : VImportDocChild(importDoc), m_attributes(importDoc), m_uniquenessId(++g_lastUniquenessId) {}

VQualified::VQualified(const VQualified& other) : VQualified(other, other.ImportDoc()) {}

VQualified::VQualified(const VQualified& other, VImportDoc& importDoc)
    : VImportDocChild(importDoc), m_qualifier(other.m_qualifier), m_name(other.m_name),
      m_description(other.m_description), m_isImported(other.m_isImported), m_attributes(other.m_attributes, importDoc),
      m_objectIdentifier(other.m_objectIdentifier), m_uniquenessId(++g_lastUniquenessId) {}

VQualified::~VQualified() = default;

void VQualified::SetQualifier(const wchar_t* qualifier) {
    m_qualifier.Set(qualifier);
}

const wchar_t* VQualified::GetQualifier() const {
    return m_qualifier.Get();
}

void VQualified::SetName(const wchar_t* name) {
    m_name.SetText(name);
}

const wchar_t* VQualified::GetName() const {
    return m_name.GetText();
}

void VQualified::SetDescription(const wchar_t* description) {
    m_description.SetText(description);
}

const wchar_t* VQualified::GetDescription() const {
    return m_description.GetText();
}

void VQualified::IsImported(bool isImported) {
    m_isImported = isImported;
}

bool VQualified::IsImported() {
    return m_isImported;
}

bool VQualified::CompareContent(VQualified& other) {
    return m_name == other.m_name && m_qualifier == other.m_qualifier && m_description == other.m_description;
}

void VQualified::SetSourceInfo(const wchar_t* sourceInfo) {
    m_sourceInfo.Set(sourceInfo);
}

const wchar_t* VQualified::GetSourceInfo() const {
    return m_sourceInfo.Get();
}

VAttributeCollection& VQualified::Attributes() {
    return m_attributes;
}

bool VQualified::HasObjectIdentifier() const {
    return !m_objectIdentifier.IsEmpty();
}

void VQualified::SetObjectIdentifier(const wchar_t* objectIdentifier) {
    m_objectIdentifier.Set(objectIdentifier);
}

const wchar_t* VQualified::GetObjectIdentifier() const {
    return m_objectIdentifier.Get();
}

} // namespace ImportDame
