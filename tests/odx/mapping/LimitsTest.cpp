#include "support/Fragments.h"
#include "support/Imports.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace ImportDame;
using OdxTests::BaseVariant;
using OdxTests::Coded;
using OdxTests::Coefficients;
using OdxTests::Describe;
using OdxTests::Dictionary;
using OdxTests::Dop;
using OdxTests::Imported;
using OdxTests::Method;
using OdxTests::Ranges;
using OdxTests::TemporaryFile;

namespace {

const std::string same = "<CATEGORY>IDENTICAL</CATEGORY>";

std::string Limits(const std::string& lower, const std::string& upper, const std::string& upperType = "CLOSED") {
    return "<LOWER-LIMIT>" + lower + "</LOWER-LIMIT><UPPER-LIMIT INTERVAL-TYPE='" + upperType + "'>" + upper +
           "</UPPER-LIMIT>";
}

std::string Constraint(const std::string& tag, const std::string& limits) {
    return "<" + tag + ">" + limits + "</" + tag + ">";
}

} // namespace

TEST(LimitsTest, WholeNumbersWrittenWithAPointOrAnExponentKeepTheirOpenEnds) {
    const std::string byte = Coded("A_UINT32", 8);
    const auto scale = [](const std::string& limits, const std::string& content) {
        return "<COMPU-SCALE>" + limits + content + "</COMPU-SCALE>";
    };
    const std::string low = "<COMPU-CONST><VT>low</VT></COMPU-CONST>", line = Coefficients("0 1");
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("internal", byte, "A_UINT32", same, Constraint("INTERNAL-CONSTR", Limits("10.0", "254.0"))) +
            Dop("physical", byte, "A_INT32", same, Constraint("PHYS-CONSTR", Limits("1.0", "1E2", "OPEN"))) +
            Dop("pieces", byte, "A_FLOAT64", Method("SCALE-LINEAR", scale(Limits("0.0", "100.0", "OPEN"), line))) +
            Dop("line", byte, "A_FLOAT64", Method("LINEAR", scale(Limits("-0.0", "256.0", "OPEN"), line))) +
            Dop("texts", byte, "A_UNICODE2STRING", Method("TEXTTABLE", scale(Limits("1E0", "10.0", "OPEN"), low))))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"internal")), L"[,9][255,]");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"physical")), L"[,0]physical[100,]physical");
    auto& pieces = imported.DataType<VPiecewiseLinearDataType>(L"pieces").LinearConversionCollection();
    EXPECT_EQ(Describe((*pieces.Begin()).GetRange()), L"[0,99]");
    EXPECT_EQ(Describe(imported.DataType<VLinearDataType>(L"line").LinearConversion().GetRange()), L"[0,255]");
    auto& rows = imported.DataType<VTextTableDataType>(L"texts").TextTableRowCollection();
    EXPECT_EQ(Describe((*rows.Begin()).GetRange()), L"[1,9]");
}

TEST(LimitsTest, LimitsOfRealNumbersAreCheckedAndTextsAreNot) {
    const auto constraint = [](const std::string& lower, const std::string& upper) {
        return Constraint("INTERNAL-CONSTR", Limits(lower, upper));
    };
    const std::string real = Coded("A_FLOAT32", 32);
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("real", real, "A_FLOAT64", same, constraint("-1,5", "0x10")) +
            Dop("words", real, "A_FLOAT64", same, constraint("abc", "1.5E3")) +
            Dop("physical", Coded("A_UINT32", 8), "A_FLOAT32", same, Constraint("PHYS-CONSTR", Limits("0,5", "2"))) +
            Dop("text", Coded("A_ASCIISTRING", 16), "A_UNICODE2STRING", same, constraint("1,5", "abc")))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0503 ODX0502 ODX0503 ODX0503");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"real")), L"[16,]");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"words")), L"[1.5E3,]");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"physical")), L"[2,]physical");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"text")), L"[,1,5][abc,]");
}

TEST(LimitsTest, AScaleOfAConstraintWhoseLimitsCannotBeReadIsLeftOut) {
    const auto scale = [](const std::string& limits) {
        return "<SCALE-CONSTR VALIDITY='NOT-VALID'>" + limits + "</SCALE-CONSTR>";
    };
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("dop", Coded("A_UINT32", 8), "A_UINT32", same,
                                   Constraint("INTERNAL-CONSTR", "<SCALE-CONSTRS>" + scale(Limits("abc", "abc")) +
                                                                     scale(Limits("3", "4")) + "</SCALE-CONSTRS>")))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0503 ODX0503");
    EXPECT_EQ(Ranges(imported.DataType<VIdentityDataType>(L"dop")), L"[3,4]");
    EXPECT_EQ(imported.ledger.AllRows().find("SCALE-CONSTR")->second.counts.dropped, 1u);
}
