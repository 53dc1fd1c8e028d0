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

unsigned int VUnitCollection::ImportedCount() const {
    return detail::CountImported(m_collection);
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
