#include <ImportDame/ValueTableRowCollection.h>

#include <ImportDame/ValueTableRow.h>

namespace ImportDame {

VValueTableRowCollection::VValueTableRowCollection() = default;

VValueTableRowCollection::~VValueTableRowCollection() = default;

VValueTableRow& VValueTableRowCollection::AddNewValueTableRow() {
    return m_collection.AppendNew();
}

void VValueTableRowCollection::Clear() {
    m_collection.Clear();
}

void VValueTableRowCollection::Remove(VValueTableRow& row) {
    const auto position = m_collection.Find(row);
    if (position != m_collection.End())
        m_collection.TakeOut(position).release(); // the caller's from now on
}

bool VValueTableRowCollection::operator==(const VValueTableRowCollection& other) const {
    return m_collection == other.m_collection;
}

bool VValueTableRowCollection::operator!=(const VValueTableRowCollection& other) const {
    return !(*this == other);
}

} // namespace ImportDame
