#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/FetchingIterator.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

namespace detail {

/// Deletes an interchangeable, and what is nested in it first, in order. Neither recurses nor allocates, however deep
/// the bit fields are nested.
struct DeleteInterchangeable {
    void operator()(VInterchangeable* interchangeable) const noexcept;
};

using InterchangeableArray = OwningArray<VInterchangeable, DeleteInterchangeable>;

} // namespace detail

/// The members of a packet-like structure, in the order in which they were added. Owns them: a member lives until it is
/// removed or the collection is cleared or dies. Every addition and removal invalidates iterators.
class IMPORTDAME_API VInterchangeableCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::InterchangeableArray::Position, VInterchangeable&>;

    /// What a range-based loop walks with, for the kinds and qualifiers of members; converts to `iterator`.
    using walk_iterator = detail::FetchingIterator<iterator, 64>;

    explicit VInterchangeableCollection(VImportDoc& importDoc);
    VInterchangeableCollection(const VInterchangeableCollection&) = delete;
    ~VInterchangeableCollection() override;

    /// Each creates a member of its kind, of the collection's document, at the end.
    VBitField& AddNewBitField();
    VDataObject& AddNewDataObject();
    VGapObject& AddNewGapObject();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    walk_iterator begin() { return {Begin(), End()}; }

    walk_iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VInterchangeable& interchangeable);

    /// The very same object, or the end.
    iterator Find(VQualified& interchangeable);

    /// Null when the collection is empty.
    VInterchangeable* GetLastElement();

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of members whose imported flag is set; members of bit fields do not count.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the members one by one, the first one first.
    void Clear();

    /// Takes the member out and deletes it. Requires: the collection holds it (error code 101073).
    void Remove(VInterchangeable& interchangeable);

    /// Takes the member out and deletes it. Requires: not the end (error code 101075).
    void Remove(iterator position);

    /// Sets the imported flag of every member; members of bit fields keep theirs.
    void SetIsImportedInterchangeables(bool isImported);

protected:
    /// Takes the member out and deletes it. Requires: not the end (error code 101076).
    void _Remove(detail::InterchangeableArray::Position position);

private:
    friend struct detail::DeleteInterchangeable;

    detail::InterchangeableArray m_collection;
};

} // namespace ImportDame
