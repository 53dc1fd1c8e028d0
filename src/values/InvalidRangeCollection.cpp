#include <ImportDame/InvalidRangeCollection.h>

#include <ImportDame/InvalidRange.h>

#include "core/Require.h"

namespace ImportDame {

VInvalidRangeCollection::VInvalidRangeCollection(VDataType& dataType) : m_dataType(dataType) {}

VInvalidRangeCollection::~VInvalidRangeCollection() = default;

VInvalidRange& VInvalidRangeCollection::AddNewInvalidRange() {
    return m_collection.InsertNew();
}

VInvalidRangeCollection::iterator VInvalidRangeCollection::Begin() {
    return iterator(m_collection.Begin());
}

VInvalidRangeCollection::iterator VInvalidRangeCollection::End() {
    return iterator(m_collection.End());
}

VInvalidRangeCollection::iterator VInvalidRangeCollection::begin() {
    return Begin();
}

VInvalidRangeCollection::iterator VInvalidRangeCollection::end() {
    return End();
}

unsigned long long VInvalidRangeCollection::Count() const {
    return m_collection.Count();
}

bool VInvalidRangeCollection::IsEmpty() const {
    return m_collection.IsEmpty();
}

VDataType& VInvalidRangeCollection::GetDataType() {
    return m_dataType;
}

void VInvalidRangeCollection::Clear() {
    m_collection.Clear();
}

void VInvalidRangeCollection::Remove(VInvalidRange& range) {
    const auto position = m_collection.Find(range);
    detail::Require(position != m_collection.End(), detail::CheckSite::InvalidRangeCollectionRemove);
    m_collection.TakeOut(position).release(); // the caller's from now on
}

} // namespace ImportDame
