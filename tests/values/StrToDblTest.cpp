#include <ImportDame/ValueUtil.h>

#include "support/CommaLocale.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace {

constexpr double g_infinity = std::numeric_limits<double>::infinity();

void ExpectNumber(const std::wstring& text, unsigned int base, double expected) {
    bool ok = false;
    const double number = NValueUtil::StrToDbl(text.c_str(), base, &ok);
    EXPECT_TRUE(ok) << text.substr(0, 50);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(number), std::bit_cast<std::uint64_t>(expected))
        << text.substr(0, 50) << " gave " << number;
    EXPECT_EQ(NValueUtil::StrToDbl(text.c_str(), base, nullptr), expected);
}

void ExpectRejected(const std::wstring& text, unsigned int base) {
    bool ok = true;
    const double number = NValueUtil::StrToDbl(text.c_str(), base, &ok);
    EXPECT_FALSE(ok) << text.substr(0, 50) << " in base " << base;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(number), 0U);
    EXPECT_EQ(NValueUtil::StrToDbl(text.c_str(), base, nullptr), 0.0);
}

TEST(StrToDblTest, ReadsTheExponentFormWithAPlusSign) {
    ExpectNumber(L"1e+3", 10, 1000.0);
    ExpectNumber(L"-2E+05", 10, -200000.0);
    ExpectNumber(L"1.5e+3", 10, 1500.0);
    ExpectNumber(L"0e+0", 10, 0.0);
    ExpectNumber(L"-0e+5", 10, -0.0);
    ExpectNumber(L"007e+002", 10, 700.0);
}

TEST(StrToDblTest, RoundsTheExponentFormCorrectly) {
    ExpectNumber(L"3e+22", 10, 0x1.969368974c05bp+74);
    ExpectNumber(L"1e+23", 10, 0x1.52d02c7e14af6p+76);
    ExpectNumber(L"9007199254740993e+0", 10, 0x1p+53);
    ExpectNumber(L"9007199254740993000000000000000000000000000000000000001e+0", 10, 0x1.78287f49c4a1ep+182);
    ExpectNumber(L"0.1e+0", 10, 0x1.999999999999ap-4);
    ExpectNumber(L"1.7976931348623157e+308", 10, std::numeric_limits<double>::max());
}

TEST(StrToDblTest, RejectsEveryOtherForm) {
    for (const wchar_t* text : {L"1e-3",  L"1e3",   L"12",      L"1.5",    L"-3",     L"0",      L"abc",    L" ",
                                L"e+3",   L"-e+3",  L"1e+",     L"1e++3",  L"1e+-3",  L"+1e+3",  L"--1e+3", L"1e+3 ",
                                L" 1e+3", L"1e +3", L"1e+3e+3", L"1e+3f",  L"1,5e+3", L"0x1e+3", L"1f+3",   L"1p+3",
                                L"inf",   L"nan",   L"1.5.e+3", L".1e+.3", L"1e+3\n", L"\n1e+3", L"-"})
        ExpectRejected(text, 10);
}

TEST(StrToDblTest, PutsThePointBackWhereverItStood) {
    ExpectNumber(L"1.e+3", 10, 1000.0);
    ExpectNumber(L".1e+3", 10, 100.0);
    ExpectNumber(L"-.5e+1", 10, -5.0);
    ExpectNumber(L"1e+3.", 10, 1000.0);
}

TEST(StrToDblTest, ConvertsTheLongestNumberInFrontOfAMisplacedPoint) {
    ExpectNumber(L"1e+3.5", 10, 1000.0);
    ExpectNumber(L"1e+.3", 10, 1.0);
    ExpectNumber(L"12e.+3", 10, 12.0);
    ExpectNumber(L"-7e.+3", 10, -7.0);
    ExpectNumber(L".-5e+1", 10, 0.0);
}

TEST(StrToDblTest, BecomesInfiniteOnOverflow) {
    ExpectNumber(L"1e+309", 10, g_infinity);
    ExpectNumber(L"-1e+309", 10, -g_infinity);
    ExpectNumber(L"1.8e+308", 10, g_infinity);
    ExpectNumber(L"1e+99999999999999999999999999", 10, g_infinity);
    ExpectNumber(L"0e+99999999999999999999999999", 10, 0.0);
    ExpectNumber(std::wstring(400, L'9') + L"e+0", 10, g_infinity);
    ExpectNumber(std::wstring(400, L'9') + L"e.+5", 10, g_infinity); // the number ends in front of the exponent
    ExpectNumber(L"-" + std::wstring(400, L'9') + L"e+.5", 10, -g_infinity);
    ExpectNumber(L"0." + std::wstring(400, L'0') + L"1e+1000", 10, g_infinity);
}

TEST(StrToDblTest, BecomesSubnormalOrZeroOnUnderflow) {
    ExpectNumber(L"0." + std::wstring(307, L'0') + L"1e+0", 10, 0x0.730d67819e8d2p-1022);
    ExpectNumber(L"0." + std::wstring(323, L'0') + L"5e+0", 10, 0x0.0000000000001p-1022);
    ExpectNumber(L"0." + std::wstring(400, L'0') + L"1e+0", 10, 0.0);
    ExpectNumber(L"-0." + std::wstring(400, L'0') + L"1e+9", 10, -0.0);
    ExpectNumber(L"0." + std::wstring(400, L'0') + L"1e+401", 10, 1.0);
}

TEST(StrToDblTest, TakesTheEmptyTextForZero) {
    ExpectNumber(L"", 10, 0.0);
    ExpectNumber(L"", 2, 0.0);
    ExpectNumber(L".", 10, 0.0); // nothing is left of it without its point
    ExpectRejected(L"..", 10);
}

TEST(StrToDblTest, ReadsTheExponentFormInEveryBase) {
    for (const unsigned int base : {0U, 1U, 2U, 8U, 10U, 16U, 36U, 37U, 0xFFFFFFFFU}) {
        ExpectNumber(L"1e+3", base, 1000.0);
        ExpectNumber(L"-2E+05", base, -200000.0);
        ExpectRejected(L"12", base);
        ExpectRejected(L"0", base);
    }
}

TEST(StrToDblTest, KnowsNoPointAndNoEmptyTextInTheBasesZeroAndOne) {
    for (const unsigned int base : {0U, 1U}) {
        ExpectRejected(L"", base);
        ExpectRejected(L".", base);
        ExpectRejected(L"1.5e+3", base);
    }
}

TEST(StrToDblTest, RejectsDigitsAndSignsOutsideAscii) {
    for (const wchar_t* text :
         {L"\uFF11e+3", L"1\uFF45+3", L"1e\uFF0B3", L"1e+\uFF13",
          L"\u2212"
          L"1e+3",
          L"1e+\u0663", L"1\u212F+3", L"1e+\u00B2", L"1\uFF0E5e+3", L"\U0001D7CFe+3", L"\u0131e+3"})
        ExpectRejected(text, 10);
}

TEST(StrToDblTest, AcceptsOnlyTheCharactersOfTheForm) {
    for (unsigned int unit = 1; unit <= 0xFFFF; ++unit) {
        const auto character = static_cast<wchar_t>(unit);
        const bool isDigit = unit >= '0' && unit <= '9';
        bool ok = false;
        NValueUtil::StrToDbl((std::wstring(1, character) + L"e+1").c_str(), 10, &ok);
        ASSERT_EQ(ok, isDigit) << unit;
        NValueUtil::StrToDbl((L"1" + std::wstring(1, character) + L"+1").c_str(), 10, &ok);
        ASSERT_EQ(ok, unit == 'e' || unit == 'E') << unit;
        NValueUtil::StrToDbl((L"1e" + std::wstring(1, character) + L"1").c_str(), 10, &ok);
        ASSERT_EQ(ok, unit == '+') << unit;
    }
}

TEST(StrToDblTest, ReadsAMillionCharacters) {
    const std::wstring digits(1000000, L'7');
    ExpectNumber(digits + L"e+1", 10, g_infinity);
    ExpectNumber(L"0." + digits + L"e+1", 10, 0x1.f1c71c71c71c7p+2);
    ExpectNumber(L"1e+" + digits, 10, g_infinity);
    ExpectNumber(L"0." + std::wstring(1000000, L'0') + L"1e+1000001", 10, 1.0);
    ExpectRejected(digits, 10);
    ExpectRejected(digits + L"e-1", 10);
}

/// Whether a text without its point has the exponent form: by its picture, in which a run of digits is one 9.
bool HasExponentForm(const std::wstring& text) {
    std::wstring picture;
    for (wchar_t character : text) {
        if (character >= L'0' && character <= L'9')
            character = L'9';
        if (character != L'9' || !picture.ends_with(L'9'))
            picture += character;
    }
    return picture == L"9e+9" || picture == L"9E+9" || picture == L"-9e+9" || picture == L"-9E+9";
}

TEST(StrToDblTest, AgreesWithThePictureOfTheFormOnRandomTexts) {
    constexpr std::wstring_view alphabet = L"0123e+Ee+-.";
    std::mt19937 random(7);
    unsigned int accepted = 0;
    for (int round = 0; round < 100000; ++round) {
        std::wstring text;
        for (auto length = 1 + random() % 9; length > 0; --length)
            text += alphabet[random() % alphabet.size()];
        std::wstring rest = text;
        if (const auto point = rest.find(L'.'); point != std::wstring::npos)
            rest.erase(point, 1);
        const bool expected = rest.empty() || HasExponentForm(rest);
        bool ok = !expected;
        NValueUtil::StrToDbl(text.c_str(), 10, &ok);
        ASSERT_EQ(ok, expected) << text;
        accepted += expected ? 1U : 0U;
    }
    EXPECT_GT(accepted, 1000U);
}

TEST(StrToDblTest, ReadsTextsOfEveryLengthLikeTheStandardLibrary) {
    std::mt19937 random(15);
    const auto putDigits = [&](std::string& text, std::size_t count) {
        for (; count > 0; --count)
            text += static_cast<char>('0' + random() % 10);
    };
    for (int round = 0; round < 200000; ++round) {
        std::string text(random() % 2, '-');
        putDigits(text, 1 + random() % 18);
        if (random() % 2 != 0) {
            text += '.';
            putDigits(text, random() % 18);
        }
        text += random() % 2 != 0 ? "e+" : "E+";
        text += std::to_string(random() % (round % 10 == 0 ? 330 : 40));
        double expected = 0.0;
        if (std::from_chars(text.data(), text.data() + text.size(), expected).ec != std::errc())
            expected = text.starts_with('-') ? -g_infinity : g_infinity;
        ExpectNumber(std::wstring(text.begin(), text.end()), 10, expected);
        ASSERT_FALSE(HasFailure());
    }
}

TEST(StrToDblTest, ReadsTheSameUnderALocaleWithADecimalComma) {
    const TestSupport::CommaLocale locale;
    ExpectNumber(L"1.5e+3", 10, 1500.0);
    ExpectNumber(L"0.25e+1", 10, 2.5);
    ExpectRejected(L"1,5e+3", 10);
}

TEST(StrToDblTest, IsReachableFromInsideTheNamespace) {
    EXPECT_EQ(ImportDame::NValueUtil::StrToDbl(L"1e+2", 10, nullptr), 100.0);
}

} // namespace
