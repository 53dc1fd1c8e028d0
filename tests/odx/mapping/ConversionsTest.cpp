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
