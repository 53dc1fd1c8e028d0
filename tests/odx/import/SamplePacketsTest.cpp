#include "support/Sample.h"

#include <gtest/gtest.h>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::Describe;
using OdxTests::Sample;

namespace {

std::wstring Members(const wchar_t* qualifier) {
    return Describe(Sample().DataType<VBasePacketDataType>(qualifier).InterchangeableCollection());
}

VDataObject& Object(const wchar_t* packet, std::size_t index) {
    auto at = Sample().DataType<VBasePacketDataType>(packet).InterchangeableCollection().Begin();
    std::advance(at, static_cast<std::ptrdiff_t>(index));
    return dynamic_cast<VDataObject&>(*at);
}

std::vector<std::wstring> Cases(const wchar_t* mux) {
    std::vector<std::wstring> texts;
    for (VCase& each : Sample().DataType<VMuxDataType>(mux).GetCaseCollection())
        texts.push_back(std::wstring(each.GetQualifier()) + Describe(each.Range()) +
                        Describe(each.InterchangeableCollection()));
    return texts;
}

} // namespace

TEST(SamplePacketsTest, StructuresHaveMembersBitFieldsAndGapsInTheOrderOfTheirBits) {
    EXPECT_EQ(Members(L"State"),
              L"[Running:OnOff gap:1 Mode:Mode gap:2] Temperature:Temperature Sparegap:8 gap:8 Speed:Speed gap:8");
    EXPECT_EQ(Members(L"TrimPair"), L"[Right:Trim Left:Trim]");
    EXPECT_EQ(Members(L"Item"), L"Value:Word");
    EXPECT_EQ(Members(L"Fault"), L"Code:PumpFaults Status:StatusByte");
}

TEST(SamplePacketsTest, RequestsAndResponsesArePackets) {
    EXPECT_EQ(Members(L"RQ_ReadState"), L"SID:A_UINT32_8=34 DID:A_UINT32_16=4660");
    EXPECT_EQ(Members(L"PR_ReadState"), L"SID:A_UINT32_8=98 DID:A_UINT32_16=4660 State:State");
    EXPECT_EQ(Members(L"PR_ReadFaults"), L"SID:A_UINT32_8=89 gap:8 Faults:FaultList");
    EXPECT_EQ(Members(L"NR_General"), L"SID:A_UINT32_8=127");
    EXPECT_EQ(Members(L"GNR_General"), L"SID:A_UINT32_8=127 SIDRQ:A_BYTEFIELD_8_x1 NRC:A_UINT32_8");
    EXPECT_EQ(Members(L"RQ_ExchangeAll"), L"SID:A_UINT32_8=49 Fixed:Byte=7 Size:Byte Key:Word Session:Byte Open:");
}

TEST(SamplePacketsTest, TheDataIdentifierOfARequestIsItsPacketsDid) {
    EXPECT_EQ(Sample().DataType<VPacketDataType>(L"RQ_ReadState").GetDid(), 4660u);
    EXPECT_FALSE(Sample().DataType<VPacketDataType>(L"RQ_ReadFaults").HasDid());
}

TEST(SamplePacketsTest, ConstantsDefaultsAndSemanticsAreThoseOfTheParameters) {
    EXPECT_EQ(Object(L"RQ_ReadState", 0).GetSemantics(), VBaseDataObject::serviceId);
    EXPECT_EQ(Object(L"RQ_ReadState", 1).GetSemantics(), VBaseDataObject::id);
    EXPECT_FALSE(Object(L"RQ_ReadState", 0).GetConstValue().IsPhysical());
    EXPECT_TRUE(Object(L"RQ_ExchangeAll", 1).GetConstValue().IsPhysical());
    VDataObject& mask = Object(L"RQ_ReadFaults", 2);
    ASSERT_TRUE(mask.HasDefaultValue());
    EXPECT_STREQ(mask.GetDefaultValue().Get(), L"9");
    EXPECT_TRUE(mask.GetDefaultValue().IsPhysical());
    EXPECT_EQ(Object(L"Fault", 0).GetSemantics(), VBaseDataObject::dtc);
    EXPECT_EQ(Attribute(Object(L"GNR_General", 2).Attributes(), L"CODED-VALUES"), L"17 49");
    EXPECT_EQ(Attribute(Object(L"GNR_General", 1).Attributes(), L"REQUEST-BYTE-POS"), L"0");
    EXPECT_EQ(Attribute(Object(L"RQ_ExchangeAll", 4).Attributes(), L"SYSPARAM"), L"SESSION");
}

TEST(SamplePacketsTest, LengthKeysAndTableKeysAreSelectors) {
    VDataObject& sized = Object(L"PR_ExchangeAll", 1);
    ASSERT_TRUE(sized.HasSelectorDataObject());
    EXPECT_EQ(&sized.GetSelectorDataObject(), &Object(L"RQ_ExchangeAll", 2));
    VDataObject& row = Object(L"PR_ExchangeAll", 2);
    ASSERT_TRUE(row.HasSelectorDataObject());
    EXPECT_EQ(&row.GetSelectorDataObject(), &Object(L"RQ_ExchangeAll", 3));
    EXPECT_STREQ(row.GetDataType()->GetQualifier(), L"DataTable");
}

TEST(SamplePacketsTest, MultiplexersHaveSelectorPositionsCasesAndDefault) {
    auto& mux = Sample().DataType<VMuxDataType>(L"Detail");
    EXPECT_STREQ(mux.GetSelectorDataType().GetQualifier(), L"Byte");
    EXPECT_EQ(mux.GetMuxStartBitPosition(), 8u);
    EXPECT_EQ(mux.GetSelectorStartBitPosition(), 0u);
    EXPECT_EQ(Cases(L"Detail"), (std::vector<std::wstring>{L"Trims[1,1]Trims:TrimPair", L"Items[2,9]Items:Item"}));
    EXPECT_EQ(Describe(mux.GetDefaultCase()), L"Otherwise:Plain");
}

TEST(SamplePacketsTest, TablesAndEnvironmentDataAreMultiplexers) {
    EXPECT_STREQ(Sample().DataType<VMuxDataType>(L"DataTable").GetSelectorDataType().GetQualifier(), L"Word");
    EXPECT_EQ(Cases(L"DataTable"),
              (std::vector<std::wstring>{L"StateRow[4660,4660]StateRow:State", L"FlowRow[4661,4661]FlowRow:Flow"}));
    auto& frame = Sample().DataType<VMuxDataType>(L"FreezeFrame");
    EXPECT_EQ(Describe(frame.GetDefaultCase()), L"CommonEnvironment:CommonEnvironment");
    EXPECT_EQ(Cases(L"FreezeFrame"),
              (std::vector<std::wstring>{L"DryRunEnvironment[4097,4097]DryRunEnvironment:DryRunEnvironment"}));
    EXPECT_EQ(Attribute(frame.Attributes(), L"PARAM"), L"Code");
}

TEST(SamplePacketsTest, FieldsAreTheFourKindsOfRepetition) {
    EXPECT_EQ(Sample().DataType<VStaticIterDataType>(L"ThreeItems").GetNumOfItems(), 3u);
    EXPECT_EQ(Members(L"ThreeItems"), L"ThreeItems:Item");

    auto& counted = Sample().DataType<VNumeratorIterDataType>(L"CountedItems");
    EXPECT_STREQ(counted.GetSelectorDataType().GetQualifier(), L"Byte");
    EXPECT_EQ(counted.GetSelectorStartBitPosition(), 0u);
    EXPECT_EQ(counted.GetContentStartBitPosition(), 8u);
    EXPECT_EQ(counted.GetOffset(), 1u);

    auto& marked = Sample().DataType<VEndMarkerIterDataType>(L"MarkedItems");
    EXPECT_STREQ(marked.TerminationValue().Get(), L"255");
    ASSERT_TRUE(marked.HasTerminationDataType());
    EXPECT_STREQ(marked.GetTerminationDataType().GetQualifier(), L"Byte");

    auto& list = Sample().DataType<VEndOfServiceIterDataType>(L"FaultList");
    EXPECT_EQ(list.GetMinNumberOfItems(), 1u);
    EXPECT_EQ(list.GetMaxNumberOfItems(), 20u);
    EXPECT_EQ(Members(L"FaultList"), L"FaultList:Fault");
}
