#include <ImportDame/Dumper.h>

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/ValueTableDataType.h>

#include "core/LogGroup.h"

#include <KoLogging/Logging.h>

namespace ImportDame {

namespace {

using NArdenaSharedUtil::Logging::VDecoratedLogRecord;
using NArdenaSharedUtil::Logging::VLogging;
using NArdenaSharedUtil::Logging::VSeverityLevel;

template <class... Pieces>
void WriteLine(const detail::Text& prefix, const Pieces&... pieces) {
    VLogging& logging = VLogging::GetInstance();
    if (!logging.IsEnabled())
        return;
    VDecoratedLogRecord record(static_cast<VSeverityLevel>(3), detail::LogGroup());
    ((record << prefix.Get()) << ... << pieces);
    logging.Log(record);
}

const wchar_t* DataTypeQualifier(VBaseDataObject& object) {
    VDataType* const dataType = object.GetDataType();
    return dataType ? dataType->GetQualifier() : L"";
}

/// Indents by four blanks more as long as it lives.
class Shift {
public:
    explicit Shift(unsigned int& shift) : m_shift(shift) { m_shift += 4; }

    Shift(const Shift&) = delete;
    Shift& operator=(const Shift&) = delete;

    ~Shift() { m_shift -= 4; }

private:
    unsigned int& m_shift;
};

} // namespace

VDumper::VDumper() = default;

VDumper::VDumper(const VDumper& other) = default;

VDumper& VDumper::operator=(const VDumper& other) = default;

VDumper::~VDumper() = default;

void VDumper::Dump(VImportDoc& importDoc) {
    Traverse(importDoc);
}

void VDumper::Dump(VInterchangeableCollection& collection) {
    TraverseInterchangeableCollection(collection);
}

void VDumper::PreProcessImportDoc(VImportDoc&) {}

void VDumper::PostProcessImportDoc(VImportDoc&) {}

void VDumper::PreProcessDataTypeCollection(VDataTypeCollection&) {
    WriteLine(m_prefix, L" start of data type collection");
}

void VDumper::PostProcessDataTypeCollection(VDataTypeCollection&) {
    WriteLine(m_prefix, L" end of data type collection");
}

void VDumper::PreProcessInterchangeableCollection(VInterchangeableCollection&) {
    WriteLine(m_prefix, L" start of interchangeable collection");
}

void VDumper::PostProcessInterchangeableCollection(VInterchangeableCollection&) {
    WriteLine(m_prefix, L" end of interchangeable collection");
}

void VDumper::PreProcessIdentityDataType(VIdentityDataType& dataType) {
    WriteLine(m_prefix, L" IdentityDataType: '", dataType.GetQualifier(), L"'");
}

void VDumper::PreProcessTextTableDataType(VTextTableDataType& dataType) {
    WriteLine(m_prefix, L" TextTableDataType: '", dataType.GetQualifier(), L"'");
    for (VTextTableRow& row : dataType.TextTableRowCollection())
        WriteLine(m_prefix, L"     TextTableRow: '", row.GetMappedValue(), L"'");
}

void VDumper::PreProcessLinearDataType(VLinearDataType& dataType) {
    WriteLine(m_prefix, L" LinearDataType: '", dataType.GetQualifier(), L"'");
}

void VDumper::PreProcessPiecewiseLinearDataType(VPiecewiseLinearDataType& dataType) {
    WriteLine(m_prefix, L" PiecewiseLinearDataType: '", dataType.GetQualifier(), L"'");
}

void VDumper::PreProcessValueTableDataType(VValueTableDataType& dataType) {
    WriteLine(m_prefix, L" ValueTableDataType: '", dataType.GetQualifier(), L"'");
}

void VDumper::PreProcessFormulaDataType(VFormulaDataType& dataType) {
    WriteLine(m_prefix, L" FormulaDataType: '", dataType.GetQualifier(), L"'");
}

void VDumper::PreProcessProcedureDataType(VProcedureDataType& dataType) {
    WriteLine(m_prefix, L" ProcedureDataType: '", dataType.GetQualifier(), L"'");
}

void VDumper::PreProcessPacketDataType(VPacketDataType& dataType) {
    WriteLine(m_prefix, L" PacketDataType: '", dataType.GetQualifier(), L"'");
    DumpMembers(dataType.InterchangeableCollection());
}

void VDumper::PreProcessInvalidRangeCollection(VInvalidRangeCollection&) {
    WriteLine(m_prefix, L"     DataType has specification of invalid ranges");
}

void VDumper::PreProcessDataObject(VDataObject& dataObject) {
    WriteLine(m_prefix, GetShiftingBlanks(), L" DataObject: '", dataObject.GetQualifier(), L"' has DataType '",
              DataTypeQualifier(dataObject), L"'");
}

void VDumper::PreProcessBitField(VBitField& bitField) {
    WriteLine(m_prefix, GetShiftingBlanks(), L" BitField: '", bitField.GetQualifier(), L"' has DataType '",
              DataTypeQualifier(bitField), L"'");
    DumpMembers(bitField.InterchangeableCollection());
}

void VDumper::PreProcessGapObject(VGapObject& gapObject) {
    WriteLine(m_prefix, GetShiftingBlanks(), L" GapObject: '", gapObject.GetQualifier(), L"' has bit length '",
              gapObject.GetBitLength(), L"'");
}

std::wstring VDumper::GetShiftingBlanks() {
    return std::wstring(m_shift, L' ');
}

void VDumper::DumpMembers(VInterchangeableCollection& collection) {
    const Shift shift(m_shift);
    TraverseInterchangeableCollection(collection);
}

} // namespace ImportDame
