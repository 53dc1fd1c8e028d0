#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningList.h>

namespace ImportDame {

/// The cases of a multiplexer, in the order in which they were added. Owns them: a case lives until the collection is
/// cleared or dies, or passes to the caller by `Remove`.
class IMPORTDAME_API VCaseCollection {
public:
    using iterator = VExternalIterator<detail::ListPosition<VCase>, VCase&>;

    /// The document is borrowed and has to outlive every use of `AddNewCase`.
    explicit VCaseCollection(VImportDoc& importDoc);
    VCaseCollection(const VCaseCollection&) = delete;
    VCaseCollection& operator=(const VCaseCollection&) = delete;
    virtual ~VCaseCollection();

    /// Creates a case of the document at the end.
    VCase& AddNewCase();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the cases one by one, the first one first.
    void Clear();

    /// Takes the case out without deleting it: it is the caller's from now on. A case that the collection does not hold
    /// is ignored.
    void Remove(VCase& muxCase);

private:
    VImportDoc& m_importDoc;
    detail::OwningList<VCase> m_collection;
};

} // namespace ImportDame
