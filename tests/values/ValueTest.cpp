#include <ImportDame/Value.h>

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

std::vector<std::wstring> Elements(VValue& value) {
    std::vector<std::wstring> elements;
    for (unsigned int index = 0; index < value.GetFieldSize(); ++index)
        elements.emplace_back(value.GetElement(index));
    return elements;
}

std::vector<std::wstring> Split(const wchar_t* text) {
    VValue value;
    value.SetNonTextField(text);
    return Elements(value);
}

using Texts = std::vector<std::wstring>;

TEST(VValueTest, ANewValueIsTheEmptyTextAndNotPhysical) {
    VValue value;
    EXPECT_STREQ(value.Get(), L"");
    EXPECT_FALSE(value.IsField());
    EXPECT_FALSE(value.IsPhysical());
}

TEST(VValueTest, AValueOfATextHoldsItAsItIs) {
    VValue value(L" 01.50 ");
    EXPECT_STREQ(value.Get(), L" 01.50 ");
    EXPECT_FALSE(value.IsField());
    EXPECT_FALSE(value.IsPhysical());
}

TEST(VValueTest, AValueOfANumberHoldsItWithSixDecimals) {
    EXPECT_STREQ(VValue(1.5).Get(), L"1.500000");
    EXPECT_STREQ(VValue(-0.25).Get(), L"-0.250000");
    EXPECT_STREQ(VValue(2.0).Get(), L"2.000000");
    EXPECT_FALSE(VValue(2.0).IsField());
    EXPECT_FALSE(VValue(2.0).IsPhysical());
}

TEST(VValueTest, TheQuantitiesKeepTheirNumbers) {
    static_assert(VValue::atomic == 0);
    static_assert(VValue::field == 1);
    static_assert(sizeof(VValue::Quantity) == 4);
    static_assert(std::has_virtual_destructor_v<VValue>);
    static_assert(std::is_copy_constructible_v<VValue> && std::is_copy_assignable_v<VValue>);
}

TEST(VValueTest, TheSeparatorIsOneBlank) {
    EXPECT_EQ(VValue::c_separator, L" ");
}

TEST(VValueTest, SetMakesTheValueAtomicAndKeepsThePhysicalFlag) {
    VValue value;
    value.IsPhysical(true);
    value.AddFieldElement(L"a");
    value.Set(L"5");
    EXPECT_FALSE(value.IsField());
    EXPECT_STREQ(value.Get(), L"5");
    EXPECT_TRUE(value.IsPhysical());
    value.Set(L"");
    EXPECT_STREQ(value.Get(), L"");
}

TEST(VValueTest, ThePhysicalFlagIsSetAndReset) {
    VValue value(L"1");
    value.IsPhysical(true);
    EXPECT_TRUE(value.IsPhysical());
    value.IsPhysical(false);
    EXPECT_FALSE(value.IsPhysical());
}

TEST(VValueTest, TheTwoRepresentationsNeverClearEachOther) {
    VValue value(L"text");
    value.AddFieldElement(L"old");
    value.SetAsDouble(1.0);
    value.AddFieldElement(L"new"); // the old element is still there
    EXPECT_EQ(Elements(value), (Texts{L"new", L"old"}));
    value.Set(L"text");
    VValue other(L"text");
    EXPECT_TRUE(value == other); // what is not in force does not count
    other.SetTextField(L"");
    VValue third(L"other");
    third.SetTextField(L"");
    EXPECT_TRUE(other == third);
}

TEST(VValueTest, AddFieldElementInsertsAtTheFront) {
    VValue value;
    value.AddFieldElement(L"a");
    value.AddFieldElement(L"b");
    value.AddFieldElement(L"c");
    EXPECT_TRUE(value.IsField());
    EXPECT_EQ(value.GetFieldSize(), 3U);
    EXPECT_STREQ(value.GetElement(0), L"c");
    EXPECT_STREQ(value.GetElement(1), L"b");
    EXPECT_STREQ(value.GetElement(2), L"a");
}

TEST(VValueTest, AddFieldElementGoesInFrontOfASplitText) {
    VValue value;
    value.SetNonTextField(L"1 2");
    value.AddFieldElement(L"0");
    value.AddFieldElement(L"");
    EXPECT_EQ(Elements(value), (Texts{L"", L"0", L"1", L"2"}));
}

TEST(VValueTest, SetTextFieldMakesEveryCharacterAnElement) {
    VValue value;
    value.SetTextField(L"AB");
    EXPECT_EQ(Elements(value), (Texts{L"A", L"B"}));
    value.SetTextField(L" x ");
    EXPECT_EQ(Elements(value), (Texts{L" ", L"x", L" "}));
    value.SetTextField(L"");
    EXPECT_TRUE(value.IsField());
    EXPECT_TRUE(value.IsFieldEmpty());
}

TEST(VValueTest, SetTextFieldTakesOneUnitOfTheTextForEachElement) {
    const std::wstring text = L"\U0001F600";
    VValue value;
    value.SetTextField(text.c_str());
    ASSERT_EQ(value.GetFieldSize(), text.size()); // two where wchar_t has 16 bits
    for (unsigned int index = 0; index < text.size(); ++index)
        EXPECT_EQ(value.GetElement(index), text.substr(index, 1));
}

TEST(VValueTest, SetNonTextFieldSplitsAtBlanks) {
    EXPECT_EQ(Split(L"12 34  56"), (Texts{L"12", L"34", L"56"}));
    EXPECT_EQ(Split(L"1  2"), (Texts{L"1", L"2"}));
    EXPECT_EQ(Split(L"7"), (Texts{L"7"}));
    EXPECT_EQ(Split(L"a     b"), (Texts{L"a", L"b"}));
}

TEST(VValueTest, SetNonTextFieldIgnoresBlanksAtTheEndOnly) {
    EXPECT_EQ(Split(L"7 "), (Texts{L"7"}));
    EXPECT_EQ(Split(L"7   "), (Texts{L"7"}));
    EXPECT_EQ(Split(L" 7"), (Texts{L"", L"7"}));
    EXPECT_EQ(Split(L"   7 8 "), (Texts{L"", L"7", L"8"}));
    EXPECT_EQ(Split(L" "), (Texts{L""}));
    EXPECT_EQ(Split(L"    "), (Texts{L""}));
    EXPECT_EQ(Split(L""), (Texts{}));
}

TEST(VValueTest, SetNonTextFieldKnowsNoOtherSeparator) {
    EXPECT_EQ(Split(L"1\t2\n3\u00A04\u30005"), (Texts{L"1\t2\n3\u00A04\u30005"}));
}

TEST(VValueTest, SettingAFieldReplacesTheOldElements) {
    VValue value;
    value.AddFieldElement(L"old");
    value.SetTextField(L"xy");
    EXPECT_EQ(Elements(value), (Texts{L"x", L"y"}));
    value.SetNonTextField(L"1");
    EXPECT_EQ(Elements(value), (Texts{L"1"}));
    value.SetNonTextField(L"");
    EXPECT_TRUE(value.IsFieldEmpty());
    EXPECT_EQ(value.GetFieldSize(), 0U);
}

TEST(VValueTest, ClearFieldLeavesAnEmptyField) {
    VValue value;
    value.SetNonTextField(L"1 2 3");
    EXPECT_FALSE(value.IsFieldEmpty());
    value.ClearField();
    EXPECT_TRUE(value.IsField());
    EXPECT_TRUE(value.IsFieldEmpty());
    EXPECT_EQ(value.GetFieldSize(), 0U);
}

TEST(VValueTest, TakesTextsOfItsOwn) {
    VValue value(L"abc def");
    value.Set(value.Get() + 4);
    EXPECT_STREQ(value.Get(), L"def");
    value.Set(value.Get());
    EXPECT_STREQ(value.Get(), L"def");
    value.SetTextField(value.Get());
    EXPECT_EQ(Elements(value), (Texts{L"d", L"e", L"f"}));
    value.SetNonTextField(L"one two");
    value.AddFieldElement(value.GetElement(1));
    EXPECT_EQ(Elements(value), (Texts{L"two", L"one", L"two"}));
    value.SetTextField(value.GetElement(1));
    EXPECT_EQ(Elements(value), (Texts{L"o", L"n", L"e"}));
    value.SetNonTextField(value.GetElement(2));
    EXPECT_EQ(Elements(value), (Texts{L"e"}));
}

TEST(VValueTest, ACopyTakesBothRepresentationsAndTheFlag) {
    VValue value(L"text");
    value.AddFieldElement(L"b");
    value.AddFieldElement(L"a");
    value.IsPhysical(true);
    VValue copy(value);
    VValue assigned(L"other");
    EXPECT_EQ(&(assigned = value), &assigned);
    for (VValue* each : {&copy, &assigned}) {
        EXPECT_TRUE(each->IsField());
        EXPECT_TRUE(each->IsPhysical());
        EXPECT_EQ(Elements(*each), (Texts{L"a", L"b"}));
        each->AddFieldElement(L"c"); // independent of the source
    }
    EXPECT_EQ(value.GetFieldSize(), 2U);
    value.Set(L"text");
    VValue atomicCopy(value);
    EXPECT_STREQ(atomicCopy.Get(), L"text");
    atomicCopy.AddFieldElement(L"c");
    EXPECT_EQ(Elements(atomicCopy), (Texts{L"c", L"a", L"b"}));
}

TEST(VValueTest, AssigningAValueToItselfDoesNothing) {
    VValue value(L"text");
    VValue& same = value;
    value = same;
    EXPECT_STREQ(value.Get(), L"text");
    value.SetNonTextField(L"1 2");
    const wchar_t* const element = value.GetElement(0);
    value = same;
    EXPECT_EQ(value.GetElement(0), element);
    EXPECT_EQ(Elements(value), (Texts{L"1", L"2"}));
}

TEST(VValueTest, AnAtomicValueRefusesTheOperationsOfAField) {
    VValue value(L"5");
    value.AddFieldElement(L"a");
    value.Set(L"5");
    const auto refuse = [](int code, int line, auto operation) {
        ExpectFailedCheck({code, "m_quantity == field", "Value.cpp", line}, operation);
    };
    refuse(102036, 179, [&] { value.GetElement(0); });
    refuse(102037, 187, [&] { value.GetFieldSize(); });
    refuse(102038, 193, [&] { value.IsFieldEmpty(); });
    refuse(102039, 199, [&] { value.ClearField(); });
    EXPECT_STREQ(value.Get(), L"5");
    value.AddFieldElement(L"b");
    EXPECT_EQ(Elements(value), (Texts{L"b", L"a"}));
}

TEST(VValueTest, AFieldRefusesTheOperationsOfAnAtomicValue) {
    VValue value(L"5");
    value.SetNonTextField(L"1 2");
    ExpectFailedCheck({102034, "m_quantity == atomic", "Value.cpp", 156}, [&] { value.Get(); });
    ExpectFailedCheck({102035, "m_quantity == atomic", "Value.cpp", 162}, [&] { value.GetAsDouble(); });
    EXPECT_EQ(Elements(value), (Texts{L"1", L"2"}));
}

/// Reaches the private quantity: naming a private member as a template argument of an explicit instantiation is
/// allowed.
template <auto Member>
struct Reach {
    friend VValue::Quantity& QuantityOf(VValue& value) { return value.*Member; }
};

VValue::Quantity& QuantityOf(VValue& value);

template struct Reach<&VValue::m_quantity>;

TEST(VValueTest, ACorruptQuantityIsReported) {
    VValue value(L"5");
    QuantityOf(value) = static_cast<VValue::Quantity>(2);
    ExpectFailedCheck({102040, "(m_quantity == VValue::atomic) || (m_quantity == VValue::field)", "Value.cpp", 213},
                      [&] { static_cast<void>(value.IsField()); });
    value.Set(L"6");
    EXPECT_FALSE(value.IsField());
}

TEST(VValueTest, AddsAHundredThousandElementsAtTheFront) {
    VValue value;
    for (int i = 0; i < 100000; ++i)
        value.AddFieldElement(std::to_wstring(i).c_str());
    EXPECT_EQ(value.GetFieldSize(), 100000U);
    EXPECT_STREQ(value.GetElement(0), L"99999");
    EXPECT_STREQ(value.GetElement(99999), L"0");
}

TEST(VValueTest, HoldsAMillionCharacters) {
    const std::wstring text(1000000, L'x');
    VValue value(text.c_str());
    EXPECT_EQ(value.Get(), text);
    value.SetTextField(text.c_str());
    EXPECT_EQ(value.GetFieldSize(), 1000000U);
    EXPECT_STREQ(value.GetElement(999999), L"x");
    value.SetNonTextField((text + std::wstring(1000000, L' ') + L"y").c_str());
    EXPECT_EQ(Elements(value), (Texts{text, L"y"}));
    std::wstring numbers;
    for (int i = 0; i < 500000; ++i)
        numbers += L"1 ";
    value.SetNonTextField(numbers.c_str());
    EXPECT_EQ(value.GetFieldSize(), 500000U);
}

} // namespace
