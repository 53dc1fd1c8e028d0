#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

/// The rows of one value table, in the order in which they were added. Owns them: a row lives until the collection is
/// cleared or dies; one that is removed becomes the caller's.
class IMPORTDAME_API VValueTableRowCollection {
public:
    using iterator = VExternalIterator<detail::OwningArray<VValueTableRow>::Position, VValueTableRow&>;

    VValueTableRowCollection();
    VValueTableRowCollection(const VValueTableRowCollection&) = delete;
    VValueTableRowCollection& operator=(const VValueTableRowCollection&) = delete;
    virtual ~VValueTableRowCollection();

    /// Creates a row at the end.
    VValueTableRow& AddNewValueTableRow();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the rows one by one, the first one first.
    void Clear();

    /// Takes the row out without deleting it: it is the caller's from now on. Does nothing when the collection does not
    /// hold it.
    void Remove(VValueTableRow& row);

    /// Whether both hold the very same objects, which two collections only do when both are empty.
    bool operator==(const VValueTableRowCollection& other) const;
    bool operator!=(const VValueTableRowCollection& other) const;

private:
    detail::OwningArray<VValueTableRow> m_collection;
};

} // namespace ImportDame
