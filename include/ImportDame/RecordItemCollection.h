#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

/// The record of one trouble code: its items in order, the position of an item being its number. Owns them: an item
/// lives until it is removed or the collection is cleared or dies.
class IMPORTDAME_API VRecordItemCollection {
public:
    using iterator = VExternalIterator<detail::OwningArray<VRecordItem>::Position, VRecordItem&>;

    VRecordItemCollection();

    /// Clones every item, in order.
    VRecordItemCollection(const VRecordItemCollection& other);

    /// Appends clones of the other's items behind the items that are already here. Assigning a collection to itself
    /// doubles it.
    VRecordItemCollection& operator=(const VRecordItemCollection& other);
    virtual ~VRecordItemCollection();

    /// Creates an empty item at the end.
    VRecordItem& AddNewRecordItem();

    /// Takes over an item at the end. Requires: it was created on the heap and no collection holds it.
    void AppendRecordItem(VRecordItem& item);

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VRecordItem& item);

    /// The place of the item with this number, or the end.
    iterator FindByIndex(unsigned int index);

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the items one by one, the first one first.
    void Clear();

    /// Takes the item out and deletes it. Requires: the collection holds it (error code 102011).
    void Remove(VRecordItem& item);

    /// Takes the item out and deletes it. Requires: not the end (error code 102012).
    void Remove(iterator position);

protected:
    /// Takes over an item before the position.
    void _Insert(detail::OwningArray<VRecordItem>::Position position, VRecordItem& item);

    /// Takes the item out and deletes it. Requires: not the end (error code 102013).
    void _Remove(detail::OwningArray<VRecordItem>::Position position);

private:
    friend class VTroubleCode;

    /// The item with this number, or null.
    VRecordItem* ItemAt(unsigned int index) const;

    detail::OwningArray<VRecordItem> m_collection;
};

} // namespace ImportDame
