#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

/// All trouble codes of a document, as one collection for each source, in order. Owns them: a collection lives until it
/// is removed or this is cleared or dies.
class IMPORTDAME_API VTroubleCodeCollectionCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::OwningArray<VTroubleCodeCollection>::Position, VTroubleCodeCollection&>;

    explicit VTroubleCodeCollectionCollection(VImportDoc& importDoc);
    VTroubleCodeCollectionCollection(const VTroubleCodeCollectionCollection&) = delete;

    /// Copies every collection, in order, for a document.
    VTroubleCodeCollectionCollection(const VTroubleCodeCollectionCollection& other, VImportDoc& importDoc);
    VTroubleCodeCollectionCollection& operator=(const VTroubleCodeCollectionCollection&) = delete;
    ~VTroubleCodeCollectionCollection() override;

    /// Creates a collection of the same document at the end.
    VTroubleCodeCollection& AppendNew();

    /// Appends a copy, which belongs to this object's document.
    VTroubleCodeCollection& AppendCopy(const VTroubleCodeCollection& collection);

    /// Takes over a collection at the end. Requires: it was created on the heap for the same document and nobody else
    /// holds it.
    void Append(VTroubleCodeCollection& collection);

    /// Creates a collection of the same document before the position.
    VTroubleCodeCollection& InsertNew(iterator position);

    /// Inserts a copy, which belongs to this object's document, before the position.
    VTroubleCodeCollection& InsertCopy(iterator position, const VTroubleCodeCollection& collection);

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    iterator begin() { return Begin(); }

    iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VTroubleCodeCollection& collection);

    /// The first collection with exactly this source name, or the end.
    iterator Find(const wchar_t* sourceName);

    /// The first collection that has an imported code, or the end.
    iterator FirstImported();

    /// The first collection behind the given one that has an imported code, or the end; the end, too, when the given
    /// one is not held.
    iterator NextImported(VTroubleCodeCollection& collection);

    /// Requires: i < Count() (error code 102032).
    VTroubleCodeCollection& operator[](unsigned int i) const;

    /// The position of that very object. Requires: it is held (error code 102033).
    unsigned int GetIndex(VTroubleCodeCollection& collection) const;

    unsigned long long Count() const { return m_collection.Count(); }

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// The number of collections that have an imported code.
    unsigned int ImportedCount() const;

    /// The number of imported codes in all collections.
    unsigned int ImportedTroubleCodesCount() const;

    /// The number of codes in all collections.
    unsigned long long TroubleCodesCount() const;

    /// Deletes the collections one by one, the first one first.
    void Clear();

    /// Takes the collection out and deletes it. Requires: it is held (error code 102029).
    void Remove(VTroubleCodeCollection& collection);

    /// Takes the collection out and deletes it. Requires: not the end (error code 102030).
    void Remove(iterator position);

    /// Sets the imported flag of every code in every collection.
    void SetIsImportedTroubleCodes(bool isImported);

protected:
    /// Takes over a collection before the position.
    void _Insert(detail::OwningArray<VTroubleCodeCollection>::Position position, VTroubleCodeCollection& collection);

    /// Takes the collection out and deletes it. Requires: not the end (error code 102031).
    void _Remove(detail::OwningArray<VTroubleCodeCollection>::Position position);

private:
    detail::OwningArray<VTroubleCodeCollection> m_collection;
};

} // namespace ImportDame
