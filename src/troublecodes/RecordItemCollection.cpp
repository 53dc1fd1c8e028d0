#include <ImportDame/RecordItemCollection.h>

#include <ImportDame/RecordItem.h>

#include "core/Require.h"
#include "troublecodes/RecordGrowth.h"

#include <memory>

namespace ImportDame {

using detail::CheckSite;
using detail::Require;

VRecordItemCollection::VRecordItemCollection() = default;

VRecordItemCollection::VRecordItemCollection(const VRecordItemCollection& other) {
    *this = other;
}

VRecordItemCollection& VRecordItemCollection::operator=(const VRecordItemCollection& other) {
    detail::RecordGrowth growth(*this);
    const auto count = other.m_collection.Count(); // as it is now: the other one may be this one
    for (std::size_t index = 0; index < count; ++index) {
        std::unique_ptr<VRecordItem> clone(&other.m_collection[index].Clone());
        AppendRecordItem(*clone);
        clone.release(); // the collection's from now on
    }
    growth.Keep();
    return *this;
}

VRecordItemCollection::~VRecordItemCollection() = default;

VRecordItem& VRecordItemCollection::AddNewRecordItem() {
    return m_collection.AppendNew();
}

void VRecordItemCollection::AppendRecordItem(VRecordItem& item) {
    m_collection.Append(item);
}

VRecordItemCollection::iterator VRecordItemCollection::Find(VRecordItem& item) {
    return iterator(m_collection.Find(item));
}

VRecordItemCollection::iterator VRecordItemCollection::FindByIndex(unsigned int index) {
    return index < m_collection.Count() ? iterator(m_collection.Begin() + index) : End();
}

void VRecordItemCollection::Clear() {
    m_collection.Clear();
}

void VRecordItemCollection::Remove(VRecordItem& item) {
    const auto position = m_collection.Find(item);
    Require(position != m_collection.End(), CheckSite::RecordItemCollectionRemove);
    _Remove(position);
}

void VRecordItemCollection::Remove(iterator position) {
    Require(position != End(), CheckSite::RecordItemCollectionRemoveAt);
    _Remove(position.Unwrap());
}

void VRecordItemCollection::_Insert(detail::OwningArray<VRecordItem>::Position position, VRecordItem& item) {
    m_collection.Insert(position, item);
}

void VRecordItemCollection::_Remove(detail::OwningArray<VRecordItem>::Position position) {
    Require(position != m_collection.End(), CheckSite::RecordItemCollectionRemovePosition);
    m_collection.TakeOut(position);
}

VRecordItem* VRecordItemCollection::ItemAt(unsigned int index) const {
    return index < m_collection.Count() ? &m_collection[index] : nullptr;
}

} // namespace ImportDame
