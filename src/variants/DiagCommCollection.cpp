#include <ImportDame/DiagCommCollection.h>

#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

namespace ImportDame {

VDiagCommCollection::VDiagCommCollection(VImportDoc& importDoc) : VImportDocChild(importDoc) {}

VDiagCommCollection::~VDiagCommCollection() = default;

VDiagService& VDiagCommCollection::AddNewDiagService() {
    return m_collection.AppendNew<VDiagService>(ImportDoc());
}

VDiagService& VDiagCommCollection::AddNewDiagService(const unsigned int& serviceId) {
    return m_collection.AppendNew<VDiagService>(ImportDoc(), serviceId);
}

VDiagJob& VDiagCommCollection::AddNewDiagJob() {
    return m_collection.AppendNew<VDiagJob>(ImportDoc());
}

unsigned int VDiagCommCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

VDiagComm* VDiagCommCollection::GetLastElement() const {
    return m_collection.Last();
}

void VDiagCommCollection::Clear() {
    m_collection.Clear();
}

void VDiagCommCollection::Remove(VDiagComm& diagComm) {
    iterator position = Find(diagComm);
    detail::Require(position != End(), detail::CheckSite::DiagCommCollectionRemove);
    _Remove(position.Unwrap());
}

void VDiagCommCollection::Remove(iterator position) {
    detail::Require(position != End(), detail::CheckSite::DiagCommCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VDiagCommCollection::InitCache() {
    detail::NameCache<VDiagComm> nameCache;
    detail::ForEach(m_collection, [&](VDiagComm& diagComm) {
        nameCache.Insert(diagComm.GetQualifier(), diagComm);
        diagComm.InitCache();
    });
    m_nameCache.Swap(nameCache);
}

VDiagComm* VDiagCommCollection::GetFromCache(const wchar_t* qualifier) const {
    return m_nameCache.Find(qualifier);
}

VDiagCommCollection::iterator VDiagCommCollection::Find(VDiagComm& diagComm) {
    return iterator(m_collection.Find(diagComm));
}

void VDiagCommCollection::_Remove(detail::OwningArray<VDiagComm>::Position position) {
    detail::Require(position != m_collection.End(), detail::CheckSite::DiagCommCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
