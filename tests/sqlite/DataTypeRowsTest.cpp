#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

class DataTypeRowsTest : public WrittenDocument {
protected:
    VImportDoc m_document;
    VDataTypeCollection& m_types = m_document.DataTypeCollection();
};

VValue Physical(const wchar_t* text) {
    VValue value(text);
    value.IsPhysical(true);
    return value;
}

} // namespace

TEST_F(DataTypeRowsTest, EveryFieldOfAQualifiedObjectIsStored) {
    VIdentityDataType& type = m_types.AddNewIdentityDataType();
    type.SetQualifier(L"DT_Speed");
    type.SetName(L"Speed");
    type.Name().SetTextId(L"T1");
    type.SetDescription(L"How fast");
    type.Description().SetTextId(L"");
    type.SetObjectIdentifier(L"_17");
    type.SetSourceInfo(L"Layer/DT_Speed");
    type.IsImported(false);
    type.SetMayBeModified(false);
    type.SetSourceLayerInfo(VDataType::ecuSharedDataLayer);
    type.ReasonForIsImported(VDataType::usedByDiagComm);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM data_type"),
              Rows{"1|identity|DT_Speed|Speed|T1|How fast||_17|Layer/DT_Speed|0|0|3|3"});
}

TEST_F(DataTypeRowsTest, WhatIsAbsentIsNull) {
    m_types.AddNewIdentityDataType();
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM data_type"), Rows{"1|identity|||NULL||NULL|NULL||1|1|0|0"});
}

TEST_F(DataTypeRowsTest, AnIdentityTypeHasCodedAndDisplayProperties) {
    VIdentityDataType& type = m_types.AddNewIdentityDataType();
    type.CodedProperties().SetEncoding(VProperties::asciiText);
    type.CodedProperties().SetByteOrder(VProperties::lowHigh);
    type.CodedProperties().SetAtomicBitLength(16);
    type.CodedProperties().SetBitMask(0xFF00);
    type.CodedProperties().SetMinLength(1);
    type.CodedProperties().SetMaxLength(17);
    type.CodedProperties().SetSizeInfo(VFieldProperties::minMaxLengthZero);
    type.PhysicalDisplayProperties().SetDisplayFormat(VPhysicalDisplayProperties::hexadecimal);
    type.PhysicalDisplayProperties().SetPrecision(3);
    type.PhysicalDisplayProperties().SetUnit(L"km/h");
    type.PhysicalDisplayProperties().SetSigned(true);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM coded_properties"), Rows{"1|5|0|16|65280|1|4|1|17"});
    EXPECT_EQ(Query("SELECT * FROM display_properties"), Rows{"1|1|3|km/h|1"});
    EXPECT_EQ(Query("SELECT * FROM physical_properties"), Rows{});
}

TEST_F(DataTypeRowsTest, ALinearTypeHasItsConversionAndBothDisplayRecords) {
    VLinearDataType& type = m_types.AddNewLinearDataType();
    type.CodedAtomProperties().SetBitLength(12);
    type.PhysicalAtomProperties().SetEncoding(VProperties::floatingPoint);
    type.PhysicalAtomProperties().SetBitLength(64);
    type.PhysicalAtomProperties().SetUnit(L"V");
    type.PhysicalAtomProperties().SetPrecision(2);
    type.PhysicalDisplayProperties().SetUnit(L"mV");
    VLinearConversion& conversion = type.LinearConversion();
    conversion.SetFactorNumerator(0.25);
    conversion.SetFactorDenominator(3);
    conversion.SetOffset(-40.5);
    conversion.GetRange().SetStartValue(VValue(L"0"));
    conversion.SetCompuInverseValue(Physical(L"7"));
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM coded_properties"), Rows{"1|0|1|12|4294967295|NULL|NULL|NULL|NULL"});
    EXPECT_EQ(Query("SELECT * FROM physical_properties"), Rows{"1|2|64|0|2|V|0|NULL|NULL|NULL|NULL"});
    EXPECT_EQ(Query("SELECT * FROM display_properties"), Rows{"1|0|0|mV|0"});
    EXPECT_EQ(Query("SELECT * FROM linear_conversion"), Rows{"1|0|0.25|3|-40.5|1|NULL|2"});
    EXPECT_EQ(Query("SELECT * FROM value"), (Rows{"1|0|0|0", "2|7|1|0"}));
}

TEST_F(DataTypeRowsTest, APiecewiseLinearTypeHasItsSegmentsInNumericOrderOfTheirStart) {
    VPiecewiseLinearDataType& type = m_types.AddNewPiecewiseLinearDataType();
    for (const wchar_t* start : {L"100", L"20", L"-5", L"3"})
        type.LinearConversionCollection().AddNewLinearConversion().GetRange().SetStartValue(VValue(start));
    Write(m_document);
    EXPECT_EQ(Query("SELECT l.position, v.text FROM linear_conversion l JOIN value v ON v.id = l.start_value_id "
                    "ORDER BY l.position"),
              (Rows{"0|-5", "1|3", "2|20", "3|100"}));
}

TEST_F(DataTypeRowsTest, AValueTableKeepsItsRowsInOrder) {
    VValueTableDataType& type = m_types.AddNewValueTableDataType();
    type.IsInterpolated(true);
    for (const double coded : {2.0, 1.0}) {
        VValueTableRow& row = type.ValueTableRowCollection().AddNewValueTableRow();
        row.SetCodedValue(coded);
        row.SetMappedValue(coded * 10);
    }
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM value_table"), Rows{"1|1"});
    EXPECT_EQ(Query("SELECT * FROM value_table_row"), (Rows{"1|0|2.0|20.0", "1|1|1.0|10.0"}));
}

TEST_F(DataTypeRowsTest, NumbersThatAreNoneAreNullAndInfinitiesStay) {
    VValueTableDataType& type = m_types.AddNewValueTableDataType();
    VValueTableRow& row = type.ValueTableRowCollection().AddNewValueTableRow();
    row.SetCodedValue(std::numeric_limits<double>::quiet_NaN());
    row.SetMappedValue(-std::numeric_limits<double>::infinity());
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM value_table_row"), Rows{"1|0|NULL|-Inf"});
}

TEST_F(DataTypeRowsTest, ATextTableHasItsRowsAndItsDefault) {
    VTextTableDataType& type = m_types.AddNewTextTableDataType();
    type.TextTableRowCollection().DefaultValue().SetText(L"unknown");
    type.TextTableRowCollection().DefaultValue().SetTextId(L"T0");
    VTextTableRow& row = type.TextTableRowCollection().AddNewTextTableRow();
    VValue start(L"1");
    VValue end(L"5");
    row.SetStartValue(start);
    row.SetEndValue(end);
    row.SetMappedValue(L"on");
    row.MappedValue().SetTextId(L"T1");
    row.SetAdditionalInfo(L"info");
    row.SetCompuInverseValue(VValue(L"1"));
    type.TextTableRowCollection().AddNewTextTableRow();
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM text_table"), Rows{"1|unknown|T0"});
    EXPECT_EQ(Query("SELECT * FROM text_table_row"),
              (Rows{"1|0|1|2|on|T1|info|NULL|1", "1|1|NULL|NULL||NULL||NULL|NULL"}));
    EXPECT_EQ(Query("SELECT * FROM value"), (Rows{"1|1|0|0", "2|5|0|0"}));
}

TEST_F(DataTypeRowsTest, AFormulaTypeTellsAnEmptyInverseFromNone) {
    VFormulaDataType& without = m_types.AddNewFormulaDataType();
    without.SetCodedToPhysFormula(L"x*2");
    VFormulaDataType& with = m_types.AddNewFormulaDataType();
    with.SetPhysToCodedFormula(L"");
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM formula"), (Rows{"1|x*2|NULL", "2||"}));
}

TEST_F(DataTypeRowsTest, AProcedureTypeHasItsFunctionsAndTheirFiles) {
    VProcedureDataType& type = m_types.AddNewProcedureDataType();
    type.PhysicalProperties().SetMaxLength(9);
    type.PhysicalProperties().PhysicalAtomProperties().PhysicalDisplayProperties().SetSigned(true);
    VFunction& function = type.CodedToPhysFunctionCollection().AddNewFunction();
    function.SetEntryPoint(L"Main.convert");
    function.SetVersion(L"1.2");
    function.SetSyntax(L"JAVA");
    function.SetEncryption(L"RSA");
    function.SourceFile().SetPath(L"conv.jar");
    function.AdditionalFileCollection().AddNewAdditionalFile().SetPath(L"z.jar");
    function.AdditionalFileCollection().AddNewAdditionalFile().SetPath(L"a.jar");
    type.PhysToCodedFunctionCollection().AddNewFunction().SetEntryPoint(L"Main.back");
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM physical_properties"), Rows{"1|0|8|0|0||1|1|0|0|9"});
    EXPECT_EQ(
        Query("SELECT * FROM conversion_function"),
        (Rows{"1|1|coded to physical|0|1.2|Main.convert|JAVA|RSA|conv.jar", "2|1|physical to coded|0||Main.back|||"}));
    EXPECT_EQ(Query("SELECT * FROM additional_file"), (Rows{"1|0|a.jar", "1|1|z.jar"}));
}

TEST_F(DataTypeRowsTest, InvalidRangesAreStoredInTheOrderOfTheirStart) {
    VDataType& type = m_types.AddNewIdentityDataType();
    VInvalidRange& high = type.InvalidRangeCollection().AddNewInvalidRange();
    high.SetRange(VValue(L"254"), VValue(L"255"));
    high.SetInvalidity(VInvalidRange::notAvailable);
    high.SetAssignedText(L"n/a");
    high.AssignedText().SetTextId(L"T9");
    type.InvalidRangeCollection().AddNewInvalidRange().SetEndValue(VValue(L"9"));
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM invalid_range"), (Rows{"1|0|NULL|1|3||NULL", "1|1|2|3|2|n/a|T9"}));
}

TEST_F(DataTypeRowsTest, AFieldValueKeepsItsElements) {
    VLinearDataType& type = m_types.AddNewLinearDataType();
    VValue field;
    field.SetNonTextField(L"12 34");
    type.LinearConversion().GetRange().SetStartValue(field);
    field.SetNonTextField(L"");
    type.LinearConversion().GetRange().SetEndValue(field);
    Write(m_document);
    EXPECT_EQ(Query("SELECT * FROM value"), (Rows{"1|12 34|0|1", "2||0|1"}));
    EXPECT_EQ(Query("SELECT * FROM value_element"), (Rows{"1|0|12", "1|1|34"}));
}

TEST_F(DataTypeRowsTest, EqualValuesShareARowAndDifferentOnesDoNot) {
    VLinearDataType& type = m_types.AddNewLinearDataType();
    VValue joined(L"1 2");
    VValue split;
    split.SetNonTextField(L"1 2");
    type.LinearConversion().GetRange().SetStartValue(joined);
    type.LinearConversion().GetRange().SetEndValue(split);
    type.LinearConversion().SetCompuInverseValue(joined);
    Write(m_document);
    EXPECT_EQ(Query("SELECT start_value_id, end_value_id, inverse_value_id FROM linear_conversion"), Rows{"1|2|1"});
}

TEST_F(DataTypeRowsTest, NumbersOutsideTheEnumerationsAreStoredAsTheyAre) {
    VIdentityDataType& type = m_types.AddNewIdentityDataType();
    type.CodedProperties().SetEncoding(static_cast<VProperties::VEncoding>(4711));
    type.SetSourceLayerInfo(static_cast<VDataType::VSourceLayerInfo>(-3));
    type.InvalidRangeCollection().AddNewInvalidRange().SetInvalidity(
        static_cast<VInvalidRange::VInvalidity>(0xFFFFFFFFU));
    Write(m_document);
    EXPECT_EQ(Query("SELECT encoding FROM coded_properties"), Rows{"4711"});
    EXPECT_EQ(Query("SELECT source_layer FROM data_type"), Rows{"-3"});
    EXPECT_EQ(Query("SELECT invalidity FROM invalid_range"), Rows{"4294967295"});
}

} // namespace SqliteBackendTests
