#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

class PacketRowsTest : public WrittenDocument {
protected:
    VImportDoc m_document;
    VDataTypeCollection& m_types = m_document.DataTypeCollection();
};

/// Appends a made data type, which the collection then owns.
template <class DataType>
DataType& Append(VDataTypeCollection& types, DataType& type) {
    types.AppendDataType(type);
    return type;
}

const char* const places = "SELECT id, kind, in_packet_id, in_default_case_of_id, in_mux_case_id, in_bit_field_id, "
                           "position, depth, qualifier FROM interchangeable ORDER BY id";

} // namespace

TEST_F(PacketRowsTest, APacketHasItsIdentifierOnlyWhereItIsSet) {
    m_types.AddNewPacketDataType();
    VPacketDataType& packet = m_types.AddNewPacketDataType();
    packet.SetDid(0xF190);
    packet.SetShowContentsOnlyForTester(true);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM packet"), (Rows{"1|NULL|0", "2|61840|1"}));
}

TEST_F(PacketRowsTest, ADataObjectHasItsValuesTypeAndSelector) {
    VIdentityDataType& type = m_types.AddNewIdentityDataType();
    VPacketDataType& packet = m_types.AddNewPacketDataType();
    VDataObject& object = packet.InterchangeableCollection().AddNewDataObject();
    VDataObject& selector = packet.InterchangeableCollection().AddNewDataObject();
    object.SetQualifier(L"Value");
    object.SetSemantics(VBaseDataObject::dataId);
    object.SetDataType(&type);
    object.SetConstValue(VValue(L"34"));
    object.SetDefaultValue(VValue(L"35"));
    object.SetSelectorDataObject(selector);
    selector.SetSelectorDataObject(selector);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM interchangeable"),
              (Rows{"1|data object|2|NULL|NULL|NULL|0|0|Value||NULL||NULL|NULL||1|2|1|1|2|NULL|2",
                    "2|data object|2|NULL|NULL|NULL|1|0|||NULL||NULL|NULL||1|0|NULL|NULL|NULL|NULL|2"}));
}

TEST_F(PacketRowsTest, AGapHasABitLengthAndNothingElse) {
    m_document.InterchangeableCollection().AddNewGapObject().SetBitLength(5);
    Write(m_document);
    EXPECT_EQ(Query("SELECT kind, in_packet_id, semantics, data_type_id, bit_length FROM interchangeable"),
              Rows{"gap|NULL|NULL|NULL|5"});
}

TEST_F(PacketRowsTest, TheMembersOfBitFieldsFollowDepthFirst) {
    VInterchangeableCollection& content = m_types.AddNewPacketDataType().InterchangeableCollection();
    VBitField& outer = content.AddNewBitField();
    outer.SetQualifier(L"outer");
    VBitField& inner = outer.InterchangeableCollection().AddNewBitField();
    inner.SetQualifier(L"inner");
    inner.InterchangeableCollection().AddNewGapObject().SetQualifier(L"gap");
    outer.InterchangeableCollection().AddNewDataObject().SetQualifier(L"after inner");
    content.AddNewDataObject().SetQualifier(L"after outer");
    Write(m_document);
    EXPECT_EQ(Query(places), (Rows{"1|bit field|1|NULL|NULL|NULL|0|0|outer", "2|bit field|1|NULL|NULL|1|0|1|inner",
                                   "3|gap|1|NULL|NULL|2|0|2|gap", "4|data object|1|NULL|NULL|1|1|1|after inner",
                                   "5|data object|1|NULL|NULL|NULL|1|0|after outer"}));
}

TEST_F(PacketRowsTest, AMuxHasContentCasesAndDefaultCase) {
    VIdentityDataType& selector = m_types.AddNewIdentityDataType();
    VMuxDataType& mux = m_types.AddNewMuxDataType();
    mux.SetSelectorDataType(selector);
    mux.SetMuxStartBitPosition(0);
    mux.SetSelectorStartBitPosition(24);
    mux.InterchangeableCollection().AddNewGapObject().SetQualifier(L"own");
    mux.GetDefaultCase().AddNewGapObject().SetQualifier(L"default");
    VCase& muxCase = mux.GetCaseCollection().AddNewCase();
    muxCase.SetQualifier(L"C1");
    muxCase.Range().SetStartValue(VValue(L"1"));
    muxCase.Range().SetEndValue(VValue(L"2"));
    muxCase.InterchangeableCollection().AddNewGapObject().SetQualifier(L"in C1");
    mux.GetCaseCollection().AddNewCase().SetQualifier(L"C2");
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM mux"), Rows{"2|1|0|24"});
    EXPECT_EQ(Query("SELECT id, mux_id, position, qualifier, start_value_id, end_value_id FROM mux_case"),
              (Rows{"1|2|0|C1|1|2", "2|2|1|C2|NULL|NULL"}));
    EXPECT_EQ(Query(places), (Rows{"1|gap|2|NULL|NULL|NULL|0|0|own", "2|gap|NULL|NULL|1|NULL|0|0|in C1",
                                   "3|gap|NULL|2|NULL|NULL|0|0|default"}));
}

TEST_F(PacketRowsTest, AnUnsetMuxHasNoReferencesAndPositions) {
    m_types.AddNewMuxDataType();
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM mux"), Rows{"1|NULL|NULL|NULL"});
}

TEST_F(PacketRowsTest, TheFourRepetitionKindsHaveTheirBounds) {
    VIdentityDataType& counter = m_types.AddNewIdentityDataType();
    Append(m_types, m_document.MakeStaticIterDataType()).SetNumOfItems(4);
    VNumeratorIterDataType& numerator = Append(m_types, m_document.MakeNumeratorIterDataType());
    numerator.SetSelectorDataType(counter);
    numerator.SetContentStartBitPosition(8);
    numerator.SetSelectorStartBitPosition(0);
    numerator.SetOffset(2);
    VEndMarkerIterDataType& marker = Append(m_types, m_document.MakeEndMarkerIterDataType());
    marker.TerminationValue().Set(L"255");
    marker.SetTerminationDataType(counter);
    VEndOfServiceIterDataType& end = Append(m_types, m_document.MakeEndOfServiceIterDataType());
    end.SetMinNumberOfItems(1);
    end.SetMaxNumberOfItems(9);
    end.InterchangeableCollection().AddNewGapObject();
    Write(m_document);
    EXPECT_EQ(Query("SELECT kind FROM data_type ORDER BY id"),
              (Rows{"identity", "static repetition", "numerator repetition", "end marker repetition",
                    "end of service repetition"}));
    EXPECT_EQ(Query("SELECT * FROM static_repetition"), Rows{"2|4"});
    EXPECT_EQ(Query("SELECT * FROM numerator_repetition"), Rows{"3|1|8|0|2"});
    EXPECT_EQ(Query("SELECT * FROM end_marker_repetition"), Rows{"4|1|1"});
    EXPECT_EQ(Query("SELECT * FROM end_of_service_repetition"), Rows{"5|1|9"});
    EXPECT_EQ(Query("SELECT in_packet_id FROM interchangeable"), Rows{"5"});
}

TEST_F(PacketRowsTest, UnsetRepetitionsHaveTheirDefaults) {
    Append(m_types, m_document.MakeStaticIterDataType());
    Append(m_types, m_document.MakeNumeratorIterDataType());
    Append(m_types, m_document.MakeEndMarkerIterDataType());
    Append(m_types, m_document.MakeEndOfServiceIterDataType());
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM static_repetition"), Rows{"1|1"});
    EXPECT_EQ(Query("SELECT * FROM numerator_repetition"), Rows{"2|NULL|NULL|NULL|0"});
    EXPECT_EQ(Query("SELECT e.*, v.text FROM end_marker_repetition e JOIN value v ON v.id = e.termination_value_id"),
              Rows{"3|1|NULL|"});
    EXPECT_EQ(Query("SELECT * FROM end_of_service_repetition"), Rows{"4|0|NULL"});
}

TEST_F(PacketRowsTest, ReferencesToObjectsOutsideTheDocumentAreAbsentAndCounted) {
    VImportDoc other;
    VDataObject& foreign = other.InterchangeableCollection().AddNewDataObject();
    VDataObject& object = m_document.InterchangeableCollection().AddNewDataObject();
    object.SetDataType(&other.DataTypeCollection().AddNewIdentityDataType());
    object.SetSelectorDataObject(foreign);
    EXPECT_EQ(Write(m_document).unknownReferences, 2U);
    EXPECT_EQ(Query("SELECT data_type_id, selector_id FROM interchangeable"), Rows{"NULL|NULL"});
    EXPECT_EQ(Query("SELECT value FROM import_fact WHERE key = 'references to objects outside the document'"),
              Rows{"2"});
}

TEST_F(PacketRowsTest, BitFieldsMayNestDeeply) {
    VInterchangeableCollection* content = &m_types.AddNewPacketDataType().InterchangeableCollection();
    constexpr int depth = 2000;
    for (int level = 0; level < depth; ++level)
        content = &content->AddNewBitField().InterchangeableCollection();
    EXPECT_EQ(Write(m_document).RowsOf("interchangeable"), 2000U);
    EXPECT_EQ(Query("SELECT max(depth), count(in_bit_field_id) FROM interchangeable"), Rows{"1999|1999"});
}

} // namespace SqliteBackendTests
