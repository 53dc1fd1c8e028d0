#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/OwningSet.h>

namespace ImportDame {

/// The linear segments of one data type, in the order of their addresses. Owns them: a conversion lives until the
/// collection is cleared or dies; one that is removed becomes the caller's.
class IMPORTDAME_API VLinearConversionCollection {
public:
    using iterator = VExternalIterator<detail::OwningSet<VLinearConversion>::Position, VLinearConversion&>;

    VLinearConversionCollection();
    VLinearConversionCollection(const VLinearConversionCollection&) = delete;
    VLinearConversionCollection& operator=(const VLinearConversionCollection&) = delete;
    virtual ~VLinearConversionCollection();

    VLinearConversion& AddNewLinearConversion();

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the conversions one by one.
    void Clear();

    /// Takes the conversion out without deleting it: it is the caller's from now on. Requires: the collection holds it
    /// (error code 102001).
    void Remove(VLinearConversion& conversion);

    /// Whether both hold the very same objects, which two collections only do when both are empty.
    bool operator==(const VLinearConversionCollection& other) const;
    bool operator!=(const VLinearConversionCollection& other) const;

private:
    detail::OwningSet<VLinearConversion> m_collection;
};

} // namespace ImportDame
