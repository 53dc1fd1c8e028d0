#include "support/FailingAllocation.h"

#include <ImportDame/Function.h>
#include <ImportDame/FunctionCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearConversionCollection.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/TextTableRowCollection.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>
#include <ImportDame/Value.h>
#include <ImportDame/ValueUtil.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

using namespace ImportDame;
using TestSupport::ForEachFailingAllocation;

namespace {

/// Atomic, with two elements besides.
std::unique_ptr<VValue> MakeAtomic() {
    auto value = std::make_unique<VValue>();
    value->SetNonTextField(L"first second");
    value->Set(L"the text");
    value->IsPhysical(true);
    return value;
}

void ExpectAtomic(VValue& value) {
    EXPECT_FALSE(value.IsField());
    EXPECT_TRUE(value.IsPhysical());
    EXPECT_STREQ(value.Get(), L"the text");
    value.AddFieldElement(L"x");
    ASSERT_EQ(value.GetFieldSize(), 3U);
    EXPECT_STREQ(value.GetElement(1), L"first");
    EXPECT_STREQ(value.GetElement(2), L"second");
    value.ClearField();
}

template <class Operation>
std::size_t Survived(Operation operation) {
    return ForEachFailingAllocation(MakeAtomic, operation, ExpectAtomic);
}

TEST(ValuesOutOfMemoryTest, SettingAValueKeepsTheOldOneWhole) {
    VValue source;
    source.SetNonTextField(L"1 2 3");
    source.Set(L"new");
    EXPECT_GE(Survived([](VValue& value) { value.Set(L"new"); }), 2U);
    EXPECT_GE(Survived([](VValue& value) { value.SetAsDouble(1.0); }), 2U);
    EXPECT_GE(Survived([](VValue& value) { value.AddFieldElement(L"new"); }), 2U);
    EXPECT_GE(Survived([](VValue& value) { value.SetTextField(L"abcdef"); }), 14U);
    EXPECT_GE(Survived([](VValue& value) { value.SetNonTextField(L" a bc d ef g"); }), 12U);
    EXPECT_GE(Survived([&](VValue& value) { value = source; }), 10U);
    EXPECT_GE(Survived([](VValue& value) { const VValue copy(value); }), 8U);
}

TEST(ValuesOutOfMemoryTest, ReadingALongNumberLeaksNothing) {
    const std::wstring digits = std::wstring(1000, L'1') + L"e+1";
    const auto survived =
        ForEachFailingAllocation([] { return std::make_unique<int>(0); },
                                 [&](int&) { NValueUtil::StrToDbl(digits.c_str(), 10, nullptr); }, [](int&) {});
    EXPECT_GE(survived, 2U);
}

TEST(ValuesOutOfMemoryTest, ARangeKeepsItsOldEnds) {
    VRange source;
    source.SetStartValue(L"new start");
    source.SetEndValue(L"new end");
    const auto prepare = [] {
        auto range = std::make_unique<VInvalidRange>();
        range->SetStartValue(L"old");
        range->SetAssignedText(L"old text");
        return range;
    };
    const auto verify = [](VInvalidRange& range) {
        EXPECT_STREQ(range.GetStartValue().Get(), L"old");
        EXPECT_FALSE(range.HasEndValue());
        EXPECT_STREQ(range.GetAssignedText(), L"old text");
        VRange expected;
        expected.SetStartValue(L"old");
        EXPECT_TRUE(static_cast<VRange&>(range) == expected);
    };
    const auto survived = [&](auto operation) { return ForEachFailingAllocation(prepare, operation, verify); };
    const VValue value(L"new");
    EXPECT_GE(survived([&](VInvalidRange& range) { range.SetStartValue(value); }), 2U);
    EXPECT_GE(survived([&](VInvalidRange& range) { range.SetEndValue(value); }), 2U);
    EXPECT_EQ(survived([given = value](VInvalidRange& range) mutable { range.SetStartValue(std::move(given)); }), 0U);
    EXPECT_GE(survived([](VInvalidRange& range) { range.SetStartValue(L"new"); }), 2U);
    EXPECT_GE(survived([](VInvalidRange& range) { range.SetEndValue(L"new"); }), 2U);
    EXPECT_GE(survived([](VInvalidRange& range) { range.SetRange(L"new", L"newer"); }), 8U);
    EXPECT_GE(survived([&](VInvalidRange& range) { static_cast<VRange&>(range) = source; }), 4U);
    EXPECT_GE(survived([](VInvalidRange& range) { const VRange copy(range); }), 2U);
    EXPECT_GE(survived([](VInvalidRange& range) { range.GetStartValue(); }), 2U);
    EXPECT_GE(survived([](VInvalidRange& range) { range.SetAssignedText(L"new"); }), 2U);
}

TEST(ValuesOutOfMemoryTest, AConversionKeepsItsOldParts) {
    const VValue inverse(L"inverse");
    const auto prepare = [] { return std::make_unique<VLinearConversion>(); };
    const auto verify = [](VLinearConversion& conversion) {
        EXPECT_FALSE(conversion.HasCompuInverseValue());
        EXPECT_TRUE(conversion == VLinearConversion());
    };
    const auto survived = [&](auto operation) { return ForEachFailingAllocation(prepare, operation, verify); };
    EXPECT_GE(survived([&](VLinearConversion& each) { each.SetCompuInverseValue(inverse); }), 2U);
    EXPECT_GE(survived([](VLinearConversion& each) { each.SetStartValue(1.0); }), 2U);
    EXPECT_GE(survived([](VLinearConversion& each) { each.SetEndValue(1.0); }), 2U);
}

TEST(ValuesOutOfMemoryTest, ARowAndAFunctionKeepTheirOldTexts) {
    const auto row = ForEachFailingAllocation([] { return std::make_unique<VTextTableRow>(); },
                                              [](VTextTableRow& each) { each.SetMappedValue(L"new"); },
                                              [](VTextTableRow& each) { EXPECT_TRUE(each == VTextTableRow()); });
    EXPECT_GE(row, 2U);
    const auto prepare = [] {
        auto function = std::make_unique<VFunction>();
        function->SetVersion(L"old");
        function->SourceFile().SetPath(L"old");
        return function;
    };
    const auto verify = [](VFunction& function) {
        EXPECT_STREQ(function.GetVersion(), L"old");
        EXPECT_STREQ(function.SourceFile().GetPath(), L"old");
        EXPECT_TRUE(function.AdditionalFileCollection().IsEmpty());
    };
    VFile source;
    source.SetPath(L"new");
    const auto survived = [&](auto operation) { return ForEachFailingAllocation(prepare, operation, verify); };
    EXPECT_GE(survived([](VFunction& each) { each.SetVersion(L"new"); }), 2U);
    EXPECT_GE(survived([](VFunction& each) { each.SourceFile().SetPath(L"new"); }), 2U);
    EXPECT_GE(survived([&](VFunction& each) { each.SourceFile() = source; }), 2U);
    EXPECT_GE(survived([](VFunction& each) { each.AdditionalFileCollection().AddNewAdditionalFile(); }), 4U);
}

TEST(ValuesOutOfMemoryTest, AddingAnElementLeavesTheCollectionAsItWas) {
    struct Collections {
        VImportDoc document;
        VUnitCollection units{document};
        VLinearConversionCollection conversions;
        VTextTableRowCollection rows;
        VFunctionCollection functions;
    };

    const auto prepare = [] {
        auto collections = std::make_unique<Collections>();
        for (int i = 0; i < 2; ++i) { // fills the first storage of the rows
            collections->units.AddNewUnit();
            collections->conversions.AddNewLinearConversion();
            collections->rows.AddNewTextTableRow();
            collections->functions.AddNewFunction();
        }
        return collections;
    };
    const auto verify = [](Collections& collections) {
        EXPECT_EQ(collections.units.Count(), 2U);
        EXPECT_EQ(collections.conversions.Count(), 2U);
        EXPECT_EQ(collections.rows.Count(), 2U);
        EXPECT_EQ(collections.functions.Count(), 2U);
    };
    const auto survived = [&](auto operation) { return ForEachFailingAllocation(prepare, operation, verify); };
    EXPECT_GE(survived([](Collections& each) { each.units.AddNewUnit(); }), 4U);
    EXPECT_GE(survived([](Collections& each) { each.conversions.AddNewLinearConversion(); }), 4U);
    EXPECT_GE(survived([](Collections& each) { each.rows.AddNewTextTableRow(); }), 4U);
    EXPECT_GE(survived([](Collections& each) { each.functions.AddNewFunction(); }), 4U);
    EXPECT_GE(survived([](Collections& each) { each.units.Begin()->SetDisplayName(L"new"); }), 2U);
    EXPECT_GE(survived([](Collections& each) { const VUnit unit(each.document, L"new"); }), 2U);
}

} // namespace
