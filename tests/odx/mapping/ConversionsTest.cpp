#include "support/Fragments.h"
#include "support/Imports.h"

#include <gtest/gtest.h>

#include <string>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::BaseVariant;
using OdxTests::Coded;
using OdxTests::Coefficients;
using OdxTests::Describe;
using OdxTests::Dictionary;
using OdxTests::Dop;
using OdxTests::Imported;
using OdxTests::Method;
using OdxTests::TemporaryFile;

namespace {

const std::string byte = Coded("A_UINT32", 8);
constexpr const char* toCoded = "COMPU-PHYS-TO-INTERNAL";

std::string Limit(const std::string& tag, const std::string& value, const std::string& type = "CLOSED") {
    return "<" + tag + " INTERVAL-TYPE='" + type + "'>" + value + "</" + tag + ">";
}

std::string Lower(const std::string& value, const std::string& type = "CLOSED") {
    return Limit("LOWER-LIMIT", value, type);
}

std::string Upper(const std::string& value, const std::string& type = "CLOSED") {
    return Limit("UPPER-LIMIT", value, type);
}

std::string Scale(const std::string& limits, const std::string& content) {
    return "<COMPU-SCALE>" + limits + content + "</COMPU-SCALE>";
}

std::wstring RangeOf(Imported& imported, const wchar_t* linear) {
    return Describe(imported.DataType<VLinearDataType>(linear).LinearConversion().GetRange());
}

} // namespace

TEST(ConversionsTest, OpenEndsOfTheWayBackAloneStayOutside) {
    const auto back = [](const std::string& limits, const std::string& numerator) {
        return Method("LINEAR", Scale(limits, Coefficients(numerator, "1")), toCoded);
    };
    const std::string upper = Lower("0") + Upper("100", "OPEN"), lower = Lower("0", "OPEN") + Upper("100");
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(Dop("upper", byte, "A_UINT32", back(upper, "40 1")) +
                               Dop("lower", byte, "A_UINT32", back(lower, "40 1")) +
                               Dop("falling", byte, "A_UINT32", back(upper, "140 -1")) +
                               Dop("tenths", byte, "A_FLOAT64", back(Lower("0.3", "OPEN") + Upper("1.04"), "0 10")) +
                               Dop("real", Coded("A_FLOAT32", 32), "A_FLOAT64", back(upper, "0 0.5")))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0614 ODX0614 ODX0614 ODX0614 ODX0614");
    EXPECT_EQ(RangeOf(imported, L"upper"), L"[40,139]");
    EXPECT_EQ(RangeOf(imported, L"lower"), L"[41,140]");
    EXPECT_EQ(RangeOf(imported, L"falling"), L"[41,140]");
    EXPECT_EQ(RangeOf(imported, L"tenths"), L"[4,10]");
    EXPECT_EQ(RangeOf(imported, L"real"), L"[0,50]");
}

TEST(ConversionsTest, AttributesOfTheWayBackKeepTheKindOfItsLimits) {
    const std::string scales = "<COMPU-SCALES>" +
                               Scale(Lower("", "INFINITE") + Upper("100", "OPEN"), Coefficients("0 1", "2")) +
                               "</COMPU-SCALES>";
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(Dop("dop", byte, "A_UINT32",
                                              Method("LINEAR", Scale("", Coefficients("0 2"))) +
                                                  "<COMPU-PHYS-TO-INTERNAL>" + scales + "</COMPU-PHYS-TO-INTERNAL>"))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "");
    VAttributeCollection& attributes = imported.DataType<VLinearDataType>(L"dop").Attributes();
    const std::wstring path = L"COMPU-PHYS-TO-INTERNAL/COMPU-SCALES/COMPU-SCALE/";
    EXPECT_EQ(Attribute(attributes, (path + L"LOWER-LIMIT/INTERVAL-TYPE").c_str()), L"INFINITE");
    EXPECT_EQ(Attribute(attributes, (path + L"UPPER-LIMIT").c_str()), L"100");
    EXPECT_EQ(Attribute(attributes, (path + L"UPPER-LIMIT/INTERVAL-TYPE").c_str()), L"OPEN");
}

TEST(ConversionsTest, ScalesThatArePassedOverAreKnownAndNotImported) {
    const std::string limits = Lower("0") + Upper("9"), line = Coefficients("0 1", "1");
    const TemporaryFile file(
        "b.odx-d", BaseVariant(Dictionary(
                       Dop("line", byte, "A_UINT32", Method("LINEAR", Scale(limits, line) + Scale(limits, line))) +
                       Dop("same", byte, "A_UINT32",
                           Method("IDENTICAL", Scale(limits, line + "<COMPU-CONST><V>1</V></COMPU-CONST>"))))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0602");
    for (const char* tag : {"COMPU-SCALE", "LOWER-LIMIT", "UPPER-LIMIT", "COMPU-RATIONAL-COEFFS"}) {
        const auto& counts = imported.ledger.AllRows().find(tag)->second.counts;
        EXPECT_EQ(counts.imported, 1u) << tag;
        EXPECT_EQ(counts.dropped, 1u) << tag;
        EXPECT_EQ(counts.notRepresented, 1u) << tag;
    }
    EXPECT_EQ(imported.ledger.AllRows().find("COMPU-CONST")->second.counts.notRepresented, 1u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(ConversionsTest, NumbersInFormulasAreCheckedAndRepaired) {
    const std::string line = Coefficients("0 1", "1");
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("scales", byte, "A_FLOAT64",
                Method("SCALE-RAT-FUNC", Scale(Lower("0") + Upper("0x10", "OPEN"), Coefficients("1 0x10", "1")) +
                                             Scale(Lower("1,5") + Upper("2"), line) + Scale(Lower("abc"), line) +
                                             Scale(Lower(""), line) +
                                             Scale(Lower("20"), "<COMPU-CONST><V>+1.50</V></COMPU-CONST>"))) +
            Dop("broken", byte, "A_FLOAT64", Method("RAT-FUNC", Scale("", Coefficients("1 2,5", "1")))))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0502 ODX0502 ODX0503 ODX0503 ODX0503 ODX0503");
    EXPECT_STREQ(imported.DataType<VFormulaDataType>(L"scales").GetCodedToPhysFormula(),
                 L"x >= 0 && x < 16 ? (1 + 16*x) / (1); x >= 20 ? +1.50");
    EXPECT_STREQ(imported.DataType<VFormulaDataType>(L"broken").GetCodedToPhysFormula(), L"");
    EXPECT_EQ(imported.ledger.AllRows().find("COMPU-SCALE")->second.counts.dropped, 4u);
}

TEST(ConversionsTest, ScalesThatCannotBeReadAreLeftOut) {
    const std::string text = "<COMPU-CONST><VT>invalid</VT></COMPU-CONST>", low = Lower("0") + Upper("100"),
                      high = Lower("101") + Upper("200"), word = Lower("abc") + Upper("abc");
    const TemporaryFile file(
        "b.odx-d",
        BaseVariant(Dictionary(
            Dop("back", byte, "A_UINT32",
                Method("SCALE-LINEAR", Scale(high, Coefficients("255", "1")) + Scale(low, Coefficients("0 1", "1")),
                       toCoded)) +
            Dop("pieces", byte, "A_FLOAT64",
                Method("SCALE-LINEAR", Scale(low, Coefficients("0 1")) + Scale(high, text) +
                                           Scale(word, Coefficients("0 1")) + Scale(high, Coefficients("0 x")))) +
            Dop("texts", byte, "A_UNICODE2STRING",
                Method("TEXTTABLE", Scale(word, text) + Scale(Lower("1") + Upper("1"), text))))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0614 ODX0602 ODX0602 ODX0503 ODX0503 ODX0503 ODX0503 ODX0503");
    for (const wchar_t* name : {L"back", L"pieces"}) {
        auto& pieces = imported.DataType<VPiecewiseLinearDataType>(name).LinearConversionCollection();
        ASSERT_EQ(pieces.Count(), 1u) << name;
        EXPECT_EQ(Describe((*pieces.Begin()).GetRange()), L"[0,100]");
    }
    auto& rows = imported.DataType<VTextTableDataType>(L"texts").TextTableRowCollection();
    ASSERT_EQ(rows.Count(), 1u);
    EXPECT_EQ(Describe((*rows.Begin()).GetRange()), L"[1,1]");
    EXPECT_EQ(imported.ledger.AllRows().find("COMPU-SCALE")->second.counts.dropped, 4u);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

TEST(ConversionsTest, AConversionOfOneScaleIsKeptWhereItsLimitsCannotBeRead) {
    const std::string scale = Scale(Lower("0,5") + Upper("9"), Coefficients("-40 1"));
    const TemporaryFile file("b.odx-d",
                             BaseVariant(Dictionary(Dop("line", byte, "A_FLOAT64", Method("LINEAR", scale)) +
                                                    Dop("back", byte, "A_FLOAT64", Method("LINEAR", scale, toCoded)) +
                                                    Dop("formula", byte, "A_FLOAT64", Method("RAT-FUNC", scale)))));
    Imported imported(file.Path());
    EXPECT_EQ(imported.Codes(), "ODX0503 ODX0614 ODX0503 ODX0503");
    VLinearConversion& line = imported.DataType<VLinearDataType>(L"line").LinearConversion();
    EXPECT_EQ(line.GetOffset(), -40.0);
    EXPECT_EQ(imported.DataType<VLinearDataType>(L"back").LinearConversion().GetOffset(), 40.0);
    EXPECT_STREQ(imported.DataType<VFormulaDataType>(L"formula").GetCodedToPhysFormula(), L"-40 + 1*x");
    EXPECT_EQ(imported.ledger.AllRows().find("COMPU-SCALE")->second.counts.dropped, 0u);
}
