#include <ImportDame/TextTableRowCollection.h>

#include <ImportDame/TextTableRow.h>

namespace ImportDame {

VTextTableRowCollection::VTextTableRowCollection() = default;

VTextTableRowCollection::~VTextTableRowCollection() = default;

VTextTableRow& VTextTableRowCollection::AddNewTextTableRow() {
    return m_collection.AppendNew();
}

void VTextTableRowCollection::Clear() {
    m_collection.Clear();
}

void VTextTableRowCollection::Remove(VTextTableRow& row) {
    const auto position = m_collection.Find(row);
    if (position != m_collection.End())
        m_collection.TakeOut(position).release(); // the caller's from now on
}

bool VTextTableRowCollection::operator==(const VTextTableRowCollection& other) const {
    return m_collection == other.m_collection;
}

bool VTextTableRowCollection::operator!=(const VTextTableRowCollection& other) const {
    return !(*this == other);
}

} // namespace ImportDame
