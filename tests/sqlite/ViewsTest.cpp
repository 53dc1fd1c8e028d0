#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

class ViewsTest : public WrittenDocument {
protected:
    VImportDoc m_document;
    VDataTypeCollection& m_types = m_document.DataTypeCollection();
};

} // namespace

TEST_F(ViewsTest, EveryViewCanBeReadOfAnEmptyDocument) {
    Write(m_document);
    const Rows views = Query("SELECT name FROM sqlite_master WHERE type = 'view' ORDER BY name");
    EXPECT_EQ(views, (Rows{"data_type_conversions", "data_types", "import_losses", "invalid_ranges", "mux_cases",
                           "packet_content", "services", "trouble_code_records", "trouble_codes"}));
    for (const std::string& view : views)
        EXPECT_EQ(Query("SELECT * FROM " + view), Rows{}) << view;
}

TEST_F(ViewsTest, EveryTableAndViewIsDescribed) {
    Write(m_document);
    const std::string description = ReadFile(DOCS_DIR "/database.md");
    for (const std::string& name : Query("SELECT name FROM sqlite_master WHERE type IN ('table', 'view')"))
        EXPECT_NE(description.find('`' + name + '`'), std::string::npos) << name;
}

TEST_F(ViewsTest, TroubleCodesShowTheirRecordByTheNamesOfTheTemplate) {
    VTroubleCodeCollection& collection = m_document.TroubleCodeCollectionCollection().AppendNew();
    collection.SetSourceName(L"Engine");
    VItemMapping item;
    item.SetContent(L"Display code");
    collection.RecordTemplateMapping().Append(item);
    VTroubleCode& code = collection.AppendNew();
    code.SetCode(0x1234);
    code.SetErrorText(L"Sensor");
    code.AppendItem(L"P1234");
    code.InsertEnumRecordItem(1, L"extra", 4);
    collection.AppendNew();
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM trouble_codes"),
              (Rows{"Engine|0x001234|Sensor|Display code=P1234; extra|1|1", "Engine|0x000000||NULL|1|2"}));
    EXPECT_EQ(Query("SELECT * FROM trouble_code_records"),
              (Rows{"Engine|0x001234|0|Display code|P1234|NULL|NULL|1", "Engine|0x001234|1|NULL|extra|4|NULL|1"}));
}

TEST_F(ViewsTest, ServicesShowTheirShapes) {
    m_document.GetBaseVariant().SetQualifier(L"BV");
    VDiagService& service = m_document.GetBaseVariant().DiagCommCollection().AddNewDiagService(0x22);
    service.SetQualifier(L"Read");
    service.DiagServiceShapeCollection().AddNewDiagServiceShape().SetSubValue(0xF190);
    m_document.GetBaseVariant().DiagCommCollection().AddNewDiagJob().SetQualifier(L"Job");
    Write(m_document);
    EXPECT_EQ(Query("SELECT variant_kind, variant, kind, qualifier, service_id, shape, sub_value FROM services"),
              (Rows{"base variant|BV|service|Read|0x22||0xF190", "base variant|BV|job|Job|NULL|NULL|NULL"}));
}

TEST_F(ViewsTest, DataTypesAreReadable) {
    VIdentityDataType& type = m_types.AddNewIdentityDataType();
    type.SetQualifier(L"Text");
    type.CodedProperties().SetEncoding(VProperties::asciiText);
    type.CodedProperties().SetMaxLength(17);
    type.PhysicalDisplayProperties().SetUnit(L"km/h");
    m_types.AddNewPacketDataType().SetQualifier(L"Packet");
    Write(m_document);
    EXPECT_EQ(Query("SELECT qualifier, kind, coded_as, bit_length, byte_order, bit_mask, field_length, physical_as, "
                    "unit, source_layer FROM data_types"),
              (Rows{"Text|identity|ASCII text|8|high byte first|NULL|0 to 17 elements|NULL|km/h|unknown",
                    "Packet|packet|NULL|NULL|NULL|NULL|NULL|NULL|NULL|unknown"}));
}

TEST_F(ViewsTest, ConversionsOfAllKindsAreFlattened) {
    VLinearDataType& linear = m_types.AddNewLinearDataType();
    linear.LinearConversion().SetFactorNumerator(0.5);
    linear.LinearConversion().SetOffset(-40);
    VTextTableDataType& texts = m_types.AddNewTextTableDataType();
    texts.TextTableRowCollection().DefaultValue().SetText(L"else");
    VTextTableRow& row = texts.TextTableRowCollection().AddNewTextTableRow();
    VValue one(L"1");
    row.SetStartValue(one);
    row.SetMappedValue(L"on");
    VValueTableRow& value = m_types.AddNewValueTableDataType().ValueTableRowCollection().AddNewValueTableRow();
    value.SetCodedValue(1.5);
    value.SetMappedValue(3);
    VFormulaDataType& formula = m_types.AddNewFormulaDataType();
    formula.SetCodedToPhysFormula(L"x*x");
    VFunction& function = m_types.AddNewProcedureDataType().CodedToPhysFunctionCollection().AddNewFunction();
    function.SetEntryPoint(L"main");
    function.SourceFile().SetPath(L"a.jar");
    Write(m_document);
    EXPECT_EQ(Query("SELECT kind, position, from_value, to_value, conversion, inverse_value "
                    "FROM data_type_conversions"),
              (Rows{"linear|0|NULL|NULL|coded * 0.5 / 1 - 40|NULL", "text table|0|1|NULL|on|NULL",
                    "text table|NULL|NULL|NULL|else|NULL", "value table|0|1.5|1.5|3.0|NULL",
                    "formula|0|NULL|NULL|x*x|NULL", "procedure|0|NULL|NULL|coded to physical: main in a.jar|NULL"}));
}

TEST_F(ViewsTest, PacketContentIsInOrderAndDepth) {
    VIdentityDataType& type = m_types.AddNewIdentityDataType();
    type.SetQualifier(L"Byte");
    VMuxDataType& mux = m_types.AddNewMuxDataType();
    mux.SetQualifier(L"Mux");
    mux.SetSelectorDataType(type);
    VCase& muxCase = mux.GetCaseCollection().AddNewCase();
    muxCase.SetQualifier(L"C1");
    muxCase.Range().SetStartValue(VValue(L"1"));
    VBitField& bits = muxCase.InterchangeableCollection().AddNewBitField();
    bits.SetQualifier(L"Bits");
    VDataObject& object = bits.InterchangeableCollection().AddNewDataObject();
    object.SetQualifier(L"Bit");
    object.SetDataType(&type);
    object.SetSemantics(VBaseDataObject::data);
    object.SetConstValue(VValue(L"1"));
    VValue physical(L"20");
    physical.IsPhysical(true);
    object.SetDefaultValue(physical);
    mux.GetDefaultCase().AddNewGapObject().SetBitLength(8);
    Write(m_document);
    EXPECT_EQ(Query("SELECT packet, part, depth, position, kind, qualifier, semantics, data_type, const_value, "
                    "const_is_physical, default_value, default_is_physical, bit_length FROM packet_content"),
              (Rows{"Mux|case C1|0|0|bit field|Bits|none|NULL|NULL|NULL|NULL|NULL|NULL",
                    "Mux|case C1|1|0|data object|Bit|data|Byte|1|0|20|1|NULL",
                    "Mux|default case|0|0|gap||NULL|NULL|NULL|NULL|NULL|NULL|8"}));
    EXPECT_EQ(Query("SELECT mux, selector, mux_case, from_value, to_value, is_physical, members FROM mux_cases"),
              Rows{"Mux|Byte|C1|1|NULL|0|2"});
}

TEST_F(ViewsTest, InvalidRangesAreReadable) {
    VDataType& type = m_types.AddNewIdentityDataType();
    type.InvalidRangeCollection().AddNewInvalidRange().SetRange(VValue(L"254"), VValue(L"255"));
    VValue physical(L"100");
    physical.IsPhysical(true);
    m_types.AddNewIdentityDataType().InvalidRangeCollection().AddNewInvalidRange().SetEndValue(physical);
    Write(m_document);
    EXPECT_EQ(Query("SELECT from_value, to_value, is_physical, invalidity FROM invalid_ranges"),
              (Rows{"254|255|0|not valid", "NULL|100|1|not valid"}));
}

} // namespace SqliteBackendTests
