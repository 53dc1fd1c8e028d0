#include <ImportDame/AttributeCollection.h>

#include <ImportDame/Attribute.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

namespace ImportDame {

VAttributeCollection::VAttributeCollection(VImportDoc& importDoc) : VImportDocChild(importDoc) {}

VAttributeCollection::VAttributeCollection(const VAttributeCollection& other)
    : VAttributeCollection(other, other.ImportDoc()) {}

VAttributeCollection::VAttributeCollection(const VAttributeCollection& other, VImportDoc& importDoc)
    : VImportDocChild(importDoc) {
    for (auto position = other.m_collection.Begin(); position != other.m_collection.End(); ++position)
        m_collection.AppendNew(**position, importDoc);
}

VAttributeCollection::~VAttributeCollection() = default;

VAttribute& VAttributeCollection::AddNewAttribute() {
    return m_collection.AppendNew(ImportDoc());
}

VAttributeCollection::iterator VAttributeCollection::Find(VQualified& attribute) {
    return iterator(detail::FindSame(m_collection, attribute));
}

VAttributeCollection::iterator VAttributeCollection::Find(const wchar_t* qualifier) {
    return iterator(detail::FindQualifier(m_collection, qualifier));
}

unsigned int VAttributeCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

void VAttributeCollection::Clear() {
    m_collection.Clear();
}

void VAttributeCollection::Remove(VAttribute& attribute) {
    const auto position = m_collection.Find(attribute);
    detail::Require(position != m_collection.End(), detail::CheckSite::AttributeCollectionRemove);
    _Remove(position);
}

void VAttributeCollection::Remove(iterator position) {
    detail::Require(position != End(), detail::CheckSite::AttributeCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VAttributeCollection::_Remove(detail::ListPosition<VAttribute> position) {
    detail::Require(position != m_collection.End(), detail::CheckSite::AttributeCollectionRemovePosition);
    m_collection.TakeOut(position);
}

void VAttributeCollection::SetIsImportedAttributes(bool isImported) {
    detail::SetImported(m_collection, isImported);
}

} // namespace ImportDame
