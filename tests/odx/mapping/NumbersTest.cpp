#include "mapping/Numbers.h"

#include "support/Corpora.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace OdxImport;

namespace {

/// An element with the text, and what reading it reported.
class Text {
public:
    explicit Text(const std::string& text) {
        const Reporter quiet(diagnostics);
        document =
            XmlDocument::Parse("a.odx", {OdxTests::ToBytes("<a f='" + text + "'>" + text + "</a>"), 0}, 10, quiet);
    }

    Element At() const { return document->Root(); }

    Numbers Reader() const { return Numbers(reporter); }

    std::string Codes() const { return OdxTests::Codes(diagnostics); }

    DiagnosticCollector diagnostics;
    Reporter reporter{diagnostics};
    std::unique_ptr<XmlDocument> document;
};

struct WholeRow {
    const char* text;
    std::optional<std::uint32_t> value;
    const char* codes;
};

} // namespace

TEST(NumbersTest, WholeNumbersAreReadRepairedOrRefused) {
    for (const WholeRow& row : std::vector<WholeRow>{{"0", 0, ""},
                                                     {"+7", 7, ""},
                                                     {" 8 ", 8, ""},
                                                     {"4294967295", 4294967295u, ""},
                                                     {"8.0", 8, ""},
                                                     {"1e3", 1000, ""},
                                                     {"0x08", 8, "ODX0502"},
                                                     {"0XfF", 255, "ODX0502"},
                                                     {"0.05", std::nullopt, "ODX0501"},
                                                     {"-1", std::nullopt, "ODX0504"},
                                                     {"4294967296", std::nullopt, "ODX0504"},
                                                     {"99999999999999999999999", std::nullopt, "ODX0504"},
                                                     {"0x", std::nullopt, "ODX0503"},
                                                     {"eight", std::nullopt, "ODX0503"},
                                                     {"", std::nullopt, "ODX0503"},
                                                     {"1,5", std::nullopt, "ODX0503"},
                                                     {"1 2", std::nullopt, "ODX0503"}}) {
        const Text text(row.text);
        EXPECT_EQ(text.Reader().Whole(text.At()), row.value) << row.text;
        EXPECT_EQ(text.Codes(), row.codes) << row.text;
    }
}

TEST(NumbersTest, AnAbsentElementIsAbsentWithoutAReport) {
    const Text text("1");
    EXPECT_EQ(text.Reader().Whole(Element()), std::nullopt);
    EXPECT_EQ(text.Reader().Number(Element()), std::nullopt);
    EXPECT_EQ(text.Reader().Hex(Element()), std::nullopt);
    EXPECT_EQ(text.Codes(), "");
}

TEST(NumbersTest, NumbersAreReadAsXmlSchemaWritesThem) {
    EXPECT_EQ(ParseNumber("1.5"), 1.5);
    EXPECT_EQ(ParseNumber("+.5"), 0.5);
    EXPECT_EQ(ParseNumber("-1e-3"), -0.001);
    EXPECT_EQ(ParseNumber("INF"), INFINITY);
    EXPECT_EQ(ParseNumber("-INF"), -INFINITY);
    for (const char* text : {"", "+", "-", "inf", "nan", "infinity", "1,5", "0x10", "+-1", "1.5 ", "1e"})
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
}

TEST(NumbersTest, NumbersThatNothingCanHoldAreNumbersNevertheless) {
    for (const std::string& text : {std::string("1e400"), std::string("-1e400"), std::string(500, '9')}) {
        const Text huge(text);
        EXPECT_EQ(huge.Reader().Number(huge.At()), std::nullopt);
        EXPECT_EQ(huge.Reader().Whole(huge.At()), std::nullopt);
        EXPECT_EQ(huge.Codes(), "ODX0504 ODX0504");
    }
}

TEST(NumbersTest, HexValuesAreReadRepairedOrRefused) {
    for (const WholeRow& row : std::vector<WholeRow>{{"0F", 15, ""},
                                                     {"ffffffff", 4294967295u, ""},
                                                     {"00000000FF", 255, ""},
                                                     {"00", 0, ""},
                                                     {"F", 15, "ODX0505"},
                                                     {"0xFF", 255, "ODX0502"},
                                                     {"GG", std::nullopt, "ODX0506"},
                                                     {"", std::nullopt, "ODX0506"},
                                                     {"0x", std::nullopt, "ODX0502 ODX0506"},
                                                     {"0100000000", std::nullopt, "ODX0504"}}) {
        const Text text(row.text);
        EXPECT_EQ(text.Reader().Hex(text.At()), row.value) << row.text;
        EXPECT_EQ(text.Codes(), row.codes) << row.text;
    }
}

TEST(NumbersTest, FlagsAreTrueOrFalseOrReported) {
    EXPECT_TRUE(Text("true").Reader().Flag(Text("true").At(), "f", false));
    EXPECT_TRUE(Text("1").Reader().Flag(Text("1").At(), "f", false));
    EXPECT_FALSE(Text("0").Reader().Flag(Text("0").At(), "f", true));
    const Text odd("yes");
    EXPECT_TRUE(odd.Reader().Flag(odd.At(), "f", true));
    EXPECT_EQ(odd.Codes(), "ODX0507");
    for (const auto& [text, value] : {std::pair("FALSE", false), std::pair("False", false), std::pair("TRUE", true)}) {
        const Text capitals(text);
        EXPECT_EQ(capitals.Reader().Flag(capitals.At(), "f", !value), value) << text;
        EXPECT_EQ(capitals.Codes(), "ODX0507") << text;
    }
    EXPECT_TRUE(odd.Reader().Flag(odd.At(), "absent", true));
    EXPECT_EQ(odd.Codes(), "ODX0507");
}

TEST(NumbersTest, ConstantsOfWholeNumbersAreTheirDigitsAndOthersTheirText) {
    EXPECT_EQ(Text("34").Reader().Constant(Text("34").At(), ValueKind::Whole), "34");
    const Text hex("0x22");
    EXPECT_EQ(hex.Reader().Constant(hex.At(), ValueKind::Whole), "34");
    EXPECT_EQ(hex.Codes(), "ODX0502");
    EXPECT_EQ(Text("-5").Reader().Constant(Text("-5").At(), ValueKind::Whole), "-5");
    EXPECT_EQ(Text("34.0").Reader().Constant(Text("34.0").At(), ValueKind::Whole), "34");
    EXPECT_EQ(Text("1E3").Reader().Constant(Text("1E3").At(), ValueKind::Whole), "1000");
    const Text large("18446744073709551615");
    EXPECT_EQ(large.Reader().Constant(large.At(), ValueKind::Whole), "18446744073709551615");
    EXPECT_EQ(large.Codes(), "");
    EXPECT_EQ(Text("0xFFFFFFFFFFFFFFFF").Reader().Constant(Text("0xFFFFFFFFFFFFFFFF").At(), ValueKind::Whole),
              "18446744073709551615");
    EXPECT_EQ(Text("abc").Reader().Constant(Text("abc").At(), ValueKind::Text), "abc");
    const Text part("0.05");
    EXPECT_EQ(part.Reader().Constant(part.At(), ValueKind::Whole), std::nullopt);
    EXPECT_EQ(part.Codes(), "ODX0501");
}
