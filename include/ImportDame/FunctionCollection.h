#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningSet.h>

namespace ImportDame {

/// The external procedures of one data type, in the order of their addresses. Owns them: a function lives until the
/// collection is cleared or dies; one that is removed becomes the caller's.
class IMPORTDAME_API VFunctionCollection {
public:
    using iterator = VExternalIterator<detail::OwningSet<VFunction>::Position, VFunction&>;

    VFunctionCollection();
    VFunctionCollection(const VFunctionCollection&) = delete;
    VFunctionCollection& operator=(const VFunctionCollection&) = delete;
    virtual ~VFunctionCollection();

    VFunction& AddNewFunction();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the functions one by one.
    void Clear();

    /// Takes the function out without deleting it: it is the caller's from now on. Requires: the collection holds it
    /// (error code 101072).
    void Remove(VFunction& function);

    /// Whether both hold the very same objects, which two collections only do when both are empty.
    bool operator==(const VFunctionCollection& other) const;
    bool operator!=(const VFunctionCollection& other) const;

private:
    detail::OwningSet<VFunction> m_collection;
};

} // namespace ImportDame
