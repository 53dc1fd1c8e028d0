#include <ImportDame/Value.h>

#include "support/CapturedLog.h"
#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ImportDame;

namespace {

VValue Field(const wchar_t* text) {
    VValue value;
    value.SetNonTextField(text);
    return value;
}

VValue Physical(const wchar_t* text) {
    VValue value(text);
    value.IsPhysical(true);
    return value;
}

/// Expects the three answers for left and right; `!=` is always the negation of `==`.
void Expect(const VValue& left, const VValue& right, bool isEqual, bool isGreaterOrEqual, bool isLessOrEqual) {
    EXPECT_EQ(left == right, isEqual);
    EXPECT_EQ(left != right, !isEqual);
    EXPECT_EQ(left >= right, isGreaterOrEqual);
    EXPECT_EQ(left <= right, isLessOrEqual);
}

TEST(VValueComparisonTest, AtomicValuesAreEqualCharacterForCharacter) {
    Expect(L"1", L"1", true, true, true);
    Expect(L"1.0", L"1", false, true, false);
    Expect(L"1", L"1.0", false, true, false);
    Expect(L"", L"", true, true, true);
    Expect(L"0", L"", false, true, false);
    const TestSupport::CapturedLog log;
    EXPECT_FALSE(VValue(L"a") == VValue(L"A"));
    EXPECT_FALSE(VValue(L"a") == VValue(L"ab"));
    EXPECT_TRUE(log.Records().empty()); // texts, not numbers
}

TEST(VValueComparisonTest, AtomicValuesAreOrderedAsNumbers) {
    Expect(L"2", L"10", false, false, true);
    Expect(L"10", L"2", false, true, false);
    Expect(L"-1", L"1", false, false, true);
    Expect(L"1e+2", L"99", false, true, false);
    Expect(L"0.5", L".50", false, true, false);
}

TEST(VValueComparisonTest, ATextThatIsNoNumberCountsAsZeroAndIsLogged) {
    const TestSupport::CapturedLog log;
    EXPECT_TRUE(VValue(L"x") >= VValue(L"0"));
    EXPECT_EQ(log.Records().size(), 1U);
    EXPECT_TRUE(VValue(L"x") >= VValue(L"y"));
    EXPECT_EQ(log.Records().size(), 3U);
    EXPECT_FALSE(VValue(L"x") <= VValue(L"y"));
    EXPECT_TRUE(VValue(L"x") <= VValue(L"x"));
    EXPECT_FALSE(VValue(L"x") >= VValue(L"1"));
    EXPECT_TRUE(VValue(L"x") <= VValue(L"1"));
}

TEST(VValueComparisonTest, AValueThatIsNotANumberIsNeverGreaterOrEqual) {
    std::wstring huge(L"1");
    huge.append(399, L'0'); // infinity times 0 on the way
    const VValue noNumber(huge.c_str());
    Expect(noNumber, VValue(L"1"), false, false, true);
    Expect(noNumber, noNumber, true, false, true);
}

TEST(VValueComparisonTest, ThePhysicalFlagCountsForEqualityOnly) {
    Expect(Physical(L"1"), L"1", false, true, false);
    Expect(Physical(L"1"), Physical(L"1"), true, true, true);
    VValue physicalField = Field(L"1 2");
    physicalField.IsPhysical(true);
    Expect(physicalField, Field(L"1 2"), false, true, false);
    Expect(physicalField, Field(L"1 3"), false, false, true);
}

TEST(VValueComparisonTest, AFieldAndAnAtomicValueCompareFalse) {
    for (const wchar_t* text : {L"", L"1"}) {
        Expect(Field(text), VValue(text), false, false, false);
        Expect(VValue(text), Field(text), false, false, false);
    }
}

TEST(VValueComparisonTest, FieldsAreEqualElementByElement) {
    Expect(Field(L""), Field(L""), true, true, true);
    Expect(Field(L"1 2"), Field(L"1  2 "), true, true, true);
    Expect(Field(L"1 2"), Field(L"1 2.0"), false, true, false);
    Expect(Field(L"1 2"), Field(L"2 1"), false, false, true);
    Expect(Field(L"a"), Field(L"A"), false, true, false);
}

TEST(VValueComparisonTest, ALongerFieldIsGreater) {
    Expect(Field(L"1 1 1"), Field(L"9 9"), false, true, false);
    Expect(Field(L"9 9"), Field(L"1 1 1"), false, false, true);
    Expect(Field(L"-5"), Field(L""), false, true, false);
    Expect(Field(L""), Field(L"-5"), false, false, true);
}

TEST(VValueComparisonTest, FieldsOfOneSizeCompareByTheFirstElementsThatDiffer) {
    Expect(Field(L"1 5 0"), Field(L"1 4 9"), false, true, false);
    Expect(Field(L"1 4 9"), Field(L"1 5 0"), false, false, true);
    Expect(Field(L"10 1"), Field(L"9 2"), false, true, false);
    VValue left;
    left.AddFieldElement(L"9");
    left.AddFieldElement(L"1"); // 1 9
    Expect(left, Field(L"2 0"), false, false, true);
}

TEST(VValueComparisonTest, ElementsOfOneIntegerAreEachGreaterOrEqual) {
    for (const auto& [one, other] : {std::pair{L"x", L"y"},
                                     {L"0", L"x"},
                                     {L"7", L"07"},
                                     {L"7", L"7.9"},
                                     {L"5a", L"5b"},
                                     {L"+3", L"3"},
                                     {L"-", L"+"},
                                     {L"--5", L"0"},
                                     {L"+-5", L"0"},
                                     {L"0", L"-0"},
                                     {L"1e+3", L"1"},
                                     {L"0x1F", L"0"},
                                     {L"\uFF15", L"0"},
                                     {L"\u0665", L"0"}}) {
        Expect(Field(one), Field(other), false, true, false);
        Expect(Field(other), Field(one), false, true, false);
    }
}

TEST(VValueComparisonTest, AnElementIsReadUpToItsFirstOtherCharacter) {
    Expect(Field(L"12abc"), Field(L"11"), false, true, false);
    Expect(Field(L"11"), Field(L"12abc"), false, false, true);
    Expect(Field(L"-12"), Field(L"-11x"), false, false, true);
    Expect(Field(L"x99"), Field(L"1"), false, false, true);
    Expect(Field(L"3.9"), Field(L"4"), false, false, true);
}

VValue Element(const wchar_t* text) {
    VValue value;
    value.AddFieldElement(text);
    return value;
}

TEST(VValueComparisonTest, AnElementMayStartWithWhiteSpace) {
    for (const wchar_t* text : {L" 5", L"\t5", L"\n5", L"\v5", L"\f5", L"\r5", L" \t\n\v\f\r +5"}) {
        Expect(Element(text), Element(L"4"), false, true, false);
        Expect(Element(text), Element(L"6"), false, false, true);
    }
    for (const wchar_t* text : {L"\u00A05", L"\u30005", L"- 5", L"+ 5", L"\b5"}) {
        Expect(Element(text), Element(L"0"), false, true, false);
        Expect(Element(text), Element(L"1"), false, false, true);
    }
    Expect(Element(L" "), Element(L"0"), false, true, false);
    Expect(Element(L""), Element(L"0"), false, true, false);
    Expect(Element(L""), Element(L"-1"), false, true, false);
}

TEST(VValueComparisonTest, ElementsBeyond32BitCountAsTheLargestOrSmallestInteger) {
    Expect(Field(L"2147483647"), Field(L"2147483646"), false, true, false);
    Expect(Field(L"2147483646"), Field(L"2147483647"), false, false, true);
    for (const wchar_t* text : {L"2147483648", L"4294967296", L"9223372036854775808", L"99999999999999999999999999"}) {
        Expect(Field(L"2147483647"), Field(text), false, true, false);
        Expect(Field(text), Field(L"2147483647"), false, true, false);
        Expect(Field(L"2147483646"), Field(text), false, false, true);
    }
    for (const wchar_t* text : {L"-2147483649", L"-4294967296", L"-9223372036854775809", L"-99999999999999999999999"}) {
        Expect(Field(L"-2147483648"), Field(text), false, true, false);
        Expect(Field(text), Field(L"-2147483648"), false, true, false);
        Expect(Field(text), Field(L"-2147483647"), false, false, true);
    }
}

TEST(VValueComparisonTest, ElementsOfAMillionDigitsCompare) {
    const std::wstring digits(1000000, L'9');
    Expect(Element(digits.c_str()), Element((digits + L"1").c_str()), false, true, false);
    Expect(Element((L"-" + digits).c_str()), Element(L"-1"), false, false, true);
}

} // namespace
