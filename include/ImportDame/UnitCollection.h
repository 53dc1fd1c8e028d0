#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningList.h>

namespace ImportDame {

/// The units of one document, in the order in which they were added. Owns them: a unit lives until the collection is
/// cleared or dies; one that is removed becomes the caller's.
class IMPORTDAME_API VUnitCollection {
public:
    using iterator = VExternalIterator<detail::ListPosition<VUnit>, VUnit&>;

    /// The document is borrowed and has to outlive every use of its units.
    explicit VUnitCollection(VImportDoc& importDoc);
    VUnitCollection(const VUnitCollection&) = delete;
    VUnitCollection& operator=(const VUnitCollection&) = delete;
    virtual ~VUnitCollection();

    /// Creates a unit of the collection's document at the end.
    VUnit& AddNewUnit();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of units whose imported flag is set.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the units one by one, the first one first.
    void Clear();

    /// Takes the first unit out that has the display name of the given one, which need not be that unit itself, without
    /// deleting it: it is the caller's from now on. Does nothing when there is none.
    void Remove(VUnit& unit);

private:
    VImportDoc& m_importDoc;
    detail::OwningList<VUnit> m_collection;
};

} // namespace ImportDame
