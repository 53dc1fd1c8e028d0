#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/detail/Memory.h>
#include <ImportDame/detail/Text.h>

#include <cstddef>
#include <memory>

namespace ImportDame {

/// The root of one import.
///
/// Created by an importer, filled, handed to a back end, deleted. Owns its contents, which live as long as it does.
/// Texts passed in are copied and must not be null; texts handed out are valid until that text changes or the document
/// dies. Documents are created and destroyed on one thread at a time; a document and everything in it is used from one
/// thread at a time.
class IMPORTDAME_API VImportDoc {
public:
    VImportDoc();
    VImportDoc(const VImportDoc&) = delete;
    VImportDoc& operator=(const VImportDoc&) = delete;
    virtual ~VImportDoc();

    /// Objects live in memory of the library, whoever creates them, unless a place is given for them.
    static void* operator new(std::size_t size) { return detail::Allocate(size); }

    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* object, std::size_t size) noexcept { detail::Free(object, size); }

    static void operator delete(void*, void*) noexcept {}

    /// Whether this is a living document: fully built and not yet being destroyed.
    bool IsConstructed() const;

    /// The same for a pointer of unknown fate, also null: only the address is looked at.
    static bool IsLiving(const VImportDoc* document);

    /// The language of the texts.
    const wchar_t* GetLanguage() { return m_language.Get(); }

    void SetLanguage(const wchar_t* language);

    /// The control unit that is described.
    const wchar_t* GetEcuName() { return m_ecuName.Get(); }

    void SetEcuName(const wchar_t* ecuName);

    /// The version tag of the imported description.
    const wchar_t* GetKDIVersion() const { return m_kdiVersion.Get(); }

    void SetKDIVersion(const wchar_t* version);

    VDataTypeCollection& DataTypeCollection();
    VTroubleCodeCollectionCollection& TroubleCodeCollectionCollection();
    VInterchangeableCollection& InterchangeableCollection();
    VBaseVariant& GetBaseVariant();
    VUnitCollection& UnitCollection();

    /// @name Objects of this document that no collection holds
    /// They belong to nobody until they are appended to a collection, which owns them from then on. One that never is
    /// has to be given up with `Destroy`, also after the document died; the document does not delete it.
    /// @{
    VAttribute& MakeAttribute();
    VAttributeCollection& MakeAttributeCollection();
    VTroubleCode& MakeTroubleCode();
    VTroubleCodeCollection& MakeTroubleCodeCollection();
    VFormulaDataType& MakeFormulaDataType();
    VIdentityDataType& MakeIdentityDataType();
    VLinearDataType& MakeLinearDataType();
    VPiecewiseLinearDataType& MakePiecewiseLinearDataType();
    VProcedureDataType& MakeProcedureDataType();
    VTextTableDataType& MakeTextTableDataType();
    VValueTableDataType& MakeValueTableDataType();
    VMuxDataType& MakeMuxDataType();
    VPacketDataType& MakePacketDataType();
    VEndMarkerIterDataType& MakeEndMarkerIterDataType();
    VEndOfServiceIterDataType& MakeEndOfServiceIterDataType();
    VNumeratorIterDataType& MakeNumeratorIterDataType();
    VStaticIterDataType& MakeStaticIterDataType();
    /// @}

    /// Has the traverser visit this document.
    void Accept(VImportDocTraverser& traverser);

private:
    detail::Text m_language;
    detail::Text m_ecuName;
    detail::Text m_kdiVersion;
    std::unique_ptr<VDataTypeCollection> m_dataTypeCollection;
    std::unique_ptr<VTroubleCodeCollectionCollection> m_troubleCodeCollectionCollection;
    std::unique_ptr<VInterchangeableCollection> m_interchangeableCollection;
    std::unique_ptr<VBaseVariant> m_baseVariant;
    std::unique_ptr<VUnitCollection> m_unitCollection;
};

} // namespace ImportDame
