#include "support/Imports.h"

#include <gtest/gtest.h>

using namespace ImportDame;
using OdxTests::Describe;
using OdxTests::Imported;

namespace {

/// Documents of every kind, whose layers have every kind of object of the standard at least once.
struct WholeStandard : Imported {
    WholeStandard() : Imported(std::filesystem::path(ODX_WHOLE_STANDARD_DIR)) {}
};

} // namespace

TEST(WholeStandardTest, NothingOfItIsUnknownOrDropped) {
    WholeStandard imported;
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(imported.result.documents.size(), 8U);
    EXPECT_EQ(imported.ledger.Total().dropped, 0U);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(WholeStandardTest, TheCodesOfADtcDopThatOnlyLinksLeadToAreThere) {
    WholeStandard imported;
    VTroubleCodeCollectionCollection& collections = imported.document.TroubleCodeCollectionCollection();
    ASSERT_EQ(collections.Count(), 1U);
    EXPECT_STREQ(collections[0].GetSourceName(), L"DTCs");
    EXPECT_STREQ(collections[0].ServiceMapping().GetService(), L"Read");
    std::vector<std::wstring> codes;
    for (VTroubleCode& code : collections[0])
        codes.push_back(std::to_wstring(code.GetCode()) + L" " + code.GetErrorText());
    EXPECT_EQ(codes, (std::vector<std::wstring>{L"1193046 Text with  spaces", L"9 nine"}));
}

TEST(WholeStandardTest, EveryKindOfParameterIsAMemberOfItsPacket) {
    WholeStandard imported;
    const auto content = [&](const wchar_t* packet) {
        return Describe(imported.DataType<VPacketDataType>(packet).InterchangeableCollection());
    };
    EXPECT_EQ(content(L"RQ"),
              L"SID:A_UINT32_8=34 DID:A_UINT32_16=61840 len:u8 data:pli tk:u8 ts:T te:u8=1 sys:u8 dyn: pc:tt=on");
    EXPECT_EQ(content(L"PR"), L"gap:8 a:sf b:mux c:dlf d:def e:eop f:f64");
    EXPECT_EQ(content(L"PR_Start"), L"SID:A_UINT32_8=80 SubEcho:A_BYTEFIELD_8_x1");
    EXPECT_EQ(content(L"NR_Start"), L"SID:A_UINT32_8=127 gap:8 NRC:A_UINT32_8");
}
