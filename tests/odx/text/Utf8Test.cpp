#include "text/Utf8.h"

#include <gtest/gtest.h>

using namespace OdxImport;

namespace {

std::wstring CarOfThisPlatform() {
    return sizeof(wchar_t) == 2 ? std::wstring{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE97)}
                                : std::wstring{static_cast<wchar_t>(0x1F697)};
}

} // namespace

TEST(Utf8Test, WellFormedSequencesHaveTheirLength) {
    EXPECT_EQ(Utf8SequenceLength("a", 0), 1u);
    EXPECT_EQ(Utf8SequenceLength("\xC3\xA4", 0), 2u);
    EXPECT_EQ(Utf8SequenceLength("\xE2\x82\xAC", 0), 3u);
    EXPECT_EQ(Utf8SequenceLength("\xF0\x9F\x9A\x97", 0), 4u);
    EXPECT_EQ(Utf8SequenceLength("\xF4\x8F\xBF\xBF", 0), 4u);
}

TEST(Utf8Test, EveryKindOfIllFormedSequenceIsNone) {
    for (const char* text :
         {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\xFF", "\xC3", "\xE2\x82", "\xF0\x9F\x9A", "\xC3z"})
        EXPECT_EQ(Utf8SequenceLength(text, 0), 0u) << text;
}

TEST(Utf8Test, TheFirstBadByteIsFoundWhereverItStands) {
    EXPECT_EQ(FirstBytesNotUtf8(""), 0u);
    EXPECT_EQ(FirstBytesNotUtf8("all is well \xC3\xA4"), 14u);
    for (std::size_t at = 0; at < 20; ++at) {
        std::string text(20, 'x');
        text[at] = '\xFC';
        EXPECT_EQ(FirstBytesNotUtf8(text), at);
    }
}

TEST(Utf8Test, WideTextIsUnmangledBeyondTheBasicPlane) {
    EXPECT_EQ(Widen("a\xC3\xA4\xE2\x82\xAC"),
              (std::wstring{L'a', static_cast<wchar_t>(0xE4), static_cast<wchar_t>(0x20AC)}));
    EXPECT_EQ(Widen("\xF0\x9F\x9A\x97"), CarOfThisPlatform());
    EXPECT_EQ(Narrow(CarOfThisPlatform()), "\xF0\x9F\x9A\x97");
    EXPECT_EQ(Narrow(Widen("long enough text \xC3\xA4 with \xF0\x9F\x9A\x97 in it")),
              "long enough text \xC3\xA4 with \xF0\x9F\x9A\x97 in it");
}

TEST(Utf8Test, BadBytesAndLoneSurrogatesBecomeTheReplacementCharacter) {
    EXPECT_EQ(Widen("a\xFFz"), (std::wstring{L'a', static_cast<wchar_t>(0xFFFD), L'z'}));
    EXPECT_EQ(Narrow(std::wstring{static_cast<wchar_t>(0xD83D), L'a'}), "\xEF\xBF\xBD"
                                                                        "a");
    EXPECT_EQ(Narrow(std::wstring{static_cast<wchar_t>(0xDE97)}), "\xEF\xBF\xBD");
}

TEST(Utf8Test, CodePointsAreAppendedInTheShortestForm) {
    std::string out;
    for (const char32_t point : {U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'})
        AppendUtf8(out, point);
    EXPECT_EQ(out, "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}
