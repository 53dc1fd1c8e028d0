#include "text/Encoding.h"

#include "support/Corpora.h"

#include <gtest/gtest.h>

using namespace OdxImport;
using namespace std::string_view_literals;

namespace {

struct Decoded {
    bool isRead = false;
    std::string text;
    std::string codes;
};

Decoded Decode(std::string_view bytes) {
    DiagnosticCollector diagnostics;
    const Reporter reporter(diagnostics);
    Decoded decoded;
    if (const auto text = DecodeDocument(OdxTests::ToBytes(bytes), "a.odx", reporter)) {
        decoded.isRead = true;
        decoded.text = text->bytes.View().substr(text->start);
    }
    decoded.codes = OdxTests::Codes(diagnostics);
    return decoded;
}

std::string Utf16(std::u16string_view text, bool isBigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
        bytes += isBigEndian ? high : low;
        bytes += isBigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(EncodingTest, Utf8IsTakenAsItIsWithAndWithoutMarkAndDeclaration) {
    EXPECT_EQ(Decode("<a>\xC3\xA4</a>").text, "<a>\xC3\xA4</a>");
    EXPECT_EQ(Decode("\xEF\xBB\xBF<a/>").text, "<a/>");
    EXPECT_EQ(Decode("<?xml version='1.0' encoding='utf-8'?><a/>").text, "<?xml version='1.0' encoding='utf-8'?><a/>");
    EXPECT_EQ(Decode("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>").codes, "");
}

TEST(EncodingTest, Windows1252IsConvertedAndBytesWithoutMeaningStay) {
    const Decoded decoded = Decode("<?xml version=\"1.0\" encoding=\"Windows-1252\"?><a>\x80\x99\xE4\x81</a>");
    EXPECT_TRUE(decoded.text.ends_with("<a>\xE2\x82\xAC\xE2\x84\xA2\xC3\xA4\xC2\x81</a>")) << decoded.text;
    EXPECT_EQ(decoded.codes, "");
}

TEST(EncodingTest, Latin1IsConverted) {
    const Decoded decoded = Decode("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE4\xFF\x80</a>");
    EXPECT_EQ(decoded.text, "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xC3\xA4\xC3\xBF\xC2\x80</a>");
    EXPECT_EQ(decoded.codes, "");
}

TEST(EncodingTest, Utf16IsConvertedInBothOrdersWithAndWithoutMark) {
    for (const bool isBigEndian : {false, true}) {
        for (const bool hasMark : {false, true}) {
            const Decoded decoded = Decode(
                Utf16((hasMark ? u"\xFEFF" : u"") + std::u16string(u"<a>\u00E4\u20AC\xD83D\xDE97</a>"), isBigEndian));
            EXPECT_EQ(decoded.text, "<a>\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x97</a>");
            EXPECT_EQ(decoded.codes, "");
        }
    }
}

TEST(EncodingTest, HalfCharactersOfUtf16AreReplacedAndReported) {
    EXPECT_EQ(Decode(Utf16(u"<a>\xD83D</a>", false)).text, "<a>\xEF\xBF\xBD</a>");
    EXPECT_EQ(Decode(Utf16(u"<a>\xDE97</a>", false)).codes, "ODX0203");
    EXPECT_EQ(Decode(Utf16(u"<a/>", false) + "x").codes, "ODX0203");
}

TEST(EncodingTest, BytesThatAreNoUtf8AreReadAsLatin1AndReportedWithTheirLine) {
    DiagnosticCollector diagnostics;
    const Reporter reporter(diagnostics);
    const auto text = DecodeDocument(OdxTests::ToBytes("<a>\n\xC3\xA4\n\xFC</a>"), "a.odx", reporter);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->bytes.View(), "<a>\n\xC3\xA4\n\xC3\xBC</a>");
    ASSERT_EQ(OdxTests::Codes(diagnostics), "ODX0203");
    EXPECT_EQ(diagnostics.Kept()[0].where.line, 3u);
}

TEST(EncodingTest, AMarkCountsMoreThanTheDeclarationAndTheContradictionIsReported) {
    EXPECT_EQ(Decode(Utf16(u"\xFEFF<?xml version='1.0' encoding='UTF-8'?><a/>", false)).codes, "ODX0204");
    EXPECT_EQ(Decode(Utf16(u"\xFEFF<?xml version='1.0' encoding='UTF-16'?><a/>", false)).codes, "");
    const Decoded decoded = Decode("\xEF\xBB\xBF<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3\xA4</a>");
    EXPECT_EQ(decoded.codes, "ODX0204");
    EXPECT_NE(decoded.text.find("\xC3\xA4"), std::string::npos);
    EXPECT_EQ(Decode("<?xml version='1.0' encoding='UTF-16'?><a/>").codes, "ODX0204");
}

TEST(EncodingTest, OtherEncodingsAreReadOnlyWhereTheyAreAscii) {
    EXPECT_FALSE(Decode("<?xml version='1.0' encoding='iso-8859-15'?><a>\x80</a>").isRead);
    EXPECT_EQ(Decode("<?xml version='1.0' encoding='iso-8859-15'?><a>\x80</a>").codes, "ODX0202");
    EXPECT_TRUE(Decode("<?xml version='1.0' encoding='iso-8859-15'?><a/>").isRead);
    EXPECT_FALSE(Decode("\xFF\xFE\0\0<\0\0\0"sv).isRead);
    EXPECT_FALSE(Decode("\0\0\xFE\xFF\0\0\0<"sv).isRead);
}

TEST(EncodingTest, NothingAndABareMarkAreTexts) {
    EXPECT_TRUE(Decode("").isRead);
    EXPECT_EQ(Decode("\xEF\xBB\xBF").text, "");
    EXPECT_EQ(Decode("\xFF\xFE").text, "");
}
