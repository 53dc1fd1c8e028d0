#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/NameCache.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

/// The shapes of one diagnostic service, in the order in which they were added. Owns them: a shape lives until it is
/// removed or the collection is cleared or dies. Adding or removing a shape invalidates the iterators.
class IMPORTDAME_API VDiagServiceShapeCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::OwningArray<VDiagServiceShape>::Position, VDiagServiceShape&>;

    explicit VDiagServiceShapeCollection(VImportDoc& importDoc);
    VDiagServiceShapeCollection(const VDiagServiceShapeCollection&) = delete;
    ~VDiagServiceShapeCollection() override;

    /// Creates a shape of the collection's document at the end.
    VDiagServiceShape& AddNewDiagServiceShape();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of shapes whose imported flag is set.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// The last shape, or null when there is none.
    VDiagServiceShape* GetLastElement() const;

    /// Deletes the shapes one by one, the first one first.
    void Clear();

    /// Takes the shape out and deletes it. Requires: the collection holds it (error code 101062).
    void Remove(VDiagServiceShape& shape);

    /// Takes the shape out and deletes it. Requires: not the end (error code 101063).
    void Remove(iterator position);

    /// Takes a snapshot of the qualifiers for `GetFromCache`; of equal ones the first shape's counts. It does not
    /// follow later changes: after shapes were removed or renamed, it has to be taken again before it is used.
    void InitCache();

    /// The shape that had exactly this qualifier at the last `InitCache`, or null. Logarithmic.
    VDiagServiceShape* GetFromCache(const wchar_t* qualifier) const;

protected:
    /// The very same object, or the end.
    iterator Find(VDiagServiceShape& shape);

    /// Takes the shape out and deletes it. Requires: not the end (error code 101064).
    void _Remove(detail::OwningArray<VDiagServiceShape>::Position position);

private:
    detail::OwningArray<VDiagServiceShape> m_collection;
    detail::NameCache<VDiagServiceShape> m_nameCache;
};

} // namespace ImportDame
