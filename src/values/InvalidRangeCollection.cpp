#include <ImportDame/InvalidRangeCollection.h>

#include <ImportDame/InvalidRange.h>

#include "core/Require.h"

namespace ImportDame {

VInvalidRangeCollection::VInvalidRangeCollection(VDataType& dataType) : m_dataType(dataType) {}

VInvalidRangeCollection::~VInvalidRangeCollection() = default;

VInvalidRange& VInvalidRangeCollection::AddNewInvalidRange() {
    return m_collection.InsertNew();
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
