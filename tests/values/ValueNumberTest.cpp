#include <ImportDame/Value.h>

#include "support/CapturedLog.h"
#include "support/CommaLocale.h"

#include <KoLogging/Logging.h>

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

using namespace ImportDame;
using NArdenaSharedUtil::Logging::VLogging;
using TestSupport::CapturedLog;

namespace {

const std::wstring g_noNumber = L"Internal error: representation of atomic value cannot be converted to double";

double Number(const wchar_t* text) {
    return VValue(text).GetAsDouble();
}

std::wstring Printed(double value) {
    return VValue(value).Get();
}

void ExpectPrintedNumbers() {
    EXPECT_EQ(Printed(0.0), L"0.000000");
    EXPECT_EQ(Printed(-0.0), L"-0.000000");
    EXPECT_EQ(Printed(1234567.891), L"1234567.891000");
    EXPECT_EQ(Printed(0.0000004), L"0.000000");
    EXPECT_EQ(Printed(0.0000006), L"0.000001");
    EXPECT_EQ(Printed(-0.0000004), L"-0.000000");
    EXPECT_EQ(Printed(std::numeric_limits<double>::denorm_min()), L"0.000000");
    EXPECT_EQ(Printed(std::numeric_limits<double>::min()), L"0.000000");
    EXPECT_EQ(Printed(0.5 / 1048576), L"0.000000"); // 4.76...e-7
    EXPECT_EQ(Printed(2.5), L"2.500000");
    EXPECT_EQ(Printed(0.1), L"0.100000");
    EXPECT_EQ(Printed(1e15), L"1000000000000000.000000");
    EXPECT_EQ(Printed(1e23), L"99999999999999991611392.000000");
    EXPECT_EQ(Printed(0x1p+53), L"9007199254740992.000000");
    EXPECT_EQ(Printed(999999.9999995), L"999999.999999"); // the double lies a little lower than that
    EXPECT_EQ(Printed(999999.9999996), L"1000000.000000");
    EXPECT_EQ(Printed(0.0000005), L"0.000000"); // the double lies a little lower than that
    EXPECT_EQ(Printed(0x1.8p-1), L"0.750000");
    EXPECT_EQ(Printed(0x1p-7), L"0.007812"); // exactly between two texts: to the even digit
    EXPECT_EQ(Printed(0x3p-7), L"0.023438"); // the same
}

TEST(VValueNumberTest, NumbersArePrintedWithSixDecimals) {
    ExpectPrintedNumbers();
}

TEST(VValueNumberTest, NumbersArePrintedTheSameUnderALocaleWithADecimalComma) {
    const TestSupport::CommaLocale locale;
    ExpectPrintedNumbers();
}

TEST(VValueNumberTest, TheLargestNumberIsPrintedWithEveryDigit) {
    EXPECT_EQ(Printed(std::numeric_limits<double>::max()),
              L"1797693134862315708145274237317043567980705675258449965989174768031572607800285387605895586327668781"
              L"7154045895351438246423432132688946418276846754670353751698604991057655128207624549009038932894407586"
              L"8508455133942304583236903222948165808559332123348274797826204144723168738177180919299881250404026184"
              L"124858368.000000");
    EXPECT_EQ(Printed(-std::numeric_limits<double>::max()).size(), 317U);
}

TEST(VValueNumberTest, InfinitiesAndNotANumberArePrintedAsWords) {
    EXPECT_EQ(Printed(std::numeric_limits<double>::infinity()), L"inf");
    EXPECT_EQ(Printed(-std::numeric_limits<double>::infinity()), L"-inf");
    EXPECT_EQ(Printed(std::numeric_limits<double>::quiet_NaN()), L"nan");
}

TEST(VValueNumberTest, SetAsDoubleMakesTheValueAtomicAndKeepsThePhysicalFlag) {
    VValue value;
    value.SetTextField(L"ab");
    value.IsPhysical(true);
    value.SetAsDouble(7.0);
    EXPECT_FALSE(value.IsField());
    EXPECT_STREQ(value.Get(), L"7.000000");
    EXPECT_TRUE(value.IsPhysical());
    EXPECT_DOUBLE_EQ(value.GetAsDouble(), 7.0);
}

void ExpectPrintedAsTheRuntimeDoes(double value) {
    std::array<char, 512> expected{};
    std::snprintf(expected.data(), expected.size(), "%f", value);
    const std::string digits(expected.data());
    EXPECT_EQ(Printed(value), std::wstring(digits.begin(), digits.end()));
}

TEST(VValueNumberTest, RandomNumbersArePrintedAsTheRuntimePrintsThem) {
    std::mt19937_64 random(64);
    for (int round = 0; round < 20000 && !HasFailure(); ++round) {
        const double value = std::bit_cast<double>(random());
        if (std::isfinite(value))
            ExpectPrintedAsTheRuntimeDoes(value);
    }
}

TEST(VValueNumberTest, RandomNumbersOfOrdinarySizeArePrintedAsTheRuntimePrintsThem) {
    std::mt19937_64 random(42);
    for (int round = 0; round < 100000 && !HasFailure(); ++round) {
        const auto exponent = static_cast<int>(random() % 90) - 40;
        const auto mantissa = static_cast<double>(random() >> (random() % 64));
        ExpectPrintedAsTheRuntimeDoes(std::ldexp(mantissa, exponent - 63));
    }
}

TEST(VValueNumberTest, NumbersBetweenTwoTextsArePrintedAsTheRuntimePrintsThem) {
    std::mt19937_64 random(5);
    for (int round = 0; round < 20000 && !HasFailure(); ++round) {
        const double tie =
            static_cast<double>(2 * (random() >> (32 + random() % 31)) + 1) / 128; // seven decimals, the last a 5
        ExpectPrintedAsTheRuntimeDoes(tie);
        ExpectPrintedAsTheRuntimeDoes(std::nextafter(tie, 0.0));
        ExpectPrintedAsTheRuntimeDoes(-std::nextafter(tie, 1e300));
    }
}

TEST(VValueNumberTest, WholeNumbersArePrintedAsTheRuntimePrintsThem) {
    std::mt19937_64 random(6);
    for (int round = 0; round < 20000 && !HasFailure(); ++round)
        ExpectPrintedAsTheRuntimeDoes(static_cast<double>(random() >> (random() % 64)));
    for (int exponent = 0; exponent < 64; ++exponent)
        for (const double less : {0.0, 0.5, 1.0})
            ExpectPrintedAsTheRuntimeDoes(std::ldexp(1.0, exponent) - less);
}

TEST(VValueNumberTest, TextsAreReadDigitByDigit) {
    EXPECT_EQ(Number(L"12.50"), 12.5);
    EXPECT_EQ(Number(L".5"), 0.5);
    EXPECT_EQ(Number(L"12."), 12.0);
    EXPECT_EQ(Number(L"-3"), -3.0);
    EXPECT_EQ(Number(L""), 0.0);
    EXPECT_EQ(Number(L"0.3"), 0x1.3333333333334p-2); // not the nearest double
    EXPECT_TRUE(std::signbit(Number(L"-0")));
}

TEST(VValueNumberTest, WhatIsNoPlainNumberIsReadInExponentForm) {
    const CapturedLog log;
    EXPECT_EQ(Number(L"1e+2"), 100.0);
    EXPECT_EQ(Number(L"1.5E+3"), 1500.0);
    EXPECT_EQ(Number(L"-2E+05"), -200000.0);
    EXPECT_EQ(Number(L"1e+400"), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(log.Records().empty());
}

TEST(VValueNumberTest, ATextThatIsNoNumberIsLoggedAndReadAsZero) {
    for (const wchar_t* text : {L"abc", L"1e-2", L" 3", L"3 ", L"3-", L"1.2.3", L"1,5", L"0x10", L"inf", L"nan", L"ff",
                                L"\uFF11", L"12\u212A"}) {
        const CapturedLog log;
        EXPECT_EQ(Number(text), 0.0);
        ASSERT_EQ(log.Records().size(), 1U) << text;
        EXPECT_EQ(log.Records()[0].severity, 0);
        EXPECT_EQ(log.Records()[0].group, VLogging::GetInstance().GetOrCreateGroupId("GroupDimex"));
        EXPECT_EQ(log.Records()[0].text, g_noNumber);
    }
}

TEST(VValueNumberTest, NothingIsLoggedWhereTheHostDoesNotWishIt) {
    VLogging& logging = VLogging::GetInstance();
    {
        const CapturedLog log;
        logging.SetEnabled(false);
        EXPECT_EQ(Number(L"abc"), 0.0);
        EXPECT_TRUE(log.Records().empty());
    }
    {
        const CapturedLog log;
        logging.SetGlobalLogLevel(-1);
        EXPECT_EQ(Number(L"abc"), 0.0);
        EXPECT_TRUE(log.Records().empty());
    }
    const CapturedLog log;
    logging.SetGlobalLogGroupMask(~logging.GetOrCreateGroupId("GroupDimex"));
    EXPECT_EQ(Number(L"abc"), 0.0);
    EXPECT_TRUE(log.Records().empty());
}

TEST(VValueNumberTest, TextsAreReadTheSameUnderALocaleWithADecimalComma) {
    const TestSupport::CommaLocale locale;
    const CapturedLog log;
    EXPECT_EQ(Number(L"12.5"), 12.5);
    EXPECT_EQ(Number(L"1.5e+3"), 1500.0);
    EXPECT_TRUE(log.Records().empty());
    EXPECT_EQ(Number(L"12,5"), 0.0);
    EXPECT_EQ(log.Lines(), std::vector<std::wstring>{g_noNumber});
}

TEST(VValueNumberTest, ReadsAMillionDigits) {
    const std::wstring digits(1000000, L'7');
    EXPECT_EQ(Number(digits.c_str()), std::numeric_limits<double>::infinity());
    EXPECT_EQ(Number((digits + L"e+5").c_str()), std::numeric_limits<double>::infinity());
    const CapturedLog log;
    EXPECT_EQ(Number((digits + L"e-5").c_str()), 0.0);
    EXPECT_EQ(log.Lines(), std::vector<std::wstring>{g_noNumber});
}

TEST(VValueNumberTest, WhatIsPrintedReadsBackToSixDecimals) {
    std::mt19937_64 random(2);
    for (int round = 0; round < 10000; ++round) {
        const double value = std::uniform_real_distribution<>(-1e6, 1e6)(random);
        EXPECT_NEAR(VValue(value).GetAsDouble(), value, 0.51e-6);
    }
}

} // namespace
