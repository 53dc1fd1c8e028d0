#pragma once

#include <ImportDame/DataType.h>
#include <ImportDame/Export.h>
#include <ImportDame/ExternalIterator.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/detail/FetchingIterator.h>
#include <ImportDame/detail/OwningArray.h>

namespace ImportDame {

/// The data types of one document, in the order in which they were appended. Owns them: a data type lives until it is
/// removed or the collection is cleared or dies. Every append and removal invalidates iterators.
class IMPORTDAME_API VDataTypeCollection : public VImportDocChild {
public:
    using iterator = VExternalIterator<detail::OwningArray<VDataType>::Position, VDataType&>;

    /// What a range-based loop walks with, for loops that read whole data types; converts to `iterator`.
    using walk_iterator = detail::FetchingIterator<iterator, 320>;

    explicit VDataTypeCollection(VImportDoc& importDoc);
    VDataTypeCollection(const VDataTypeCollection&) = delete;
    ~VDataTypeCollection() override;

    /// Each creates a data type of its kind against this collection, at the end.
    VFormulaDataType& AddNewFormulaDataType();
    VIdentityDataType& AddNewIdentityDataType();
    VLinearDataType& AddNewLinearDataType();
    VMuxDataType& AddNewMuxDataType();
    VPacketDataType& AddNewPacketDataType();
    VPiecewiseLinearDataType& AddNewPiecewiseLinearDataType();
    VProcedureDataType& AddNewProcedureDataType();
    VTextTableDataType& AddNewTextTableDataType();
    VValueTableDataType& AddNewValueTableDataType();

    /// Takes over a data type at the end. It must be on the heap and in no collection.
    void AppendDataType(VDataType& dataType);

    /// The same for one kind.
    void AppendFormulaDataType(VFormulaDataType& dataType);
    void AppendIdentityDataType(VIdentityDataType& dataType);
    void AppendLinearDataType(VLinearDataType& dataType);
    void AppendPacketDataType(VPacketDataType& dataType);
    void AppendPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType);
    void AppendProcedureDataType(VProcedureDataType& dataType);
    void AppendTextTableDataType(VTextTableDataType& dataType);
    void AppendValueTableDataType(VValueTableDataType& dataType);

    iterator Begin() { return iterator(m_collection.Begin()); }

    iterator End() { return iterator(m_collection.End()); }

    walk_iterator begin() { return {Begin(), End()}; }

    walk_iterator end() { return End(); }

    /// The very same object, or the end.
    iterator Find(VDataType& dataType);

    /// The very same object, or the end.
    iterator Find(VQualified& dataType);

    unsigned long long Count() const { return m_collection.Count(); }

    /// The number of data types whose imported flag is set.
    unsigned int ImportedCount() const;

    bool IsEmpty() const { return m_collection.IsEmpty(); }

    /// Deletes the data types one by one, the first one first.
    void Clear();

    /// Takes the data type out and deletes it. Requires: the collection holds it (error code 101057).
    void Remove(VDataType& dataType);

    /// Takes the data type out and deletes it. Requires: not the end (error code 101058).
    void Remove(iterator position);

    /// Sets the imported flag of every data type, and the reason for it.
    void SetIsImportedDataTypes(bool isImported, VDataType::VReasonForIsImported reason);

protected:
    /// Takes over a data type before the position.
    void _Insert(detail::OwningArray<VDataType>::Position position, VDataType& dataType);

    /// Takes the data type out and deletes it. Requires: not the end (error code 101059).
    void _Remove(detail::OwningArray<VDataType>::Position position);

private:
    detail::OwningArray<VDataType> m_collection;
};

} // namespace ImportDame
