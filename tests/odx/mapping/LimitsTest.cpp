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
