#include <ImportDame/EcuVariantCollection.h>

#include <ImportDame/EcuVariant.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

namespace ImportDame {

VEcuVariantCollection::VEcuVariantCollection(VImportDoc& importDoc) : VImportDocChild(importDoc) {}

VEcuVariantCollection::VEcuVariantCollection(const VEcuVariantCollection& other) : VImportDocChild(other) {
    detail::ForEach(other.m_collection, [&](const VEcuVariant& ecuVariant) { m_collection.AppendNew(ecuVariant); });
}

VEcuVariantCollection::~VEcuVariantCollection() = default;

VEcuVariant& VEcuVariantCollection::AddNewEcuVariant() {
    return m_collection.AppendNew(ImportDoc());
}

VEcuVariantCollection::iterator VEcuVariantCollection::Find(VEcuVariant& ecuVariant) {
    return iterator(m_collection.Find(ecuVariant));
}

VEcuVariantCollection::iterator VEcuVariantCollection::Find(const wchar_t* qualifier) {
    return iterator(detail::FindQualifier(m_collection, qualifier));
}

void VEcuVariantCollection::Clear() {
    m_collection.Clear();
}

void VEcuVariantCollection::Remove(VEcuVariant& ecuVariant) {
    const auto position = m_collection.Find(ecuVariant);
    detail::Require(position != m_collection.End(), detail::CheckSite::EcuVariantCollectionRemove);
    _Remove(position);
}

void VEcuVariantCollection::Remove(iterator position) {
    detail::Require(position != End(), detail::CheckSite::EcuVariantCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VEcuVariantCollection::_Remove(detail::ListPosition<VEcuVariant> position) {
    detail::Require(position != m_collection.End(), detail::CheckSite::EcuVariantCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
