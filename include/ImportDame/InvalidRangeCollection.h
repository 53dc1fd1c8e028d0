#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningSet.h>

namespace ImportDame {

/// The invalid ranges of one data type, in the order of their addresses. Owns them: a range lives until the collection
/// is cleared or dies; one that is removed becomes the caller's.
class IMPORTDAME_API VInvalidRangeCollection {
public:
    using iterator = VExternalIterator<detail::OwningSet<VInvalidRange>::Position, VInvalidRange&>;

    /// The data type is borrowed and has to outlive every use of `GetDataType`.
    explicit VInvalidRangeCollection(VDataType& dataType);
    VInvalidRangeCollection(const VInvalidRangeCollection&) = delete;
    VInvalidRangeCollection& operator=(const VInvalidRangeCollection&) = delete;
    virtual ~VInvalidRangeCollection();

    VInvalidRange& AddNewInvalidRange();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// The data type to which the ranges belong.
    VDataType& GetDataType() { return m_dataType; }

    /// Deletes the ranges one by one.
    void Clear();

    /// Takes the range out without deleting it: it is the caller's from now on. Requires: the collection holds it
    /// (error code 102000).
    void Remove(VInvalidRange& range);

private:
    detail::OwningSet<VInvalidRange> m_collection;
    VDataType& m_dataType;
};

} // namespace ImportDame
