#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/InvalidRangeCollection.h>
#include <ImportDame/Qualified.h>

namespace ImportDame {

/// What a value or a structured content is. The base of every data type.
///
/// Constructed against a data type collection, which does not hold it until it is appended; from then on the collection
/// owns it.
class IMPORTDAME_API VDataType : public VQualified {
public:
    /// Why the imported flag has its value. Any 32-bit number can be stored.
    enum VReasonForIsImported : int {
        noReason = 0,
        selectedForImport = 1,
        usedByDataType = 2,
        usedByDiagComm = 3,
        usedByTroubleCode = 4,
    };

    /// The kind of layer of the imported description that the type came from. Any 32-bit number can be stored.
    enum VSourceLayerInfo : int {
        unknownLayer = 0,
        protocolLayer = 1,
        functionalGroupLayer = 2,
        ecuSharedDataLayer = 3,
        baseVariantLayer = 4,
        ecuVariantLayer = 5,
    };

    VDataType(const VDataType&) = delete;
    ~VDataType() override;

    /// Calls the one visit operation of the data type's kind; descends into nothing.
    virtual void Accept(VDataTypeVisitor& visitor) = 0;

    /// The collection that the type was constructed against.
    VDataTypeCollection& DataTypeCollection() { return m_dataTypeCollection; }

    VInvalidRangeCollection& InvalidRangeCollection() { return m_invalidRangeCollection; }

    /// Whether the importer allows later modification; a new type may be modified.
    const bool& GetMayBeModified() const { return m_mayBeModified; }

    void SetMayBeModified(const bool& mayBeModified);

    /// The kind of layer that the type came from; unknown at first.
    const VSourceLayerInfo& GetSourceLayerInfo() const { return m_sourceLayerInfo; }

    void SetSourceLayerInfo(const VSourceLayerInfo& sourceLayerInfo);

    /// Stored beside the imported flag, whatever that is; `VDataTypeCollection::SetIsImportedDataTypes` sets both.
    VReasonForIsImported ReasonForIsImported() { return m_reasonForIsImported; }

    void ReasonForIsImported(VReasonForIsImported reason);

    /// Always false, as are the next three: a `VDataTypePropertiesVisitor` has the real answers.
    bool IsCodedAtom();
    bool IsCodedText();    ///< Always false.
    bool IsPhysicalAtom(); ///< Always false.
    bool IsPhysicalText(); ///< Always false.

protected:
    /// The type belongs to the collection's document. The collection is borrowed.
    explicit VDataType(VDataTypeCollection& dataTypeCollection);

private:
    VDataTypeCollection& m_dataTypeCollection;
    VInvalidRangeCollection m_invalidRangeCollection;
    VReasonForIsImported m_reasonForIsImported = noReason;
    bool m_mayBeModified = true;
    VSourceLayerInfo m_sourceLayerInfo = unknownLayer;
};

} // namespace ImportDame
