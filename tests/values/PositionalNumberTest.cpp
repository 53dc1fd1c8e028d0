#include "values/PositionalNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

using ImportDame::detail::ParsePositionalNumber;

namespace {

constexpr double g_infinity = std::numeric_limits<double>::infinity();

std::wstring Repeat(std::size_t count, wchar_t character) {
    return std::wstring(count, character);
}

/// Compares bit by bit, so that also the sign of a zero counts.
void ExpectNumber(const std::wstring& text, unsigned int base, double expected) {
    const testing::ScopedTrace trace(__FILE__, __LINE__, testing::Message() << "base " << base << ": " << text);
    const auto number = ParsePositionalNumber(text, base);
    ASSERT_TRUE(number.has_value());
    EXPECT_EQ(std::bit_cast<std::uint64_t>(*number), std::bit_cast<std::uint64_t>(expected)) << *number;
}

void ExpectRejected(std::wstring_view text, unsigned int base) {
    EXPECT_FALSE(ParsePositionalNumber(text, base).has_value()) << "base " << base << ": " << std::wstring(text);
}

TEST(PositionalNumberTest, ReadsDecimalNumbers) {
    ExpectNumber(L"12.50", 10, 12.5);
    ExpectNumber(L".5", 10, 0.5);
    ExpectNumber(L"12.", 10, 12.0);
    ExpectNumber(L"-3", 10, -3.0);
    ExpectNumber(L"+3", 10, 3.0);
    ExpectNumber(L"+.25", 10, 0.25);
    ExpectNumber(L"007", 10, 7.0);
}

TEST(PositionalNumberTest, CarriesTheRoundingOfEveryStep) {
    ExpectNumber(L"0.1", 10, 0x1.999999999999ap-4);
    ExpectNumber(L"-0.1", 10, -0x1.999999999999ap-4);
    ExpectNumber(L"0.3", 10, 0x1.3333333333334p-2); // the nearest double to 0.3 ends in 3
    ExpectNumber(L"0.7", 10, 0x1.6666666666667p-1);
    ExpectNumber(L"1.1", 10, 0x1.199999999999ap+0);
    ExpectNumber(L"4.35", 10, 0x1.1666666666666p+2);
    ExpectNumber(L"8.41", 10, 0x1.0d1eb851eb852p+3);
    ExpectNumber(L"123456.789", 10, 0x1.e240c9fbe76c9p+16);
    ExpectNumber(L"0.000001", 10, 0x1.0c6f7a0b5ed8dp-20);
    ExpectNumber(L"3.14159265358979323846", 10, 0x1.921fb54442d1cp+1); // the nearest double to pi ends in 18
    ExpectNumber(L"2.718281828459045235360287", 10, 0x1.5bf0a8b14576dp+1);
    ExpectNumber(L"0.123456789012345678901234567890", 10, 0x1.f9add3746f664p-4);
}

TEST(PositionalNumberTest, ReadsIntegersBeyondThePrecisionOfADouble) {
    ExpectNumber(L"9007199254740993", 10, 0x1p+53);
    ExpectNumber(L"18446744073709551615", 10, 0x1p+64);
    ExpectNumber(L"123456789012345678901234567890", 10, 0x1.8ee90ff6c373ep+96);
}

TEST(PositionalNumberTest, ReadsLongFractionsUntilTheScaleVanishes) {
    ExpectNumber(L"." + Repeat(100, L'3'), 10, 0x1.5555555555551p-2);
    ExpectNumber(L"." + Repeat(308, L'9'), 10, 0x1.ffffffffffff8p-1);
    ExpectNumber(L"1." + Repeat(308, L'0'), 10, 0x1.ffffffffffff9p-1);
    ExpectNumber(L"." + Repeat(309, L'9'), 10, 0.0);
    ExpectNumber(L"1." + Repeat(309, L'0'), 10, 0.0);
    ExpectNumber(L"1." + Repeat(400, L'0'), 10, 0.0);
}

TEST(PositionalNumberTest, BecomesInfiniteOrNoNumberWhereTheRangeOfADoubleEnds) {
    ExpectNumber(Repeat(308, L'9'), 10, 0x1.1ccf385ebc89fp+1023); // rounded up to the next case
    ExpectNumber(L"1" + Repeat(308, L'0'), 10, 0x1.1ccf385ebc89fp+1023);
    ExpectNumber(Repeat(309, L'9'), 10, g_infinity);
    ExpectNumber(L"2" + Repeat(308, L'0'), 10, g_infinity);
    ExpectNumber(Repeat(400, L'1'), 10, g_infinity);
    ExpectNumber(L"-" + Repeat(400, L'1'), 10, -g_infinity);
    ExpectNumber(Repeat(1024, L'1'), 2, g_infinity);
    ExpectNumber(Repeat(308, L'0') + L"5", 10, 5.0);
    for (const auto& text : {L"1" + Repeat(399, L'0'), Repeat(309, L'0') + L"5", Repeat(400, L'0')}) {
        const auto number = ParsePositionalNumber(text, 10); // an infinite scale times the digit 0
        ASSERT_TRUE(number.has_value());
        EXPECT_TRUE(std::isnan(*number)) << *number;
    }
}

TEST(PositionalNumberTest, ReadsATextWithoutDigitsAsZero) {
    ExpectNumber(L"", 10, 0.0);
    ExpectNumber(L"", 2, 0.0);
    ExpectNumber(L".", 10, 0.0);
    ExpectNumber(L"+", 10, 0.0);
    ExpectNumber(L"-", 10, -0.0);
    ExpectNumber(L"-.", 10, -0.0);
    ExpectNumber(L".-", 10, -0.0);
    ExpectNumber(L"-0", 10, -0.0);
    ExpectNumber(L"-0.0", 10, -0.0);
}

TEST(PositionalNumberTest, AcceptsOneSignAtTheFrontOfTheTextWithoutItsPoint) {
    ExpectNumber(L"-.5", 10, -0.5);
    ExpectNumber(L".-5", 10, -0x1.999999999999ap-5); // the point counts two places, the sign being one
    for (const wchar_t* text : {L"3-", L"3+", L"--3", L"+-3", L"-+3", L"1-3", L"3.-", L".3-", L"5.-2"})
        ExpectRejected(text, 10);
}

TEST(PositionalNumberTest, KnowsSignsInBaseTenOnly) {
    for (const unsigned int base : {2U, 8U, 9U, 11U, 16U, 36U}) {
        ExpectRejected(L"-1", base);
        ExpectRejected(L"+1", base);
        ExpectRejected(L"-", base);
    }
}

TEST(PositionalNumberTest, RejectsWhatIsNoDigit) {
    for (const wchar_t* text : {L" 3",   L"3 ",  L"3\n", L"\t3", L"1.2.3", L"..",  L"1..2",  L"1e+3",  L"1e3",
                                L"0x10", L"1,5", L"abc", L"1a",  L"inf",   L"nan", L"1_000", L"1'000", L"\x01",
                                L"3/",   L"3:",  L"@",   L"[",   L"`",     L"{",   L"\x7f",  L"\x10",  L"\x1a"})
        ExpectRejected(text, 10);
    for (const wchar_t* text :
         {L"@", L"[", L"`", L"{", L"/", L":", L"_", L"?", L"!", L"\x7f", L"\x01", L"\x10", L"\x1a"})
        ExpectRejected(text, 36);
}

TEST(PositionalNumberTest, RejectsCharactersOutsideAscii) {
    for (const wchar_t* text :
         {L"\uFF11", L"\uFF21", L"\uFF41", L"\u0130", L"\u0131", L"\u212A", L"\u017F", L"\u0661", L"\u0966", L"\u00B2",
          L"\u2212"
          L"1",
          L"1\uFF0E5", L"\u0141", L"\u0161", L"\u0231", L"\U0001D7D8", L"\U0001F100", L"\u0430", L"\u4141"}) {
        ExpectRejected(text, 10);
        ExpectRejected(text, 36);
    }
}

TEST(PositionalNumberTest, RejectsEveryUnitThatIsNoDigitOrLetter) {
    for (unsigned int unit = 1; unit <= 0xFFFF; ++unit) {
        const std::wstring text(1, static_cast<wchar_t>(unit));
        const bool isDigit = unit >= '0' && unit <= '9';
        const bool isLetter = (unit >= 'A' && unit <= 'Z') || (unit >= 'a' && unit <= 'z');
        ASSERT_EQ(ParsePositionalNumber(text, 36).has_value(), isDigit || isLetter || unit == '.') << unit;
    }
}

TEST(PositionalNumberTest, ReadsOtherBasesInEitherLetterCase) {
    ExpectNumber(L"101", 2, 5.0);
    ExpectNumber(L"0.1", 2, 0.5);
    ExpectNumber(L".0001", 2, 0.0625);
    ExpectNumber(Repeat(64, L'1'), 2, 0x1p+64);
    ExpectNumber(L"0.1", 3, 0x1.5555555555555p-2);
    ExpectNumber(L"12.21", 3, 0x1.71c71c71c71c7p+2);
    ExpectNumber(L".1", 7, 0x1.2492492492492p-3);
    ExpectNumber(L"6.66", 7, 0x1.beb1a1f58d0fbp+2);
    ExpectNumber(L"777", 8, 511.0);
    ExpectNumber(L"a", 11, 10.0);
    ExpectNumber(L"ff", 16, 255.0);
    ExpectNumber(L"FF", 16, 255.0);
    ExpectNumber(L"fF.8", 16, 255.5);
    ExpectNumber(L"1e10", 16, 7696.0);
    ExpectNumber(L"hello", 30, 0x1.b05c04p+23);
    ExpectNumber(L"zz", 36, 1295.0);
    ExpectNumber(L"Zz.zZ", 36, 0x1.43fff35ba7819p+10);
}

TEST(PositionalNumberTest, RejectsDigitsThatTheBaseDoesNotHave) {
    constexpr std::wstring_view digits = L"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (unsigned int base = 2; base <= 36; ++base)
        for (unsigned int digit = 0; digit < 36; ++digit)
            if (digit < base)
                ExpectNumber(std::wstring(digits.substr(digit, 1)), base, digit);
            else
                ExpectRejected(digits.substr(digit, 1), base);
}

TEST(PositionalNumberTest, BasesAboveThirtySixHaveNoFurtherDigits) {
    ExpectNumber(L"z", 100, 35.0);
    for (const wchar_t* text : {L"[", L"{", L"@", L"`", L"/", L":"})
        ExpectRejected(text, 100);
}

TEST(PositionalNumberTest, RejectsEverythingInTheBasesZeroAndOne) {
    for (const unsigned int base : {0U, 1U})
        for (const wchar_t* text : {L"", L"0", L"1", L".", L"-", L"12.5"})
            ExpectRejected(text, base);
}

TEST(PositionalNumberTest, ReadsAMillionCharacters) {
    ExpectNumber(L"-" + Repeat(1000000, L'7'), 10, -g_infinity);
    ExpectNumber(L"." + Repeat(1000000, L'7'), 10, 0.0);
    ExpectRejected(Repeat(1000000, L'7') + L"x", 10);
    ExpectRejected(L"x" + Repeat(1000000, L'7'), 10);
}

/// The same rules once more, as plainly as they can be put.
namespace Slow {

double Power(double base, int exponent) {
    double power = 1.0;
    double square = base;
    for (int bits = exponent < 0 ? -exponent : exponent; bits > 0; bits /= 2) {
        if (bits % 2 == 1)
            power = power * square;
        square = square * square;
    }
    return exponent < 0 ? 1.0 / power : power;
}

int DigitOf(wchar_t character) {
    static const std::wstring capitals = L"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static const std::wstring smalls = L"0123456789abcdefghijklmnopqrstuvwxyz";
    for (const auto& digits : {capitals, smalls})
        if (const auto place = digits.find(character); place != std::wstring::npos)
            return static_cast<int>(place);
    return 1000;
}

bool Parse(std::wstring text, int base, double& value) {
    double scale = 1.0;
    if (std::count(text.begin(), text.end(), L'.') > 1 || base < 2)
        return false;
    if (const auto point = text.find(L'.'); point != std::wstring::npos) {
        text.erase(point, 1);
        scale = Power(base, static_cast<int>(point) - static_cast<int>(text.size()));
    }
    value = 0.0;
    std::wstring digits = text;
    const bool hasSign = base == 10 && !text.empty() && (text[0] == L'-' || text[0] == L'+');
    if (hasSign)
        digits.erase(0, 1);
    for (; !digits.empty(); digits.pop_back()) {
        if (DigitOf(digits.back()) >= base)
            return false;
        value = value + DigitOf(digits.back()) * scale;
        scale = scale * base;
    }
    if (hasSign && text[0] == L'-')
        value = -value;
    return true;
}

} // namespace Slow

TEST(PositionalNumberTest, AgreesWithThePlainModelOnRandomTexts) {
    constexpr std::wstring_view alphabet = L"0123456789012345678901.+-eEaAfFzZxX \u0130\uFF11";
    std::mt19937 random(31);
    unsigned int accepted = 0;
    for (int round = 0; round < 200000; ++round) {
        const unsigned int base = random() % 3 != 0 ? 10 : static_cast<unsigned int>(random() % 38);
        const std::size_t letters = round % 4 == 0 ? alphabet.size() : std::clamp<std::size_t>(base, 2, 23);
        std::wstring text;
        for (auto length = random() % (round % 100 == 0 ? 700 : 24); length > 0; --length)
            text += alphabet[random() % letters];
        if (round % 2 == 0 && !text.empty())
            text[random() % text.size()] = L'.';
        if (round % 5 == 0 && !text.empty())
            text[0] = L'-';
        double expected = 0.0;
        const bool isNumber = Slow::Parse(text, static_cast<int>(base), expected);
        const auto number = ParsePositionalNumber(text, base);
        ASSERT_EQ(number.has_value(), isNumber) << text << " in base " << base;
        if (isNumber && !std::isnan(expected)) {
            ASSERT_EQ(std::bit_cast<std::uint64_t>(*number), std::bit_cast<std::uint64_t>(expected)) << text;
            ++accepted;
        } else if (isNumber) {
            ASSERT_TRUE(std::isnan(*number)) << text;
        }
    }
    EXPECT_GT(accepted, 40000U);
}

} // namespace
