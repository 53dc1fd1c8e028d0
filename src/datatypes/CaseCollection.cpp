#include <ImportDame/CaseCollection.h>

#include <ImportDame/Case.h>

namespace ImportDame {

VCaseCollection::VCaseCollection(VImportDoc& importDoc) : m_importDoc(importDoc) {}

VCaseCollection::~VCaseCollection() = default;

VCase& VCaseCollection::AddNewCase() {
    return m_collection.AppendNew(m_importDoc);
}

void VCaseCollection::Clear() {
    m_collection.Clear();
}

void VCaseCollection::Remove(VCase& muxCase) {
    const auto position = m_collection.Find(muxCase);
    if (position != m_collection.End())
        static_cast<void>(m_collection.TakeOut(position).release());
}

} // namespace ImportDame
