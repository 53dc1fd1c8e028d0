#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningSet.h>

namespace ImportDame {

/// The additional files of one function, in the order of their addresses. Owns them: a file lives until the collection
/// is cleared or dies; one that is removed becomes the caller's.
class IMPORTDAME_API VAdditionalFileCollection {
public:
    using iterator = VExternalIterator<detail::OwningSet<VAdditionalFile>::Position, VAdditionalFile&>;

    VAdditionalFileCollection();
    VAdditionalFileCollection(const VAdditionalFileCollection&) = delete;
    VAdditionalFileCollection& operator=(const VAdditionalFileCollection&) = delete;
    virtual ~VAdditionalFileCollection();

    VAdditionalFile& AddNewAdditionalFile();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the files one by one.
    void Clear();

    /// Takes the file out without deleting it: it is the caller's from now on. Requires: the collection holds it
    /// (error code 101048).
    void Remove(VAdditionalFile& file);

    /// Whether both hold the very same objects, which two collections only do when both are empty.
    bool operator==(const VAdditionalFileCollection& other) const;
    bool operator!=(const VAdditionalFileCollection& other) const;

private:
    detail::OwningSet<VAdditionalFile> m_collection;
};

} // namespace ImportDame
