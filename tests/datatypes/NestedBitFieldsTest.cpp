#include <ImportDame/BitField.h>
#include <ImportDame/Case.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InterchangeableVisitor.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/PacketDataType.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ImportDame;

namespace {

/// Nests bit fields, each between a data object and a gap, and answers the innermost collection.
VInterchangeableCollection& Nest(VInterchangeableCollection& outermost, int levels) {
    VInterchangeableCollection* members = &outermost;
    for (int level = 1; level <= levels; ++level) {
        const std::wstring suffix = std::to_wstring(level);
        members->AddNewDataObject().SetQualifier((L"D" + suffix).c_str());
        VBitField& bitField = members->AddNewBitField();
        bitField.SetQualifier((L"B" + suffix).c_str());
        members->AddNewGapObject().SetQualifier((L"G" + suffix).c_str());
        members = &bitField.InterchangeableCollection();
    }
    return *members;
}

/// Walks a nest in the order of the members, each bit field before its own members.
class NestWalk : public VInterchangeableVisitor {
public:
    void Walk(VInterchangeableCollection& members) {
        for (VInterchangeable& member : members)
            DispatchInterchangeable(member);
    }

    void VisitDataObject(VDataObject& dataObject) override { qualifiers.emplace_back(dataObject.GetQualifier()); }

    void VisitBitField(VBitField& bitField) override {
        qualifiers.emplace_back(bitField.GetQualifier());
        Walk(bitField.InterchangeableCollection());
    }

    void VisitGapObject(VGapObject& gapObject) override { qualifiers.emplace_back(gapObject.GetQualifier()); }

    std::vector<std::wstring> qualifiers;
};

/// D1 B1 D2 B2 … G2 G1
std::vector<std::wstring> QualifiersOfNest(int levels) {
    std::vector<std::wstring> qualifiers;
    for (int level = 1; level <= levels; ++level) {
        qualifiers.push_back(L"D" + std::to_wstring(level));
        qualifiers.push_back(L"B" + std::to_wstring(level));
    }
    for (int level = levels; level >= 1; --level)
        qualifiers.push_back(L"G" + std::to_wstring(level));
    return qualifiers;
}

constexpr int g_deep = 100000;

class NestedBitFieldsTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
};

TEST_F(NestedBitFieldsTest, TwoHundredLevelsAreVisitedInOrder) {
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    VInterchangeableCollection* const nests[] = {&m_dataTypes.AddNewPacketDataType().InterchangeableCollection(),
                                                 &mux.GetCaseCollection().AddNewCase().InterchangeableCollection(),
                                                 &mux.GetDefaultCase()};
    for (VInterchangeableCollection* nest : nests) {
        Nest(*nest, 200);
        NestWalk walk;
        walk.Walk(*nest);
        EXPECT_EQ(walk.qualifiers, QualifiersOfNest(200));
    }
    m_dataTypes.Clear();
    EXPECT_TRUE(m_dataTypes.IsEmpty());
}

TEST_F(NestedBitFieldsTest, ADeepNestInAPacketDiesWithIt) {
    VPacketDataType& packet = m_dataTypes.AddNewPacketDataType();
    Nest(packet.InterchangeableCollection(), g_deep).AddNewGapObject();
    m_dataTypes.Remove(packet);
    EXPECT_TRUE(m_dataTypes.IsEmpty());
}

TEST_F(NestedBitFieldsTest, ADeepNestInAMuxCaseDiesWithIt) {
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    VCase& removed = mux.GetCaseCollection().AddNewCase();
    Nest(removed.InterchangeableCollection(), g_deep);
    Nest(mux.GetCaseCollection().AddNewCase().InterchangeableCollection(), g_deep);
    mux.GetCaseCollection().Remove(removed);
    removed.Destroy();
    mux.GetCaseCollection().Clear();
    EXPECT_TRUE(mux.GetCaseCollection().IsEmpty());
}

TEST_F(NestedBitFieldsTest, ADeepNestInADefaultCaseDiesWithItsMux) {
    Nest(m_dataTypes.AddNewMuxDataType().GetDefaultCase(), g_deep);
    m_dataTypes.Clear();
    EXPECT_TRUE(m_dataTypes.IsEmpty());
}

TEST_F(NestedBitFieldsTest, ADeepNestIsClearedAndRemovedFromACollectionThatLivesOn) {
    VInterchangeableCollection members(m_document);
    Nest(members, g_deep);
    members.Clear();
    EXPECT_TRUE(members.IsEmpty());
    Nest(members, g_deep);
    members.Remove(std::next(members.Begin()));
    ASSERT_EQ(members.Count(), 2U);
    EXPECT_STREQ(members.Begin()->GetQualifier(), L"D1");
    EXPECT_STREQ(members.GetLastElement()->GetQualifier(), L"G1");
}

TEST_F(NestedBitFieldsTest, ABitFieldOutsideOfACollectionTakesADeepNestAlong) {
    auto bitField = std::make_unique<VBitField>(m_document);
    Nest(bitField->InterchangeableCollection(), g_deep);
    bitField.reset();
    VBitField onTheStack(m_document);
    Nest(onTheStack.InterchangeableCollection(), g_deep);
    EXPECT_EQ(onTheStack.InterchangeableCollection().Count(), 3U);
}

TEST_F(NestedBitFieldsTest, EveryLevelMayHaveSeveralNests) {
    VInterchangeableCollection members(m_document);
    std::vector<VInterchangeableCollection*> level{&members};
    for (int depth = 0; depth < 10; ++depth) { // 3 to the power of 10 leaves
        std::vector<VInterchangeableCollection*> next;
        for (VInterchangeableCollection* parent : level)
            for (int i = 0; i < 3; ++i)
                next.push_back(&parent->AddNewBitField().InterchangeableCollection());
        level = std::move(next);
    }
    level.front()->AddNewDataObject();
    level.back()->AddNewGapObject();
    members.Remove(members.Begin());
    EXPECT_EQ(members.Count(), 2U);
    members.Clear();
    EXPECT_TRUE(members.IsEmpty());
}

} // namespace
