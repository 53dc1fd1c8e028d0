#include "xml/LineTable.h"

#include <gtest/gtest.h>

#include <string>

using OdxImport::LineTable;
using OdxImport::Position;

namespace {

struct Squeezed {
    explicit Squeezed(std::string given) : text(std::move(given)) {
        std::size_t length = text.size();
        table = LineTable(text.data(), length);
        text.resize(length);
    }

    /// Line and column of the first place of the mark, "3:5".
    std::string PlaceOf(const char* mark) const {
        const Position at = table.Of(text.find(mark));
        return std::to_string(at.line) + ":" + std::to_string(at.column);
    }

    std::string text;
    LineTable table;
};

} // namespace

TEST(LineTableTest, WhiteSpaceBetweenTagsGoes) {
    EXPECT_EQ(Squeezed("<a>\n  <b/>  \r\n\t<c>x</c>\n</a>\n").text, "<a><b/><c>x</c></a>\n");
}

TEST(LineTableTest, WhiteSpaceInTextsStays) {
    for (const char* text : {"<a>\n x\n <b/></a>", "<p>a &gt;\n <b>c</b></p>", "<p>to >\n  <b>c</b></p>",
                             "<p>\n\n x</p>", "<a><![CDATA[<x>\n  <y>]]></a>\n<b>\n  <c/></b>"})
        EXPECT_EQ(Squeezed(text).text, text);
}

TEST(LineTableTest, PlacesAreThoseInTheTextAsItWas) {
    const Squeezed text("<a>\n  <b/>\n\n\n    <c>x\n  y</c><d/>\n\t<e/>\n</a>");
    EXPECT_EQ(text.PlaceOf("<a>"), "1:1");
    EXPECT_EQ(text.PlaceOf("<b/>"), "2:3");
    EXPECT_EQ(text.PlaceOf("<c>"), "5:5");
    EXPECT_EQ(text.PlaceOf("y</c>"), "6:3");
    EXPECT_EQ(text.PlaceOf("<d/>"), "6:8");
    EXPECT_EQ(text.PlaceOf("<e/>"), "7:2");
    EXPECT_EQ(text.PlaceOf("</a>"), "8:1");
}

TEST(LineTableTest, LongLinesAndManyLinesAreFound) {
    std::string text = "<a>";
    for (int i = 0; i < 3000; ++i)
        text += "\n" + std::string(static_cast<std::size_t>(i % 7), ' ') + "<b" + std::to_string(i) + "_ " +
                std::string(static_cast<std::size_t>(i % 400), 'x') + "='1'/>";
    const Squeezed squeezed(text);
    for (const int i : {0, 1, 499, 510, 511, 512, 513, 1500, 2999})
        EXPECT_EQ(squeezed.PlaceOf(("<b" + std::to_string(i) + "_").c_str()),
                  std::to_string(i + 2) + ":" + std::to_string(i % 7 + 1));
}

TEST(LineTableTest, CarriageReturnsAloneEndLines) {
    const Squeezed text("<a>\r  <b/>\r</a>");
    EXPECT_EQ(text.text, "<a><b/></a>");
    EXPECT_EQ(text.PlaceOf("<b/>"), "2:3");
}

TEST(LineTableTest, AnEmptyTextHasOneLine) {
    const Squeezed text("");
    EXPECT_EQ(text.table.Of(0).line, 1u);
    EXPECT_EQ(text.table.Of(0).column, 1u);
}
