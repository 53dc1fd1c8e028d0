#include <ImportDame/ImportDoc.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

constexpr TestSupport::FailedCheck g_noDisplayName{102033, "pDisplayName", "Unit.cpp", 74};

TEST(VUnitTest, ANewUnitIsAQualifiedObjectWithoutADisplayName) {
    VImportDoc document;
    VUnit unit(document);
    EXPECT_STREQ(unit.GetDisplayName(), L"");
    EXPECT_STREQ(unit.GetQualifier(), L"");
    EXPECT_TRUE(unit.IsImported());
    EXPECT_EQ(&unit.ImportDoc(), &document);
    static_assert(std::is_base_of_v<VQualified, VUnit>);
    static_assert(!std::is_copy_constructible_v<VUnit>);
}

TEST(VUnitTest, TheDisplayNameIsNotTheQualifiedName) {
    VImportDoc document;
    VUnit unit(document, L"km/h");
    EXPECT_STREQ(unit.GetDisplayName(), L"km/h");
    EXPECT_STREQ(unit.GetName(), L"");
    EXPECT_STREQ(unit.GetQualifier(), L"");
    unit.SetName(L"kilometres per hour");
    EXPECT_STREQ(unit.GetDisplayName(), L"km/h");
    unit.SetDisplayName(L"kph");
    EXPECT_STREQ(unit.GetDisplayName(), L"kph");
    EXPECT_STREQ(unit.GetName(), L"kilometres per hour");
}

TEST(VUnitTest, TakesAPartOfItsOwnDisplayName) {
    VImportDoc document;
    VUnit unit(document, L"km/h");
    unit.SetDisplayName(unit.GetDisplayName() + 3);
    EXPECT_STREQ(unit.GetDisplayName(), L"h");
    unit.SetDisplayName(L"");
    EXPECT_STREQ(unit.GetDisplayName(), L"");
}

TEST(VUnitTest, ANullDisplayNameIsRefused) {
    VImportDoc document;
    VUnit unit(document, L"km");
    ExpectFailedCheck(g_noDisplayName, [&] { unit.SetDisplayName(nullptr); });
    EXPECT_STREQ(unit.GetDisplayName(), L"km");
    ExpectFailedCheck(g_noDisplayName, [&] { VUnit broken(document, nullptr); });
}

class VUnitCollectionTest : public testing::Test {
protected:
    VUnit& Add(const wchar_t* displayName) {
        VUnit& unit = m_units.AddNewUnit();
        unit.SetDisplayName(displayName);
        return unit;
    }

    std::vector<VUnit*> Units() {
        std::vector<VUnit*> units;
        for (VUnit& unit : m_units)
            units.push_back(&unit);
        return units;
    }

    using Expected = std::vector<VUnit*>;

    VImportDoc m_document;
    VUnitCollection m_units{m_document};
};

TEST_F(VUnitCollectionTest, NewUnitsBelongToTheDocument) {
    VUnit& unit = m_units.AddNewUnit();
    EXPECT_EQ(&unit.ImportDoc(), &m_document);
    EXPECT_STREQ(unit.GetDisplayName(), L"");
    EXPECT_EQ(m_units.ImportedCount(), 1U);
}

TEST_F(VUnitCollectionTest, CountsTheImportedUnits) {
    Add(L"a");
    Add(L"b").IsImported(false);
    Add(L"c");
    EXPECT_EQ(m_units.Count(), 3U);
    EXPECT_EQ(m_units.ImportedCount(), 2U);
}

TEST_F(VUnitCollectionTest, RemoveTakesTheFirstUnitOfThatDisplayName) {
    VUnit& other = Add(L"m");
    const std::unique_ptr<VUnit> first(&Add(L"km"));
    VUnit& second = Add(L"km");
    m_units.Remove(second);
    EXPECT_EQ(Units(), (Expected{&other, &second}));
    EXPECT_STREQ(first->GetDisplayName(), L"km"); // taken out, but alive
    m_units.Remove(*first);                       // now it is the second one's turn
    EXPECT_EQ(Units(), Expected{&other});
    const std::unique_ptr<VUnit> owner(&second);
    EXPECT_EQ(m_units.ImportedCount(), 1U);
}

TEST_F(VUnitCollectionTest, RemoveComparesDisplayNamesExactly) {
    VUnit& unit = Add(L"km");
    unit.SetQualifier(L"Q");
    unit.SetName(L"N");
    for (const wchar_t* displayName : {L"KM", L"k", L"km ", L""}) {
        VUnit asked(m_document, displayName);
        asked.SetQualifier(L"Q");
        asked.SetName(L"N");
        m_units.Remove(asked);
        EXPECT_EQ(Units(), Expected{&unit});
    }
}

TEST_F(VUnitCollectionTest, RemoveOfAUnitOfAnotherCollectionGoesByItsDisplayName) {
    const std::unique_ptr<VUnit> own(&Add(L"km"));
    VUnit outside(m_document, L"km");
    m_units.Remove(outside);
    EXPECT_TRUE(m_units.IsEmpty());
    m_units.Remove(outside); // nothing left, nothing reported
    EXPECT_TRUE(m_units.IsEmpty());
}

TEST_F(VUnitCollectionTest, BehavesAsAVectorInWhichNamesRepeat) {
    std::mt19937 random(17);
    Expected model;
    for (int step = 0; step < 3000; ++step) {
        if (model.empty() || random() % 100 < 52) {
            model.push_back(&Add(std::to_wstring(random() % 5).c_str()));
        } else {
            const std::wstring name = model[random() % model.size()]->GetDisplayName();
            VUnit asked(m_document, name.c_str());
            const auto first = std::find_if(model.begin(), model.end(),
                                            [&](const VUnit* unit) { return unit->GetDisplayName() == name; });
            const std::unique_ptr<VUnit> taken(*first);
            model.erase(first);
            m_units.Remove(asked);
        }
        ASSERT_EQ(Units(), model) << "after step " << step;
    }
}

TEST_F(VUnitCollectionTest, ClearOfAnEmptyCollectionDoesNothing) {
    m_units.Clear();
    EXPECT_EQ(m_units.Count(), 0U);
    EXPECT_TRUE(m_units.IsEmpty());
    EXPECT_EQ(m_units.ImportedCount(), 0U);
}

} // namespace
