#pragma once

#include <ImportDame/Export.h>
#include <ImportDame/Fwd.h>
#include <ImportDame/ImportDocTraverser.h>
#include <ImportDame/detail/Text.h>

#include <string>

namespace ImportDame {

/// Writes a readable trace of a document to the log, one record per line, where the log is enabled.
///
/// The members of a packet are indented by four blanks. The members of a bit field are written twice: four blanks
/// deeper than the bit field, then once more at its own depth. Multiplexers and invalid ranges are not written. The
/// four repetition kinds are left to the subclass.
class IMPORTDAME_API VDumper : public VImportDocTraverser {
public:
    VDumper();
    VDumper(const VDumper& other);
    VDumper& operator=(const VDumper& other);
    ~VDumper() override;

    /// Writes the data types, then the interchangeables, each between a line for its start and one for its end.
    void Dump(VImportDoc& importDoc);

    /// Writes the members alone, without lines for the start and the end of the collection.
    void Dump(VInterchangeableCollection& collection);

    void PreProcessImportDoc(VImportDoc& importDoc) override;
    void PostProcessImportDoc(VImportDoc& importDoc) override;
    void PreProcessDataTypeCollection(VDataTypeCollection& collection) override;
    void PostProcessDataTypeCollection(VDataTypeCollection& collection) override;
    void PreProcessInterchangeableCollection(VInterchangeableCollection& collection) override;
    void PostProcessInterchangeableCollection(VInterchangeableCollection& collection) override;

    void PreProcessIdentityDataType(VIdentityDataType& dataType) override;
    void PreProcessTextTableDataType(VTextTableDataType& dataType) override;
    void PreProcessLinearDataType(VLinearDataType& dataType) override;
    void PreProcessPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) override;
    void PreProcessValueTableDataType(VValueTableDataType& dataType) override;
    void PreProcessFormulaDataType(VFormulaDataType& dataType) override;
    void PreProcessProcedureDataType(VProcedureDataType& dataType) override;
    void PreProcessPacketDataType(VPacketDataType& dataType) override;
    void PreProcessInvalidRangeCollection(VInvalidRangeCollection& collection) override;

    void PreProcessDataObject(VDataObject& dataObject) override;
    void PreProcessBitField(VBitField& bitField) override;
    void PreProcessGapObject(VGapObject& gapObject) override;

protected:
    /// One blank for each unit of the current indentation.
    std::wstring GetShiftingBlanks();

private:
    /// Writes the members of a packet or a bit field four blanks deeper.
    void DumpMembers(VInterchangeableCollection& collection);

    detail::Text m_prefix{L"IMPORTDAME DUMP: "};
    unsigned int m_shift = 0;
};

} // namespace ImportDame
