#include "support/OrderOfDeath.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/BitField.h>
#include <ImportDame/Case.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/Function.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/ValueTableDataType.h>
#include <ImportDame/ValueTableRow.h>

#include <gtest/gtest.h>

#include <memory>
#include <numeric>
#include <random>
#include <vector>

using namespace ImportDame;
using TestSupport::OrderOfDeath;

namespace {

using Objects = std::vector<const void*>;

/// 0, 1, …: the objects died in the order in which they were listed.
std::vector<std::size_t> AsListed(const Objects& objects) {
    std::vector<std::size_t> order(objects.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

class DestructionOrderTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
};

/// Nests bit fields, each between a data object and a gap, and answers everything in the order in which it has to die.
Objects Nest(VInterchangeableCollection& outermost, int levels) {
    Objects before;
    Objects after;
    VInterchangeableCollection* members = &outermost;
    for (int level = 0; level < levels; ++level) {
        before.push_back(&members->AddNewDataObject());
        VBitField& bitField = members->AddNewBitField();
        after.push_back(&members->AddNewGapObject());
        after.push_back(&bitField);
        members = &bitField.InterchangeableCollection();
    }
    before.insert(before.end(), after.rbegin(), after.rend());
    return before;
}

/// Fills a collection at random and appends everything in the order in which it has to die.
void GrowTree(VInterchangeableCollection& members, int depth, std::mt19937& random, Objects& order) {
    for (auto count = random() % 5; count > 0; --count) {
        const auto kind = random() % 4;
        if (kind == 0) {
            order.push_back(&members.AddNewDataObject());
        } else if (kind == 1) {
            order.push_back(&members.AddNewGapObject());
        } else {
            VBitField& bitField = members.AddNewBitField();
            if (depth > 0)
                GrowTree(bitField.InterchangeableCollection(), depth - 1, random, order);
            order.push_back(&bitField);
        }
    }
}

TEST_F(DestructionOrderTest, ClearedMembersDieInTheOrderOfInsertion) {
    VInterchangeableCollection members(m_document);
    const Objects objects = {&members.AddNewGapObject(), &members.AddNewBitField(), &members.AddNewDataObject(),
                             &members.AddNewGapObject()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { members.Clear(); }), (std::vector<std::size_t>{0, 1, 2, 3}));
}

TEST_F(DestructionOrderTest, MembersDieInTheOrderOfInsertionWithTheirCollection) {
    auto members = std::make_unique<VInterchangeableCollection>(m_document);
    const Objects objects = {&members->AddNewDataObject(), &members->AddNewGapObject(), &members->AddNewBitField()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { members.reset(); }), (std::vector<std::size_t>{0, 1, 2}));
}

TEST_F(DestructionOrderTest, NestedMembersDieBeforeTheirBitFieldAndBetweenItsNeighbours) {
    VInterchangeableCollection members(m_document);
    const VDataObject& first = members.AddNewDataObject();
    VBitField& bitField = members.AddNewBitField();
    const VDataObject& last = members.AddNewDataObject();
    const VGapObject& nestedFirst = bitField.InterchangeableCollection().AddNewGapObject();
    VBitField& nested = bitField.InterchangeableCollection().AddNewBitField();
    const VDataObject& innermost = nested.InterchangeableCollection().AddNewDataObject();
    const VGapObject& nestedLast = bitField.InterchangeableCollection().AddNewGapObject();
    const Objects objects = {&first, &nestedFirst, &innermost, &nested, &nestedLast, &bitField, &last};
    EXPECT_EQ(OrderOfDeath(objects, [&] { members.Clear(); }), (std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6}));
}

TEST_F(DestructionOrderTest, ARemovedBitFieldTakesItsMembersAlongAndNothingElse) {
    VInterchangeableCollection members(m_document);
    const VDataObject& before = members.AddNewDataObject();
    VBitField& bitField = members.AddNewBitField();
    const VDataObject& after = members.AddNewDataObject();
    const VDataObject& nested = bitField.InterchangeableCollection().AddNewDataObject();
    const Objects objects = {&before, &nested, &bitField, &after};
    EXPECT_EQ(OrderOfDeath(objects, [&] { members.Remove(bitField); }), (std::vector<std::size_t>{1, 2}));
    EXPECT_EQ(members.Count(), 2U);
}

TEST_F(DestructionOrderTest, TwoHundredLevelsDieFromTheInsideOutInAPacket) {
    VPacketDataType& packet = m_dataTypes.AddNewPacketDataType();
    Objects objects = Nest(packet.InterchangeableCollection(), 200);
    objects.push_back(&packet);
    EXPECT_EQ(OrderOfDeath(objects, [&] { m_dataTypes.Remove(packet); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, TwoHundredLevelsDieFromTheInsideOutInAMuxCase) {
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    VCase& muxCase = mux.GetCaseCollection().AddNewCase();
    Objects objects = Nest(muxCase.InterchangeableCollection(), 200);
    objects.push_back(&muxCase);
    EXPECT_EQ(OrderOfDeath(objects, [&] { mux.GetCaseCollection().Clear(); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, TwoHundredLevelsDieFromTheInsideOutInADefaultCase) {
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    Objects objects = Nest(mux.GetDefaultCase(), 200);
    objects.push_back(&mux);
    EXPECT_EQ(OrderOfDeath(objects, [&] { m_dataTypes.Clear(); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, AnyTreeDiesAsAWalkThatVisitsMembersBeforeTheirBitField) {
    std::mt19937 random(7);
    for (int tree = 0; tree < 200; ++tree) {
        VInterchangeableCollection members(m_document);
        Objects objects;
        GrowTree(members, 5, random, objects);
        EXPECT_EQ(OrderOfDeath(objects, [&] { members.Clear(); }), AsListed(objects));
    }
}

TEST_F(DestructionOrderTest, DeepNestsDieWithoutAllocating) {
    VInterchangeableCollection members(m_document);
    Nest(members, 10000);
    TestSupport::FailAllocation(1, TestSupport::FailureMode::andLater);
    members.Clear();
    EXPECT_FALSE(TestSupport::StopFailing());
    EXPECT_TRUE(members.IsEmpty());
}

TEST_F(DestructionOrderTest, AMuxLosesItsPositionsThenItsCasesThenItsDefaultCaseThenItsOwnContent) {
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    const VDataObject& own = mux.InterchangeableCollection().AddNewDataObject();
    const VDataObject& ofDefault = mux.GetDefaultCase().AddNewDataObject();
    VCase& firstCase = mux.GetCaseCollection().AddNewCase();
    const VDataObject& ofFirstCase = firstCase.InterchangeableCollection().AddNewDataObject();
    VCase& secondCase = mux.GetCaseCollection().AddNewCase();
    const VDataObject& ofSecondCase = secondCase.InterchangeableCollection().AddNewDataObject();
    mux.SetMuxStartBitPosition(1);
    mux.SetSelectorStartBitPosition(2);
    const Objects objects = {&mux.GetSelectorStartBitPosition(),
                             &mux.GetMuxStartBitPosition(),
                             &ofFirstCase,
                             &firstCase,
                             &ofSecondCase,
                             &secondCase,
                             &ofDefault,
                             &own,
                             &mux};
    EXPECT_EQ(OrderOfDeath(objects, [&] { m_dataTypes.Remove(mux); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, DataTypesDieInTheOrderOfInsertion) {
    const Objects objects = {&m_dataTypes.AddNewMuxDataType(), &m_dataTypes.AddNewIdentityDataType(),
                             &m_dataTypes.AddNewPacketDataType()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { m_dataTypes.Clear(); }), (std::vector<std::size_t>{0, 1, 2}));
}

TEST_F(DestructionOrderTest, ADocumentLosesItsPacketsInOrderWithTheirContentAndThenItsInterchangeables) {
    auto document = std::make_unique<VImportDoc>();
    const VDataObject& topLevel = document->InterchangeableCollection().AddNewDataObject();
    VPacketDataType& first = document->DataTypeCollection().AddNewPacketDataType();
    VPacketDataType& second = document->DataTypeCollection().AddNewPacketDataType();
    const VGapObject& ofSecond = second.InterchangeableCollection().AddNewGapObject();
    const VDataObject& ofFirst = first.InterchangeableCollection().AddNewDataObject();
    const Objects objects = {&ofFirst, &first, &ofSecond, &second, &topLevel};
    EXPECT_EQ(OrderOfDeath(objects, [&] { document.reset(); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, ClearedCasesDieInTheOrderOfInsertion) {
    VCaseCollection cases(m_document);
    const Objects objects = {&cases.AddNewCase(), &cases.AddNewCase(), &cases.AddNewCase()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { cases.Clear(); }), (std::vector<std::size_t>{0, 1, 2}));
}

TEST_F(DestructionOrderTest, AMemberIsOutOfItsCollectionBeforeItDies) {
    VInterchangeableCollection members(m_document);
    for (int i = 0; i < 3; ++i)
        members.AddNewDataObject();
    const auto expectCountAtDeath = [&](VInterchangeable& member, unsigned long long count, auto operation) {
        const void* const partOfIt = &member.Attributes().AddNewAttribute();
        const auto seen = TestSupport::SeenAtDeath(
            partOfIt, operation, [&] { return members.Find(member) == members.End() ? members.Count() : 4; });
        EXPECT_EQ(seen, count);
    };
    VInterchangeable& second = *std::next(members.Begin());
    expectCountAtDeath(second, 2, [&] { members.Remove(second); });
    expectCountAtDeath(*members.Begin(), 1, [&] { members.Remove(members.Begin()); });
    expectCountAtDeath(*members.Begin(), 0, [&] { members.Clear(); });
}

TEST_F(DestructionOrderTest, ADataTypeLosesItsOwnPartsThenItsInvalidRangesThenWhatEveryQualifiedObjectHas) {
    VProcedureDataType& procedure = m_dataTypes.AddNewProcedureDataType();
    const Objects objects = {&procedure.PhysToCodedFunctionCollection().AddNewFunction(),
                             &procedure.CodedToPhysFunctionCollection().AddNewFunction(),
                             &procedure.InvalidRangeCollection().AddNewInvalidRange(),
                             &procedure.Attributes().AddNewAttribute(), &procedure};
    EXPECT_EQ(OrderOfDeath(objects, [&] { m_dataTypes.Remove(procedure); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, RowsAndSegmentsDieWithTheirDataType) {
    VTextTableDataType& textTable = m_dataTypes.AddNewTextTableDataType();
    VValueTableDataType& valueTable = m_dataTypes.AddNewValueTableDataType();
    VPiecewiseLinearDataType& piecewiseLinear = m_dataTypes.AddNewPiecewiseLinearDataType();
    const Objects objects = {&textTable.TextTableRowCollection().AddNewTextTableRow(),
                             &textTable,
                             &valueTable.ValueTableRowCollection().AddNewValueTableRow(),
                             &valueTable,
                             &piecewiseLinear.LinearConversionCollection().AddNewLinearConversion(),
                             &piecewiseLinear};
    EXPECT_EQ(OrderOfDeath(objects, [&] { m_dataTypes.Clear(); }), AsListed(objects));
}

TEST_F(DestructionOrderTest, AnUnsetPositionIsFreedAtOnce) {
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    mux.SetMuxStartBitPosition(1);
    const Objects objects = {&mux.GetMuxStartBitPosition()};
    EXPECT_EQ(OrderOfDeath(objects, [&] { mux.UnsetMuxStartBitPosition(); }), std::vector<std::size_t>{0});
}

} // namespace
