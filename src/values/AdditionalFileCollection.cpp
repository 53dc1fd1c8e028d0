#include <ImportDame/AdditionalFileCollection.h>

#include <ImportDame/AdditionalFile.h>

#include "core/Require.h"

namespace ImportDame {

VAdditionalFileCollection::VAdditionalFileCollection() = default;

VAdditionalFileCollection::~VAdditionalFileCollection() = default;

VAdditionalFile& VAdditionalFileCollection::AddNewAdditionalFile() {
    return m_collection.InsertNew();
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
