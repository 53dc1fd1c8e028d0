#include <ImportDame/UnitCollection.h>

#include <ImportDame/Unit.h>

#include "core/CollectionQueries.h"

#include <cwchar>

namespace ImportDame {

VUnitCollection::VUnitCollection(VImportDoc& importDoc) : m_importDoc(importDoc) {}

VUnitCollection::~VUnitCollection() = default;

VUnit& VUnitCollection::AddNewUnit() {
    return m_collection.AppendNew(m_importDoc);
}

VUnitCollection::iterator VUnitCollection::Begin() {
    return iterator(m_collection.Begin());
}

VUnitCollection::iterator VUnitCollection::End() {
    return iterator(m_collection.End());
}

VUnitCollection::iterator VUnitCollection::begin() {
    return Begin();
}

VUnitCollection::iterator VUnitCollection::end() {
    return End();
}

unsigned long long VUnitCollection::Count() const {
    return m_collection.Count();
}

unsigned int VUnitCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
}

bool VUnitCollection::IsEmpty() const {
    return m_collection.IsEmpty();
}

void VUnitCollection::Clear() {
    m_collection.Clear();
}

void VUnitCollection::Remove(VUnit& unit) {
    const auto position = m_collection.FindIf(
        [&](const VUnit& candidate) { return std::wcscmp(candidate.GetDisplayName(), unit.GetDisplayName()) == 0; });
    if (position != m_collection.End())
        m_collection.TakeOut(position).release(); // the caller's from now on
}

} // namespace ImportDame
