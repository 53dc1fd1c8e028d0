#include <ImportDame/ItemMapping.h>
#include <ImportDame/RecordTemplateMapping.h>

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

TEST(VItemMappingTest, ANewMappingIsAllZero) {
    const VItemMapping mapping;
    EXPECT_EQ(static_cast<unsigned int>(mapping.GetItemMappingType()), 0U);
    EXPECT_EQ(mapping.GetIndex(), 0U);
    EXPECT_STREQ(mapping.GetContent(), L"");
    EXPECT_FALSE(mapping.IsAutomaticallyForcedMapping());
    static_assert(sizeof(VItemMapping::VItemMappingType) == 4);
    static_assert(std::has_virtual_destructor_v<VItemMapping>);
}

TEST(VItemMappingTest, TheForcedFlagIsGivenAtConstruction) {
    const VItemMapping forced(true);
    EXPECT_TRUE(forced.IsAutomaticallyForcedMapping());
    EXPECT_EQ(static_cast<unsigned int>(forced.GetItemMappingType()), 0U);
    EXPECT_EQ(forced.GetIndex(), 0U);
    EXPECT_STREQ(forced.GetContent(), L"");
    EXPECT_FALSE(VItemMapping(false).IsAutomaticallyForcedMapping());
}

TEST(VItemMappingTest, StoresWhatIsSet) {
    VItemMapping mapping;
    mapping.SetIndex(0xFFFFFFFF);
    EXPECT_EQ(mapping.GetIndex(), 0xFFFFFFFFU);
    mapping.SetContent(L"Status");
    EXPECT_STREQ(mapping.GetContent(), L"Status");
    mapping.SetContent(mapping.GetContent() + 4);
    EXPECT_STREQ(mapping.GetContent(), L"us");
    mapping.SetContent(L"");
    EXPECT_STREQ(mapping.GetContent(), L"");
}

TEST(VItemMappingTest, HandsOutReferencesToTypeAndFlag) {
    VItemMapping mapping;
    const VItemMapping::VItemMappingType& type = mapping.GetItemMappingType();
    mapping.SetItemMappingType(static_cast<VItemMapping::VItemMappingType>(0x80000001));
    EXPECT_EQ(static_cast<unsigned int>(type), 0x80000001U);
    const bool& isForced = mapping.IsAutomaticallyForcedMapping();
    mapping = VItemMapping(true);
    EXPECT_TRUE(isForced);
}

VItemMapping Mapping(const wchar_t* content, unsigned int index = 0, bool isForced = false) {
    VItemMapping mapping(isForced);
    mapping.SetContent(content);
    mapping.SetIndex(index);
    mapping.SetItemMappingType(VItemMapping::snapshotDataMapping);
    return mapping;
}

void ExpectMapping(const VItemMapping& mapping, const wchar_t* content, unsigned int index, bool isForced) {
    EXPECT_STREQ(mapping.GetContent(), content);
    EXPECT_EQ(mapping.GetIndex(), index);
    EXPECT_EQ(mapping.GetItemMappingType(), VItemMapping::snapshotDataMapping);
    EXPECT_EQ(mapping.IsAutomaticallyForcedMapping(), isForced);
}

TEST(VItemMappingTest, CopiesTakeEverything) {
    VItemMapping mapping = Mapping(L"A", 3, true);
    VItemMapping copy(mapping);
    VItemMapping assigned;
    EXPECT_EQ(&(assigned = mapping), &assigned);
    mapping.SetContent(L"B");
    ExpectMapping(copy, L"A", 3, true);
    ExpectMapping(assigned, L"A", 3, true);
    VItemMapping& same = assigned;
    assigned = same;
    ExpectMapping(assigned, L"A", 3, true);
}

class VRecordTemplateMappingTest : public testing::Test {
protected:
    void Append(std::initializer_list<const wchar_t*> contents) {
        for (const wchar_t* content : contents) {
            VItemMapping mapping = Mapping(content);
            m_template.Append(mapping);
        }
    }

    static std::vector<std::wstring> Contents(const VRecordTemplateMapping& mapping) {
        std::vector<std::wstring> contents;
        for (unsigned int index = 0; index < mapping.GetNumberOfTemplateItem(); ++index)
            contents.emplace_back(mapping.GetItemMapping(index).GetContent());
        return contents;
    }

    using Texts = std::vector<std::wstring>;

    VRecordTemplateMapping m_template;
};

TEST_F(VRecordTemplateMappingTest, TheInvalidIndexIsMinusOne) {
    EXPECT_EQ(VRecordTemplateMapping::sInvalidIndex, -1);
    static_assert(std::is_same_v<decltype(VRecordTemplateMapping::sInvalidIndex), const int>);
    static_assert(std::has_virtual_destructor_v<VRecordTemplateMapping>);
}

TEST_F(VRecordTemplateMappingTest, ANewMappingIsEmpty) {
    EXPECT_EQ(m_template.GetNumberOfTemplateItem(), 0U);
    EXPECT_EQ(m_template.GetMappedIndex(L""), -1);
    EXPECT_FALSE(m_template.HasTemplateItem(L""));
}

TEST_F(VRecordTemplateMappingTest, AppendCopiesTheItemMapping) {
    VItemMapping mapping = Mapping(L"A", 5, true);
    m_template.Append(mapping);
    mapping.SetContent(L"B");
    mapping.SetIndex(6);
    m_template.Append(mapping);
    ASSERT_EQ(m_template.GetNumberOfTemplateItem(), 2U);
    ExpectMapping(m_template.GetItemMapping(0), L"A", 5, true);
    ExpectMapping(m_template.GetItemMapping(1), L"B", 6, true);
    static_assert(std::is_same_v<decltype(m_template.GetNumberOfTemplateItem()), unsigned long long>);
}

TEST_F(VRecordTemplateMappingTest, AnIndexOutOfRangeIsReported) {
    const TestSupport::FailedCheck noItem{102014, "iNum >= 0 && iNum < mItemMappings.size()",
                                          "RecordTemplateMapping.cpp", 176};
    const TestSupport::FailedCheck nothingToOverwrite{102015, "iNum < mItemMappings.size()",
                                                      "RecordTemplateMapping.cpp", 212};
    VItemMapping mapping = Mapping(L"X");
    for (const unsigned int count : {0U, 1U, 2U}) {
        for (const unsigned int index : {count, count + 1, 0xFFFFFFFFU}) {
            ExpectFailedCheck(noItem, [&] { m_template.GetItemMapping(index); });
            ExpectFailedCheck(nothingToOverwrite, [&] { m_template.OverwriteItemMapping(index, mapping); });
        }
        EXPECT_EQ(Contents(m_template), Texts(count, L"A"));
        Append({L"A"});
    }
}

TEST_F(VRecordTemplateMappingTest, OverwritingTakesEverythingOver) {
    Append({L"A", L"B", L"C"});
    VItemMapping mapping = Mapping(L"X", 9, true);
    m_template.OverwriteItemMapping(1, mapping);
    mapping.SetContent(L"Y");
    EXPECT_EQ(Contents(m_template), (Texts{L"A", L"X", L"C"}));
    ExpectMapping(m_template.GetItemMapping(1), L"X", 9, true);
}

TEST_F(VRecordTemplateMappingTest, TheLowestPositionOfANameWins) {
    Append({L"B", L"A", L"A"});
    EXPECT_EQ(m_template.GetMappedIndex(L"A"), 1);
    EXPECT_EQ(m_template.GetMappedIndex(L"B"), 0);
    EXPECT_TRUE(m_template.HasTemplateItem(L"A"));
}

TEST_F(VRecordTemplateMappingTest, NamesAreComparedWhole) {
    Append({L"Alpha", L""});
    for (const wchar_t* name : {L"alpha", L"ALPHA", L"Alph", L"Alphab", L" Alpha", L"Alpha "}) {
        EXPECT_EQ(m_template.GetMappedIndex(name), -1) << name;
        EXPECT_FALSE(m_template.HasTemplateItem(name)) << name;
    }
    EXPECT_EQ(m_template.GetMappedIndex(L"Alpha"), 0);
    EXPECT_EQ(m_template.GetMappedIndex(L""), 1);
    EXPECT_TRUE(m_template.HasTemplateItem(L""));
}

TEST_F(VRecordTemplateMappingTest, IsOkWhenEveryNameIsAllowed) {
    EXPECT_TRUE(m_template.IsRecordTemplateMappingOK({}));
    EXPECT_TRUE(m_template.IsRecordTemplateMappingOK({L"A"}));
    Append({L"A", L"B", L"A"});
    EXPECT_TRUE(m_template.IsRecordTemplateMappingOK({L"A", L"B"}));
    EXPECT_TRUE(m_template.IsRecordTemplateMappingOK({L"A", L"B", L"unused"}));
    EXPECT_FALSE(m_template.IsRecordTemplateMappingOK({L"A"}));
    EXPECT_FALSE(m_template.IsRecordTemplateMappingOK({L"B"}));
    EXPECT_FALSE(m_template.IsRecordTemplateMappingOK({L"a", L"b"}));
    EXPECT_FALSE(m_template.IsRecordTemplateMappingOK({}));
}

TEST_F(VRecordTemplateMappingTest, AnEmptyNameHasToBeAllowedAsWell) {
    Append({L""});
    EXPECT_FALSE(m_template.IsRecordTemplateMappingOK({L"A"}));
    EXPECT_TRUE(m_template.IsRecordTemplateMappingOK({L""}));
}

TEST_F(VRecordTemplateMappingTest, TheSetOfAllowedNamesStaysTheCallers) {
    Append({L"A"});
    const std::set<std::wstring> allowed{L"A", L"B"};
    EXPECT_TRUE(m_template.IsRecordTemplateMappingOK(allowed));
    EXPECT_EQ(allowed.size(), 2U);
}

TEST_F(VRecordTemplateMappingTest, ClearRemovesEverything) {
    m_template.Clear();
    Append({L"A", L"B"});
    m_template.Clear();
    EXPECT_EQ(m_template.GetNumberOfTemplateItem(), 0U);
    EXPECT_EQ(m_template.GetMappedIndex(L"A"), -1);
    Append({L"C"});
    EXPECT_EQ(Contents(m_template), Texts{L"C"});
}

TEST_F(VRecordTemplateMappingTest, CopyAndAssignmentReplaceEverything) {
    Append({L"A", L"B"});
    VRecordTemplateMapping copy(m_template);
    EXPECT_EQ(Contents(copy), (Texts{L"A", L"B"}));
    VRecordTemplateMapping assigned(m_template);
    Append({L"C"});
    EXPECT_EQ(&(assigned = m_template), &assigned);
    EXPECT_EQ(Contents(assigned), (Texts{L"A", L"B", L"C"}));
    EXPECT_EQ(Contents(copy), (Texts{L"A", L"B"}));
    assigned = VRecordTemplateMapping();
    EXPECT_EQ(assigned.GetNumberOfTemplateItem(), 0U);
}

TEST_F(VRecordTemplateMappingTest, AssigningAMappingToItselfLeavesItEmpty) {
    Append({L"A", L"B"});
    VRecordTemplateMapping& same = m_template;
    EXPECT_EQ(&(m_template = same), &m_template);
    EXPECT_EQ(m_template.GetNumberOfTemplateItem(), 0U);
}

TEST_F(VRecordTemplateMappingTest, HoldsManyItems) {
    for (unsigned int index = 0; index < 100000; ++index) {
        VItemMapping mapping = Mapping(std::to_wstring(index).c_str(), index);
        m_template.Append(mapping);
    }
    EXPECT_EQ(m_template.GetNumberOfTemplateItem(), 100000U);
    EXPECT_EQ(m_template.GetMappedIndex(L"99999"), 99999);
    EXPECT_EQ(m_template.GetItemMapping(99999).GetIndex(), 99999U);
}

} // namespace
