#include <ImportDame/InvalidRange.h>
#include <ImportDame/Range.h>

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

constexpr TestSupport::FailedCheck g_noStart{102009, "m_hasStartValue", "Range.cpp", 52};
constexpr TestSupport::FailedCheck g_noEnd{102010, "m_hasEndValue", "Range.cpp", 69};

TEST(VRangeTest, ANewRangeHasNeitherEnd) {
    VRange range;
    EXPECT_FALSE(range.HasStartValue());
    EXPECT_FALSE(range.HasEndValue());
    ExpectFailedCheck(g_noStart, [&] { range.GetStartValue(); });
    ExpectFailedCheck(g_noEnd, [&] { range.GetEndValue(); });
}

TEST(VRangeTest, TheEndsAreSetIndependently) {
    VRange range;
    range.SetStartValue(L"1");
    EXPECT_TRUE(range.HasStartValue());
    EXPECT_FALSE(range.HasEndValue());
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
    ExpectFailedCheck(g_noEnd, [&] { range.GetEndValue(); });
    range.SetEndValue(2.0);
    EXPECT_TRUE(range.HasEndValue());
    EXPECT_STREQ(range.GetEndValue().Get(), L"2.000000");
    range.UnsetStartValue();
    EXPECT_FALSE(range.HasStartValue());
    EXPECT_TRUE(range.HasEndValue());
    ExpectFailedCheck(g_noStart, [&] { range.GetStartValue(); });
    range.UnsetEndValue();
    EXPECT_FALSE(range.HasEndValue());
}

TEST(VRangeTest, AValueThatIsNotGivenAwayStaysAsItIs) {
    VRange range;
    VValue value(L"1");
    range.SetStartValue(value);
    range.SetEndValue(value);
    EXPECT_STREQ(value.Get(), L"1");
    value.Set(L"2");
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
    EXPECT_STREQ(range.GetEndValue().Get(), L"1");
}

TEST(VRangeTest, AValueThatIsGivenAwayKeepsAllOfIt) {
    VRange range;
    range.SetStartValue(L"old");
    VValue start(L"1");
    start.IsPhysical(true);
    VValue end(L"unused");
    end.AddFieldElement(L"2");
    const VValue expectedStart(start);
    const VValue expectedEnd(end);
    range.SetStartValue(std::move(start));
    range.SetEndValue(std::move(end));
    EXPECT_TRUE(range.GetStartValue() == expectedStart);
    EXPECT_TRUE(range.GetEndValue() == expectedEnd);
    EXPECT_STREQ(range.GetEndValue().GetElement(0), L"2");
    start = VValue(L"3"); // what is left of it can be used
    EXPECT_STREQ(start.Get(), L"3");
    EXPECT_TRUE(range.GetStartValue() == expectedStart);
}

TEST(VRangeTest, TheGettersHandOutCopies) {
    VRange range;
    range.SetStartValue(L"1");
    VValue copy = range.GetStartValue();
    copy.Set(L"2");
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
}

TEST(VRangeTest, KeepsFieldsAndThePhysicalFlag) {
    VValue value;
    value.SetNonTextField(L"1 2");
    value.IsPhysical(true);
    VRange range;
    range.SetEndValue(value);
    EXPECT_TRUE(range.GetEndValue() == value);
    EXPECT_TRUE(range.GetEndValue().IsPhysical());
    EXPECT_EQ(range.GetEndValue().GetFieldSize(), 2U);
}

TEST(VRangeTest, EqualityLooksAtFlagsAndValues) {
    VRange left;
    VRange right;
    const auto isEqual = [&] {
        EXPECT_NE(left == right, left != right);
        EXPECT_EQ(left == right, right == left);
        return left == right;
    };
    EXPECT_TRUE(isEqual());
    left.SetStartValue(L"1");
    EXPECT_FALSE(isEqual());
    right.SetStartValue(L"1.0");
    EXPECT_FALSE(isEqual()); // texts, not numbers
    right.SetStartValue(L"1");
    EXPECT_TRUE(isEqual());
    left.SetEndValue(L"2");
    EXPECT_FALSE(isEqual());
    right.SetEndValue(L"2");
    EXPECT_TRUE(isEqual());
    VValue physical(L"2");
    physical.IsPhysical(true);
    right.SetEndValue(physical);
    EXPECT_FALSE(isEqual());
}

TEST(VRangeTest, AnUnsetEndStillTakesPartInEquality) {
    VRange range;
    range.SetStartValue(L"1");
    range.UnsetStartValue();
    EXPECT_FALSE(range == VRange());
    EXPECT_TRUE(range != VRange());
    VRange other;
    other.SetStartValue(L"1");
    other.UnsetStartValue();
    EXPECT_TRUE(range == other);
    other.SetStartValue(VValue());
    other.UnsetStartValue();
    EXPECT_TRUE(other == VRange()); // the default value leaves no trace
    other.SetEndValue(L"1");
    other.UnsetEndValue();
    EXPECT_FALSE(other == VRange());
}

TEST(VRangeTest, AnEmptyTextAsAnEndDiffersFromNoEnd) {
    VRange range;
    range.SetStartValue(VValue());
    EXPECT_TRUE(range.HasStartValue());
    EXPECT_FALSE(range == VRange());
    VRange other;
    other.SetEndValue(VValue());
    EXPECT_TRUE(other.HasEndValue());
    EXPECT_FALSE(other == VRange());
    EXPECT_FALSE(other == range);
}

TEST(VRangeTest, CopiesAreEqualAndIndependent) {
    VRange range;
    range.SetStartValue(L"1");
    range.SetEndValue(L"2");
    range.UnsetEndValue();
    VRange copy(range);
    VRange assigned;
    assigned.SetEndValue(L"7");
    assigned = range;
    for (VRange* each : {&copy, &assigned}) {
        EXPECT_TRUE(*each == range);
        EXPECT_FALSE(each->HasEndValue());
        each->SetStartValue(L"3");
    }
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
    VRange& same = range;
    range = same;
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
}

TEST(VInvalidRangeTest, ANewRangeIsEmptyWithInvalidityThree) {
    VInvalidRange range;
    EXPECT_FALSE(range.HasStartValue());
    EXPECT_FALSE(range.HasEndValue());
    EXPECT_EQ(static_cast<int>(range.GetInvalidity()), 3);
    EXPECT_STREQ(range.GetAssignedText(), L"");
    EXPECT_FALSE(range.AssignedText().HasTextId());
    static_assert(sizeof(VInvalidRange::VInvalidity) == 4);
    static_assert(std::is_base_of_v<VRange, VInvalidRange>);
    static_assert(!std::is_copy_constructible_v<VInvalidRange> && !std::is_copy_assignable_v<VInvalidRange>);
}

TEST(VInvalidRangeTest, SetRangeSetsBothEnds) {
    VInvalidRange range;
    range.SetRange(L"1", L"2");
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
    EXPECT_STREQ(range.GetEndValue().Get(), L"2");
    range.UnsetEndValue();
    range.SetRange(range.GetStartValue(), L"5");
    EXPECT_STREQ(range.GetStartValue().Get(), L"1");
    EXPECT_STREQ(range.GetEndValue().Get(), L"5");
}

TEST(VInvalidRangeTest, AnyNumberIsStoredAsInvalidity) {
    VInvalidRange range;
    range.SetInvalidity(VInvalidRange::notDefined);
    EXPECT_EQ(range.GetInvalidity(), VInvalidRange::notDefined);
    range.SetInvalidity(static_cast<VInvalidRange::VInvalidity>(0xFFFFFFFF));
    EXPECT_EQ(static_cast<unsigned int>(range.GetInvalidity()), 0xFFFFFFFFU);
}

TEST(VInvalidRangeTest, SettingTheAssignedTextKeepsItsIdentifier) {
    VInvalidRange range;
    range.AssignedText().SetTextId(L"ID");
    range.SetAssignedText(L"short circuit");
    EXPECT_STREQ(range.GetAssignedText(), L"short circuit");
    EXPECT_STREQ(range.AssignedText().GetText(), L"short circuit");
    EXPECT_STREQ(range.AssignedText().GetTextId(), L"ID");
    range.SetAssignedText(range.GetAssignedText() + 6);
    EXPECT_STREQ(range.GetAssignedText(), L"circuit");
}

TEST(VInvalidRangeTest, EqualityLooksAtRangeInvalidityAndText) {
    VInvalidRange left;
    VInvalidRange right;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    left.SetRange(L"1", L"2");
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    right.SetRange(L"1", L"2");
    EXPECT_TRUE(left == right);
    right.SetInvalidity(static_cast<VInvalidRange::VInvalidity>(0));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    left.SetInvalidity(static_cast<VInvalidRange::VInvalidity>(0));
    left.SetAssignedText(L"a");
    EXPECT_FALSE(left == right);
    right.SetAssignedText(L"a");
    EXPECT_TRUE(left == right);
    left.AssignedText().SetTextId(L"ID");
    EXPECT_FALSE(left == right);
    right.AssignedText().SetTextId(L"ID");
    EXPECT_TRUE(left == right);
    right.UnsetStartValue();
    EXPECT_FALSE(left == right);
}

} // namespace
