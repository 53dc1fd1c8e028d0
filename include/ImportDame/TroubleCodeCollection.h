#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/Mappable.h>
#include <ImportDame/RecordTemplateMapping.h>
#include <ImportDame/detail/FetchingIterator.h>
#include <ImportDame/detail/OwningArray.h>
#include <ImportDame/detail/Text.h>

#include <memory>

namespace ImportDame {

/// The trouble codes of one source, in order, with the layout of their records. Owns them: a code lives until it is
/// removed or the collection is cleared or dies.
///
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the
/// collection dies.
class IMPORTDAME_API VTroubleCodeCollection : public VMappable, public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::OwningArray<VTroubleCode>::Position, VTroubleCode&>;

    /// What a range-based loop walks with, for loops that read whole trouble codes; converts to `iterator`.
    using walk_iterator = detail::FetchingIterator<iterator, 128>;

    /// The formats of trouble codes, numbered as in ISO 14229-1. The library stores the number only.
    enum VFormatIdentifier : unsigned int {
        saeJ2012DaFormat00 = 0,
        iso14229Format = 1,
        saeJ1939Format = 2,
        iso11992Format = 3,
        saeJ2012DaFormat04 = 4,
    };

    explicit VTroubleCodeCollection(VImportDoc& importDoc);
    VTroubleCodeCollection(const VTroubleCodeCollection&) = delete;

    /// Copies service mapping, source name, object identifier, trouble codes and record template for a document. The
    /// copy has no maximum bit length and no format identifier.
    VTroubleCodeCollection(const VTroubleCodeCollection& other, VImportDoc& importDoc);
    VTroubleCodeCollection& operator=(const VTroubleCodeCollection&) = delete;
    ~VTroubleCodeCollection() override;

    /// Creates a code of the collection's document at the end.
    VTroubleCode& AppendNew();

    /// Appends a copy, which belongs to the collection's document.
    VTroubleCode& AppendCopy(const VTroubleCode& troubleCode);

    /// Takes over a code at the end. Requires: it was created on the heap for the collection's document and no
    /// collection holds it.
    void Append(VTroubleCode& troubleCode);

    /// Creates a code of the collection's document before the position.
    VTroubleCode& InsertNew(iterator position);

    /// Inserts a copy, which belongs to the collection's document, before the position.
    VTroubleCode& InsertCopy(iterator position, const VTroubleCode& troubleCode);

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    walk_iterator begin() { return {Begin(), End()}; }

    walk_iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VTroubleCode& troubleCode);

    /// The first trouble code with this code, or the end.
    iterator Find(unsigned int code);

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of codes whose imported flag is set.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the codes one by one, the first one first; everything else stays.
    void Clear();

    /// Takes the code out and deletes it. Requires: the collection holds it (error code 102026).
    void Remove(VTroubleCode& troubleCode);

    /// Takes the code out and deletes it. Requires: not the end (error code 102027).
    void Remove(iterator position);

    /// Sets the imported flag of every code.
    void SetIsImportedTroubleCodes(bool isImported);

    /// Fills the record of every code up with empty items to the length of the record template. Longer records stay as
    /// they are; with an empty template all do.
    void CompleteRecords();

    /// By which the collection is found.
    const wchar_t* GetSourceName() const { return m_sourceName.Get(); }

    void SetSourceName(const wchar_t* sourceName);

    /// By which other systems know the collection; may be empty.
    const wchar_t* GetObjectIdentifier() const { return m_objectIdentifier.Get(); }

    void SetObjectIdentifier(const wchar_t* objectIdentifier);

    /// Whether the object identifier is not empty.
    bool HasObjectIdentifier() const { return !m_objectIdentifier.IsEmpty(); }

    /// The size of the codes in bits; 0 while it is not set.
    unsigned int GetMaxBitLength() const { return m_maxBitLength; }

    void SetMaxBitLength(unsigned int maxBitLength);

    bool HasMaxBitLength() const { return m_hasMaxBitLength; }

    /// The zero member while it is not set.
    VFormatIdentifier GetFormatIdentifier() const { return m_formatIdentifier; }

    void SetFormatIdentifier(VFormatIdentifier formatIdentifier);

    bool HasFormatIdentifier() const { return m_hasFormatIdentifier; }

    /// Lives as long as the collection.
    VRecordTemplateMapping& RecordTemplateMapping();

protected:
    /// Takes over a code before the position.
    void _Insert(detail::OwningArray<VTroubleCode>::Position position, VTroubleCode& troubleCode);

    /// Takes the code out and deletes it. Requires: not the end (error code 102028).
    void _Remove(detail::OwningArray<VTroubleCode>::Position position);

private:
    detail::OwningArray<VTroubleCode> m_collection;
    std::unique_ptr<VRecordTemplateMapping> m_recordTemplateMapping; ///< Never null.
    detail::Text m_sourceName;
    unsigned int m_maxBitLength = 0;
    bool m_hasMaxBitLength = false;
    VFormatIdentifier m_formatIdentifier = saeJ2012DaFormat00;
    bool m_hasFormatIdentifier = false;
    detail::Text m_objectIdentifier;
};

} // namespace ImportDame
