#include <ImportDame/ImportDoc.h>

#include <functional>
#include <set>

namespace ImportDame {

namespace {

/// The living documents. Owns none of them.
std::set<const VImportDoc*, std::less<>> g_registry;

} // namespace

VImportDoc::VImportDoc() {
    g_registry.insert(this);
}

VImportDoc::~VImportDoc() {
    g_registry.erase(this);
}

bool VImportDoc::IsConstructed() const {
    return IsLiving(this);
}

bool VImportDoc::IsLiving(const VImportDoc* document) {
    return g_registry.contains(document);
}

const wchar_t* VImportDoc::GetLanguage() {
    return m_language.Get();
}

void VImportDoc::SetLanguage(const wchar_t* language) {
    m_language.Set(language);
}

const wchar_t* VImportDoc::GetEcuName() {
    return m_ecuName.Get();
}

void VImportDoc::SetEcuName(const wchar_t* ecuName) {
    m_ecuName.Set(ecuName);
}

const wchar_t* VImportDoc::GetKDIVersion() const {
    return m_kdiVersion.Get();
}

void VImportDoc::SetKDIVersion(const wchar_t* version) {
    m_kdiVersion.Set(version);
}

} // namespace ImportDame
