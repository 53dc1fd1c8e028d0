#include <ImportDame/ImportDoc.h>

#include <ImportDame/BaseVariant.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/ImportDocTraverser.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>
#include <ImportDame/UnitCollection.h>

#include <functional>
#include <set>

namespace ImportDame {

namespace {

/// The living documents. Owns none of them.
std::set<const VImportDoc*, std::less<>> g_registry;

/// Deletes an object that can still be reached through its owner while it dies.
template <class T>
void DeleteInPlace(std::unique_ptr<T>& owner) noexcept {
    delete owner.get();
    owner.release();
}

} // namespace

VImportDoc::VImportDoc()
    : m_dataTypeCollection(std::make_unique<VDataTypeCollection>(*this)),
      m_troubleCodeCollectionCollection(std::make_unique<VTroubleCodeCollectionCollection>(*this)),
      m_interchangeableCollection(std::make_unique<VInterchangeableCollection>(*this)),
      m_baseVariant(std::make_unique<VBaseVariant>(*this)), m_unitCollection(std::make_unique<VUnitCollection>(*this)) {
    g_registry.insert(this);
}

VImportDoc::~VImportDoc() {
    g_registry.erase(this);
    DeleteInPlace(m_dataTypeCollection);
    DeleteInPlace(m_troubleCodeCollectionCollection);
    DeleteInPlace(m_interchangeableCollection);
    DeleteInPlace(m_baseVariant);
    DeleteInPlace(m_unitCollection);
}

bool VImportDoc::IsConstructed() const {
    return IsLiving(this);
}

bool VImportDoc::IsLiving(const VImportDoc* document) {
    return g_registry.contains(document);
}

void VImportDoc::SetLanguage(const wchar_t* language) {
    m_language.Set(language);
}

void VImportDoc::SetEcuName(const wchar_t* ecuName) {
    m_ecuName.Set(ecuName);
}

void VImportDoc::SetKDIVersion(const wchar_t* version) {
    m_kdiVersion.Set(version);
}

VDataTypeCollection& VImportDoc::DataTypeCollection() {
    return *m_dataTypeCollection;
}

VTroubleCodeCollectionCollection& VImportDoc::TroubleCodeCollectionCollection() {
    return *m_troubleCodeCollectionCollection;
}

VInterchangeableCollection& VImportDoc::InterchangeableCollection() {
    return *m_interchangeableCollection;
}

VBaseVariant& VImportDoc::GetBaseVariant() {
    return *m_baseVariant;
}

VUnitCollection& VImportDoc::UnitCollection() {
    return *m_unitCollection;
}

void VImportDoc::Accept(VImportDocTraverser& traverser) {
    traverser.VisitImportDoc(*this);
}

} // namespace ImportDame
