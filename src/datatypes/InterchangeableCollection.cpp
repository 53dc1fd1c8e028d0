#include <ImportDame/InterchangeableCollection.h>

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/GapObject.h>

#include "core/CollectionQueries.h"
#include "core/Require.h"

namespace ImportDame {

VInterchangeableCollection::VInterchangeableCollection(VImportDoc& importDoc) : VImportDocChild(importDoc) {}

VInterchangeableCollection::~VInterchangeableCollection() = default;

VBitField& VInterchangeableCollection::AddNewBitField() {
    return m_collection.AppendNew<VBitField>(ImportDoc());
}

VDataObject& VInterchangeableCollection::AddNewDataObject() {
    return m_collection.AppendNew<VDataObject>(ImportDoc());
}

VGapObject& VInterchangeableCollection::AddNewGapObject() {
    return m_collection.AppendNew<VGapObject>(ImportDoc());
}

VInterchangeableCollection::iterator VInterchangeableCollection::Find(VInterchangeable& interchangeable) {
    return iterator(m_collection.Find(interchangeable));
}

VInterchangeableCollection::iterator VInterchangeableCollection::Find(VQualified& interchangeable) {
    return iterator(detail::FindSame(m_collection, interchangeable));
}

VInterchangeable* VInterchangeableCollection::GetLastElement() {
    return m_collection.Last();
}

unsigned int VInterchangeableCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

void VInterchangeableCollection::Clear() {
    m_collection.Clear();
}

void VInterchangeableCollection::Remove(VInterchangeable& interchangeable) {
    const auto position = m_collection.Find(interchangeable);
    detail::Require(position != m_collection.End(), detail::CheckSite::InterchangeableCollectionRemove);
    _Remove(position);
}

void VInterchangeableCollection::Remove(iterator position) {
    detail::Require(position != End(), detail::CheckSite::InterchangeableCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VInterchangeableCollection::SetIsImportedInterchangeables(bool isImported) {
    detail::SetImported(m_collection, isImported);
}

void VInterchangeableCollection::_Remove(detail::InterchangeableArray::Position position) {
    detail::Require(position != m_collection.End(), detail::CheckSite::InterchangeableCollectionRemovePosition);
    m_collection.TakeOut(position);
}

} // namespace ImportDame
