#include <ImportDame/DiagServiceShapeCollection.h>

#include <ImportDame/DiagServiceShape.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

namespace ImportDame {

VDiagServiceShapeCollection::VDiagServiceShapeCollection(VImportDoc& importDoc) : VImportDocChild(importDoc) {}

VDiagServiceShapeCollection::~VDiagServiceShapeCollection() = default;

VDiagServiceShape& VDiagServiceShapeCollection::AddNewDiagServiceShape() {
    return m_collection.AppendNew(ImportDoc());
}

unsigned int VDiagServiceShapeCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

VDiagServiceShape* VDiagServiceShapeCollection::GetLastElement() const {
    return m_collection.Last();
}

void VDiagServiceShapeCollection::Clear() {
    m_collection.Clear();
}

void VDiagServiceShapeCollection::Remove(VDiagServiceShape& shape) {
    iterator position = Find(shape);
    detail::Require(position != End(), detail::CheckSite::DiagServiceShapeCollectionRemove);
    _Remove(position.Unwrap());
}

void VDiagServiceShapeCollection::Remove(iterator position) {
    detail::Require(position != End(), detail::CheckSite::DiagServiceShapeCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VDiagServiceShapeCollection::InitCache() {
    detail::NameCache<VDiagServiceShape> nameCache;
    detail::ForEach(m_collection, [&](VDiagServiceShape& shape) { nameCache.Insert(shape.GetQualifier(), shape); });
    m_nameCache.Swap(nameCache);
}

VDiagServiceShape* VDiagServiceShapeCollection::GetFromCache(const wchar_t* qualifier) const {
    return m_nameCache.Find(qualifier);
}

VDiagServiceShapeCollection::iterator VDiagServiceShapeCollection::Find(VDiagServiceShape& shape) {
    return iterator(m_collection.Find(shape));
}

void VDiagServiceShapeCollection::_Remove(detail::OwningArray<VDiagServiceShape>::Position position) {
    detail::Require(position != m_collection.End(), detail::CheckSite::DiagServiceShapeCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
