#include "support/FailedCheck.h"

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/IterDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/StaticIterDataType.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

class PacketDataTypesTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
    VPacketDataType m_packet{m_dataTypes};
    VMuxDataType m_mux{m_dataTypes};
    VStaticIterDataType m_static{m_dataTypes};
    VNumeratorIterDataType m_numerator{m_dataTypes};
    VEndMarkerIterDataType m_endMarker{m_dataTypes};
    VEndOfServiceIterDataType m_endOfService{m_dataTypes};
};

TEST_F(PacketDataTypesTest, EveryKindStartsWithEmptyContentOfItsDocument) {
    VBasePacketDataType* const packets[] = {&m_packet, &m_mux, &m_static, &m_numerator, &m_endMarker, &m_endOfService};
    for (VBasePacketDataType* packet : packets) {
        EXPECT_TRUE(packet->InterchangeableCollection().IsEmpty());
        EXPECT_EQ(&packet->InterchangeableCollection().ImportDoc(), &m_document);
        EXPECT_EQ(&packet->DataTypeCollection(), &m_dataTypes);
        EXPECT_EQ(&packet->InterchangeableCollection().AddNewDataObject().ImportDoc(), &m_document);
    }
}

TEST_F(PacketDataTypesTest, OnlyMuxAndNumeratorNeedASelector) {
    EXPECT_FALSE(m_packet.NeedsSelector());
    EXPECT_TRUE(m_mux.NeedsSelector());
    EXPECT_FALSE(m_mux.HasSelectorDataType());
    EXPECT_FALSE(m_static.NeedsSelector());
    EXPECT_TRUE(m_numerator.NeedsSelector());
    EXPECT_FALSE(m_numerator.HasSelectorDataType());
    EXPECT_FALSE(m_endMarker.NeedsSelector());
    EXPECT_FALSE(m_endOfService.NeedsSelector());
}

TEST_F(PacketDataTypesTest, TheRepetitionKindsAreNoIterDataTypes) {
    static_assert(std::is_abstract_v<VBasePacketDataType>);
    static_assert(std::is_abstract_v<VIterDataType>);
    static_assert(std::is_base_of_v<VBasePacketDataType, VIterDataType>);
    static_assert(sizeof(VIterDataType) == sizeof(VBasePacketDataType));
    static_assert(!std::is_base_of_v<VIterDataType, VStaticIterDataType>);
    static_assert(!std::is_base_of_v<VIterDataType, VNumeratorIterDataType>);
    static_assert(!std::is_base_of_v<VIterDataType, VEndMarkerIterDataType>);
    static_assert(!std::is_base_of_v<VIterDataType, VEndOfServiceIterDataType>);

    struct OwnRepetition : VIterDataType {
        explicit OwnRepetition(VDataTypeCollection& dataTypes) : VIterDataType(dataTypes) {}

        void Accept(VDataTypeVisitor&) override {}
    };

    OwnRepetition repetition(m_dataTypes);
    EXPECT_FALSE(repetition.NeedsSelector());
    EXPECT_TRUE(repetition.InterchangeableCollection().IsEmpty());
}

TEST_F(PacketDataTypesTest, APacketStartsWithoutDid) {
    EXPECT_FALSE(m_packet.HasDid());
    EXPECT_FALSE(m_packet.GetShowContentsOnlyForTester());
    ExpectFailedCheck({102008, "m_hasDid", "PacketDataType.cpp", 73}, [&] { m_packet.GetDid(); });
}

TEST_F(PacketDataTypesTest, ADidOfZeroIsADid) {
    m_packet.SetDid(0);
    EXPECT_TRUE(m_packet.HasDid());
    EXPECT_EQ(m_packet.GetDid(), 0U);
    m_packet.SetDid(4294967295U);
    EXPECT_EQ(m_packet.GetDid(), 4294967295U);
}

TEST_F(PacketDataTypesTest, AnUnsetDidHasToBeSetAgain) {
    m_packet.SetDid(5);
    m_packet.UnsetDid();
    EXPECT_FALSE(m_packet.HasDid());
    ExpectFailedCheck({102008, "m_hasDid", "PacketDataType.cpp", 73}, [&] { m_packet.GetDid(); });
    m_packet.UnsetDid();
    EXPECT_FALSE(m_packet.HasDid());
    m_packet.SetDid(7);
    EXPECT_EQ(m_packet.GetDid(), 7U);
}

TEST_F(PacketDataTypesTest, APacketMayShowItsContentsOnlyForTheTester) {
    m_packet.SetShowContentsOnlyForTester(true);
    EXPECT_TRUE(m_packet.GetShowContentsOnlyForTester());
    m_packet.SetShowContentsOnlyForTester(false);
    EXPECT_FALSE(m_packet.GetShowContentsOnlyForTester());
}

TEST_F(PacketDataTypesTest, AStaticRepetitionStartsWithOneItem) {
    const unsigned int& numOfItems = m_static.GetNumOfItems();
    EXPECT_EQ(numOfItems, 1U);
    m_static.SetNumOfItems(0);
    EXPECT_EQ(numOfItems, 0U);
    m_static.SetNumOfItems(4294967295U);
    EXPECT_EQ(numOfItems, 4294967295U);
    m_static.SetNumOfItems(numOfItems);
    EXPECT_EQ(m_static.GetNumOfItems(), 4294967295U);
}

TEST_F(PacketDataTypesTest, AnEndMarkerStartsAsTheEmptyTextWithoutDataType) {
    EXPECT_FALSE(m_endMarker.HasTerminationDataType());
    EXPECT_FALSE(m_endMarker.TerminationValue().IsField());
    EXPECT_STREQ(m_endMarker.TerminationValue().Get(), L"");
    EXPECT_TRUE(m_endMarker.TerminationValue() == VValue(L""));
}

TEST_F(PacketDataTypesTest, AnEndMarkerIsWrittenThroughItsReference) {
    VIdentityDataType& dataType = m_dataTypes.AddNewIdentityDataType();
    m_endMarker.TerminationValue().Set(L"255");
    m_endMarker.SetTerminationDataType(dataType);
    EXPECT_STREQ(m_endMarker.TerminationValue().Get(), L"255");
    EXPECT_TRUE(m_endMarker.HasTerminationDataType());
    EXPECT_EQ(&m_endMarker.GetTerminationDataType(), &dataType);
    m_endMarker.SetTerminationDataType(m_endMarker); // whatever it is, it is only stored
    EXPECT_EQ(&m_endMarker.GetTerminationDataType(), &m_endMarker);
}

TEST_F(PacketDataTypesTest, AnEndOfServiceRepetitionStartsAtZeroWithoutMaximum) {
    EXPECT_EQ(m_endOfService.GetMinNumberOfItems(), 0U);
    EXPECT_FALSE(m_endOfService.HasMaxNumberOfItems());
    m_endOfService.UnsetMaxNumberOfItems(); // nothing to take away
    EXPECT_FALSE(m_endOfService.HasMaxNumberOfItems());
}

TEST_F(PacketDataTypesTest, AnEndOfServiceRepetitionHasAMaximumOfZeroOnceSet) {
    m_endOfService.SetMinNumberOfItems(3);
    m_endOfService.SetMaxNumberOfItems(0);
    EXPECT_TRUE(m_endOfService.HasMaxNumberOfItems());
    const unsigned int& maximum = m_endOfService.GetMaxNumberOfItems();
    EXPECT_EQ(maximum, 0U);
    m_endOfService.SetMaxNumberOfItems(2); // less than the minimum: only stored
    EXPECT_EQ(maximum, 2U);
    m_endOfService.SetMaxNumberOfItems(maximum);
    EXPECT_EQ(m_endOfService.GetMaxNumberOfItems(), 2U);
    EXPECT_EQ(m_endOfService.GetMinNumberOfItems(), 3U);
    m_endOfService.UnsetMaxNumberOfItems();
    EXPECT_FALSE(m_endOfService.HasMaxNumberOfItems());
    EXPECT_EQ(m_endOfService.GetMinNumberOfItems(), 3U);
}

TEST_F(PacketDataTypesTest, ACircleOfReferencesIsOnlyStored) {
    VPacketDataType& packet = m_dataTypes.AddNewPacketDataType();
    VDataObject& dataObject = packet.InterchangeableCollection().AddNewDataObject();
    dataObject.SetDataType(&packet);
    dataObject.SetSelectorDataObject(dataObject);
    VMuxDataType& mux = m_dataTypes.AddNewMuxDataType();
    mux.SetSelectorDataType(mux);
    EXPECT_EQ(dataObject.GetDataType(), &packet);
    EXPECT_EQ(&dataObject.GetSelectorDataObject(), &dataObject);
    EXPECT_EQ(&mux.GetSelectorDataType(), &mux);
    m_dataTypes.Clear();
    EXPECT_TRUE(m_dataTypes.IsEmpty());
}

} // namespace
