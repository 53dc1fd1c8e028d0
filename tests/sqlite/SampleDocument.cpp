#include "sqlite/SampleDocument.h"

#include <memory>
#include <vector>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

std::wstring Name(const wchar_t* prefix, unsigned int number) {
    return prefix + std::to_wstring(number);
}

void AddScalars(VDataTypeCollection& types, unsigned int number) {
    VPiecewiseLinearDataType& pieces = types.AddNewPiecewiseLinearDataType();
    pieces.SetQualifier(Name(L"PW_", number).c_str());
    for (int segment = 5; segment > 0; --segment)
        pieces.LinearConversionCollection().AddNewLinearConversion().SetStartValue(segment * 10.0);
    for (int range = 3; range > 0; --range)
        pieces.InvalidRangeCollection().AddNewInvalidRange().SetRange(VValue(range * 1.0), VValue(range + 0.5));
    VTextTableDataType& texts = types.AddNewTextTableDataType();
    for (int row = 0; row < 4; ++row) {
        VValue value(row * 1.0);
        texts.TextTableRowCollection().AddNewTextTableRow().SetStartValue(value);
    }
    VProcedureDataType& procedure = types.AddNewProcedureDataType();
    for (const wchar_t* name : {L"c", L"a", L"b"}) {
        VFunction& function = procedure.CodedToPhysFunctionCollection().AddNewFunction();
        function.SetEntryPoint(name);
        for (const wchar_t* file : {L"3", L"1", L"2"})
            function.AdditionalFileCollection().AddNewAdditionalFile().SetPath(file);
    }
}

void AddPacket(VDataTypeCollection& types, unsigned int number) {
    VPacketDataType& packet = types.AddNewPacketDataType();
    packet.SetQualifier(Name(L"PK_", number).c_str());
    packet.InterchangeableCollection().AddNewDataObject().SetDataType(&*types.Begin());
    VBitField& bits = packet.InterchangeableCollection().AddNewBitField();
    bits.InterchangeableCollection().AddNewGapObject().SetBitLength(number % 8);
    bits.Attributes().AddNewAttribute().SetValue(L"value");
}

} // namespace

void FillDocument(VImportDoc& document, unsigned int size, const std::wstring& ecuName) {
    static unsigned int calls = 0;
    ++calls;
    std::vector<std::unique_ptr<char[]>> holes;
    document.SetEcuName(ecuName.c_str());
    VTroubleCodeCollection& codes = document.TroubleCodeCollectionCollection().AppendNew();
    for (unsigned int number = 0; number < size; ++number) {
        for (unsigned int hole = 0; hole < calls % 5; ++hole)
            holes.push_back(std::make_unique<char[]>(1 + (number * 37 + calls * 11) % 200));
        if (number % 7 == calls % 7)
            holes.clear();
        AddScalars(document.DataTypeCollection(), number);
        AddPacket(document.DataTypeCollection(), number);
        VTroubleCode& code = codes.AppendNew();
        code.SetCode(number);
        code.AppendItem(L"item");
        VDiagService& service = document.GetBaseVariant().DiagCommCollection().AddNewDiagService(number);
        service.DiagServiceShapeCollection().AddNewDiagServiceShape().SetSubValue(number);
    }
}

} // namespace SqliteBackendTests
