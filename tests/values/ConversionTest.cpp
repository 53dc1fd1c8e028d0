#include <ImportDame/LinearConversion.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/ValueTableRow.h>

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

constexpr TestSupport::FailedCheck g_noInverse{101052, "HasCompuInverseValue()", "Conversion.cpp", 57};
constexpr TestSupport::FailedCheck g_noStart{102009, "m_hasStartValue", "Range.cpp", 52};
constexpr TestSupport::FailedCheck g_noEnd{102010, "m_hasEndValue", "Range.cpp", 69};

TEST(VConversionTest, ANewConversionHasNoInverseValue) {
    VConversion conversion;
    EXPECT_FALSE(conversion.HasCompuInverseValue());
    ExpectFailedCheck(g_noInverse, [&] { conversion.GetCompuInverseValue(); });
}

TEST(VConversionTest, SettingTheInverseValueCopiesIt) {
    VConversion conversion;
    VValue value(L"5");
    conversion.SetCompuInverseValue(value);
    value.Set(L"6");
    EXPECT_TRUE(conversion.HasCompuInverseValue());
    EXPECT_STREQ(conversion.GetCompuInverseValue().Get(), L"5");
    VValue copy = conversion.GetCompuInverseValue();
    copy.Set(L"7");
    EXPECT_STREQ(conversion.GetCompuInverseValue().Get(), L"5");
    conversion.SetCompuInverseValue(VValue());
    EXPECT_TRUE(conversion.HasCompuInverseValue()); // nothing takes it away again
}

TEST(VConversionTest, ItsOperationsAreVirtual) {
    struct Fixed : VConversion {
        bool HasCompuInverseValue() const override { return false; }
    } conversion;

    VConversion& base = conversion;
    base.SetCompuInverseValue(L"5");
    ExpectFailedCheck(g_noInverse, [&] { base.GetCompuInverseValue(); });
    static_assert(std::has_virtual_destructor_v<VConversion>);
    static_assert(std::is_base_of_v<VConversion, VLinearConversion> && std::is_base_of_v<VConversion, VTextTableRow>);
    static_assert(!std::is_copy_constructible_v<VLinearConversion> && !std::is_copy_assignable_v<VLinearConversion>);
    static_assert(!std::is_copy_constructible_v<VTextTableRow> && !std::is_copy_assignable_v<VTextTableRow>);
}

TEST(VLinearConversionTest, ANewOneIsTheIdentityWithoutEnds) {
    VLinearConversion conversion;
    EXPECT_EQ(conversion.GetFactorNumerator(), 1.0);
    EXPECT_EQ(conversion.GetFactorDenominator(), 1U);
    EXPECT_EQ(conversion.GetOffset(), 0.0);
    EXPECT_FALSE(conversion.HasStartValue());
    EXPECT_FALSE(conversion.HasEndValue());
    EXPECT_FALSE(conversion.HasCompuInverseValue());
    EXPECT_TRUE(conversion.GetRange() == VRange());
}

TEST(VLinearConversionTest, StoresItsParts) {
    VLinearConversion conversion;
    conversion.SetFactorNumerator(-0.1);
    conversion.SetFactorDenominator(0);
    conversion.SetOffset(1e300);
    EXPECT_EQ(conversion.GetFactorNumerator(), -0.1);
    EXPECT_EQ(conversion.GetFactorDenominator(), 0U);
    EXPECT_EQ(conversion.GetOffset(), 1e300);
    conversion.SetFactorDenominator(0xFFFFFFFF);
    EXPECT_EQ(conversion.GetFactorDenominator(), 0xFFFFFFFFU);
}

TEST(VLinearConversionTest, KeepsItsEndsAsTextsWithSixDecimals) {
    VLinearConversion conversion;
    conversion.SetStartValue(2.5);
    EXPECT_TRUE(conversion.HasStartValue());
    EXPECT_FALSE(conversion.HasEndValue());
    EXPECT_STREQ(conversion.GetRange().GetStartValue().Get(), L"2.500000");
    EXPECT_EQ(conversion.GetStartValue(), 2.5);
    conversion.SetEndValue(0.0000004);
    EXPECT_TRUE(conversion.HasEndValue());
    EXPECT_STREQ(conversion.GetRange().GetEndValue().Get(), L"0.000000");
    EXPECT_EQ(conversion.GetEndValue(), 0.0);
}

TEST(VLinearConversionTest, AnAbsentEndIsReportedByTheRange) {
    VLinearConversion conversion;
    ExpectFailedCheck(g_noStart, [&] { conversion.GetStartValue(); });
    ExpectFailedCheck(g_noEnd, [&] { conversion.GetEndValue(); });
    conversion.SetStartValue(1.0);
    conversion.GetRange().UnsetStartValue();
    EXPECT_FALSE(conversion.HasStartValue());
    ExpectFailedCheck(g_noStart, [&] { conversion.GetStartValue(); });
}

TEST(VLinearConversionTest, ReadsEndsThatWereSetAsTexts) {
    VLinearConversion conversion;
    conversion.GetRange().SetStartValue(L"1e+3");
    conversion.GetRange().SetEndValue(L"-7");
    EXPECT_EQ(conversion.GetStartValue(), 1000.0);
    EXPECT_EQ(conversion.GetEndValue(), -7.0);
    VValue field;
    field.SetTextField(L"12");
    conversion.GetRange().SetEndValue(field);
    ExpectFailedCheck({102035, "m_quantity == atomic", "Value.cpp", 162}, [&] { conversion.GetEndValue(); });
}

TEST(VLinearConversionTest, EqualityIgnoresTheInverseValue) {
    VLinearConversion left;
    VLinearConversion right;
    left.SetCompuInverseValue(L"1");
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    right.SetCompuInverseValue(L"2");
    EXPECT_TRUE(left == right);
}

TEST(VLinearConversionTest, EqualityLooksAtFactorsOffsetAndRange) {
    const VLinearConversion plain;
    for (auto change : {+[](VLinearConversion& each) { each.SetFactorNumerator(2.0); },
                        +[](VLinearConversion& each) { each.SetFactorDenominator(2); },
                        +[](VLinearConversion& each) { each.SetOffset(2.0); },
                        +[](VLinearConversion& each) { each.SetStartValue(2.0); },
                        +[](VLinearConversion& each) { each.SetEndValue(2.0); }}) {
        VLinearConversion changed;
        change(changed);
        EXPECT_FALSE(plain == changed);
        EXPECT_TRUE(plain != changed);
        VLinearConversion same;
        change(same);
        EXPECT_TRUE(changed == same);
        EXPECT_FALSE(changed != same);
    }
    VLinearConversion noNumber;
    noNumber.SetOffset(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(noNumber == noNumber);
}

TEST(VTextTableRowTest, ANewRowIsEmpty) {
    VTextTableRow row;
    EXPECT_STREQ(row.GetMappedValue(), L"");
    EXPECT_STREQ(row.GetAdditionalInfo(), L"");
    EXPECT_TRUE(row.GetRange() == VRange());
    EXPECT_FALSE(row.HasCompuInverseValue());
    ExpectFailedCheck(g_noStart, [&] { row.GetStartValue(); });
    ExpectFailedCheck(g_noEnd, [&] { row.GetEndValue(); });
}

TEST(VTextTableRowTest, ItsEndsAreThoseOfItsRange) {
    VTextTableRow row;
    VValue start(L"1");
    VValue end(L"2");
    row.SetStartValue(start);
    row.SetEndValue(end);
    start.Set(L"9");
    EXPECT_STREQ(row.GetStartValue().Get(), L"1");
    EXPECT_STREQ(row.GetEndValue().Get(), L"2");
    EXPECT_STREQ(row.GetRange().GetStartValue().Get(), L"1");
    row.GetRange().UnsetEndValue();
    ExpectFailedCheck(g_noEnd, [&] { row.GetEndValue(); });
    static_assert(std::is_invocable_v<decltype(&VTextTableRow::SetStartValue), VTextTableRow&, VValue&>);
    static_assert(!std::is_invocable_v<decltype(&VTextTableRow::SetStartValue), VTextTableRow&, const VValue&>);
}

TEST(VTextTableRowTest, SettingATextKeepsItsIdentifier) {
    VTextTableRow row;
    row.MappedValue().SetTextId(L"M");
    row.AdditionalInfo().SetTextId(L"A");
    row.SetMappedValue(L"on");
    row.SetAdditionalInfo(L"more");
    EXPECT_STREQ(row.GetMappedValue(), L"on");
    EXPECT_STREQ(row.MappedValue().GetTextId(), L"M");
    EXPECT_STREQ(row.GetAdditionalInfo(), L"more");
    EXPECT_STREQ(row.AdditionalInfo().GetTextId(), L"A");
    row.SetMappedValue(row.GetAdditionalInfo() + 2);
    EXPECT_STREQ(row.GetMappedValue(), L"re");
}

TEST(VTextTableRowTest, EqualityIgnoresTheInverseValue) {
    VTextTableRow left;
    VTextTableRow right;
    left.SetCompuInverseValue(L"1");
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(VTextTableRowTest, EqualityLooksAtTextsIdentifiersAndRange) {
    const VTextTableRow plain;
    for (auto change : {+[](VTextTableRow& each) { each.SetMappedValue(L"on"); },
                        +[](VTextTableRow& each) { each.MappedValue().SetTextId(L"on"); },
                        +[](VTextTableRow& each) { each.SetAdditionalInfo(L"on"); },
                        +[](VTextTableRow& each) { each.AdditionalInfo().SetTextId(L"on"); },
                        +[](VTextTableRow& each) { each.GetRange().SetStartValue(1.0); },
                        +[](VTextTableRow& each) { each.GetRange().SetEndValue(1.0); }}) {
        VTextTableRow changed;
        change(changed);
        EXPECT_FALSE(plain == changed);
        EXPECT_TRUE(plain != changed);
        VTextTableRow same;
        change(same);
        EXPECT_TRUE(changed == same);
        EXPECT_FALSE(changed != same);
    }
}

TEST(VValueTableRowTest, ANewRowMapsZeroToZero) {
    const VValueTableRow row;
    EXPECT_EQ(row.GetCodedValue(), 0.0);
    EXPECT_EQ(row.GetMappedValue(), 0.0);
    static_assert(std::has_virtual_destructor_v<VValueTableRow>);
    static_assert(!std::is_copy_constructible_v<VValueTableRow>);
}

TEST(VValueTableRowTest, TheTwoNumbersAreNotExchangeable) {
    VValueTableRow left;
    left.SetCodedValue(1.0);
    left.SetMappedValue(2.0);
    EXPECT_EQ(left.GetCodedValue(), 1.0);
    EXPECT_EQ(left.GetMappedValue(), 2.0);
    VValueTableRow right;
    right.SetCodedValue(2.0);
    right.SetMappedValue(1.0);
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    right.SetCodedValue(1.0);
    EXPECT_FALSE(left == right);
    right.SetMappedValue(2.0);
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(VValueTableRowTest, ARowWithANotANumberEqualsNone) {
    for (auto set : {&VValueTableRow::SetCodedValue, &VValueTableRow::SetMappedValue}) {
        VValueTableRow row;
        (row.*set)(std::numeric_limits<double>::quiet_NaN());
        EXPECT_FALSE(row == row);
        EXPECT_TRUE(row != row);
    }
}

} // namespace
