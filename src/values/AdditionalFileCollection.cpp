#include <ImportDame/AdditionalFileCollection.h>

#include <ImportDame/AdditionalFile.h>

#include "core/Require.h"

namespace ImportDame {

VAdditionalFileCollection::VAdditionalFileCollection() = default;

VAdditionalFileCollection::~VAdditionalFileCollection() = default;

VAdditionalFile& VAdditionalFileCollection::AddNewAdditionalFile() {
    return m_collection.InsertNew();
}

VAdditionalFileCollection::iterator VAdditionalFileCollection::Begin() {
    return iterator(m_collection.Begin());
}

VAdditionalFileCollection::iterator VAdditionalFileCollection::End() {
    return iterator(m_collection.End());
}

VAdditionalFileCollection::iterator VAdditionalFileCollection::begin() {
    return Begin();
}

VAdditionalFileCollection::iterator VAdditionalFileCollection::end() {
    return End();
}

unsigned long long VAdditionalFileCollection::Count() const {
    return m_collection.Count();
}

bool VAdditionalFileCollection::IsEmpty() const {
    return m_collection.IsEmpty();
}

void VAdditionalFileCollection::Clear() {
    m_collection.Clear();
}

void VAdditionalFileCollection::Remove(VAdditionalFile& file) {
    const auto position = m_collection.Find(file);
    detail::Require(position != m_collection.End(), detail::CheckSite::AdditionalFileCollectionRemove);
    m_collection.TakeOut(position).release(); // the caller's from now on
}

bool VAdditionalFileCollection::operator==(const VAdditionalFileCollection& other) const {
    return m_collection == other.m_collection;
}

bool VAdditionalFileCollection::operator!=(const VAdditionalFileCollection& other) const {
    return !(*this == other);
}

} // namespace ImportDame
