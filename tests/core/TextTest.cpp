#include "support/FailedCheck.h"

#include <ImportDame/Text.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using ImportDame::VText;
using TestSupport::ExpectFailedCheck;

namespace {

TEST(VTextTest, IsEmptyWithoutIdentifierAtFirst) {
    const VText text;
    EXPECT_STREQ(text.GetText(), L"");
    EXPECT_FALSE(text.HasTextId());
}

TEST(VTextTest, MadeFromATextHasNoIdentifier) {
    const VText text(L"Bremse");
    EXPECT_STREQ(text.GetText(), L"Bremse");
    EXPECT_FALSE(text.HasTextId());
}

TEST(VTextTest, ReadingAnIdentifierThatIsNotThereFails) {
    const VText text(L"");
    EXPECT_FALSE(text.HasTextId());
    ExpectFailedCheck({102016, "mbHasTextId", "Text.cpp", 69}, [&] { text.GetTextId(); });
}

TEST(VTextTest, HasAnIdentifierOnceSetEvenAnEmptyOne) {
    VText text(L"x");
    text.SetTextId(L"");
    EXPECT_TRUE(text.HasTextId());
    EXPECT_STREQ(text.GetTextId(), L"");
    text.SetTextId(L"ID7");
    EXPECT_STREQ(text.GetTextId(), L"ID7");
    text.SetText(L"y");
    EXPECT_STREQ(text.GetTextId(), L"ID7");
}

TEST(VTextTest, OnlyAssignmentTakesTheIdentifierAway) {
    VText text(L"x");
    text.SetTextId(L"ID");
    text.SetText(L"");
    EXPECT_TRUE(text.HasTextId());
    text = VText(L"z");
    EXPECT_FALSE(text.HasTextId());
    EXPECT_STREQ(text.GetText(), L"z");
}

TEST(VTextTest, CopyAndAssignmentTakeAllThreeFields) {
    VText text(L"x");
    text.SetTextId(L"ID");
    const VText copy(text);
    EXPECT_STREQ(copy.GetText(), L"x");
    EXPECT_STREQ(copy.GetTextId(), L"ID");
    VText assigned;
    assigned = text;
    EXPECT_STREQ(assigned.GetText(), L"x");
    EXPECT_STREQ(assigned.GetTextId(), L"ID");
    const VText& self = assigned;
    assigned = self;
    EXPECT_STREQ(assigned.GetText(), L"x");
    EXPECT_STREQ(assigned.GetTextId(), L"ID");
}

TEST(VTextTest, EqualityComparesTextAndIdentifierButNotTheFlag) {
    VText plain(L"x");
    VText emptyId(L"x");
    emptyId.SetTextId(L"");
    EXPECT_TRUE(plain == emptyId);
    EXPECT_FALSE(plain != emptyId);
    VText withId(L"x");
    withId.SetTextId(L"ID");
    EXPECT_FALSE(plain == withId);
    EXPECT_TRUE(plain != withId);
    VText lowerId(L"x");
    lowerId.SetTextId(L"id");
    EXPECT_FALSE(withId == lowerId);
    EXPECT_FALSE(VText(L"x") == VText(L"X"));
    EXPECT_FALSE(VText(L"x") == VText(L"x "));
}

TEST(VTextTest, MayBeSetFromItselfOrAPartOfItself) {
    VText text(L"abcdef");
    text.SetText(text.GetText());
    EXPECT_STREQ(text.GetText(), L"abcdef");
    text.SetText(text.GetText() + 3);
    EXPECT_STREQ(text.GetText(), L"def");
    text.SetTextId(text.GetText() + 1);
    EXPECT_STREQ(text.GetTextId(), L"ef");
    text.SetText(text.GetTextId());
    EXPECT_STREQ(text.GetText(), L"ef");
    text.SetText(text.GetText() + 2);
    EXPECT_STREQ(text.GetText(), L"");
}

TEST(VTextTest, HoldsLongTextsAndCharactersBeyondTheBasicPlane) {
    const std::wstring longText(1000000, L'w');
    VText text(longText.c_str());
    EXPECT_EQ(text.GetText(), longText);
    text.SetText(L"Тормоз – Größe \U0001F697");
    EXPECT_STREQ(text.GetText(), L"Тормоз – Größe \U0001F697");
}

TEST(VTextTest, HasAVirtualDestructorOnly) {
    static_assert(std::has_virtual_destructor_v<VText>);
    static_assert(std::is_copy_constructible_v<VText> && std::is_copy_assignable_v<VText>);

    struct Derived : VText {
        explicit Derived(bool& dead) : m_dead(dead) {}

        ~Derived() override { m_dead = true; }

        bool& m_dead;
    };

    bool dead = false;
    const VText* const text = new Derived(dead);
    delete text;
    EXPECT_TRUE(dead);
}

} // namespace
