#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/Function.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/LinearConversion.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/TextTableRow.h>
#include <ImportDame/ValueTableDataType.h>
#include <ImportDame/ValueTableRow.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;

namespace {

class ScalarDataTypesTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
};

template <class DataType>
void ExpectScalarKind() {
    static_assert(std::is_base_of_v<VDataType, DataType>);
    static_assert(!std::is_abstract_v<DataType>);
    static_assert(!std::is_copy_constructible_v<DataType>);
    static_assert(!std::is_copy_assignable_v<DataType>);
    static_assert(std::is_constructible_v<DataType, VDataTypeCollection&>);
}

TEST_F(ScalarDataTypesTest, AreDataTypesThatAreNotCopied) {
    ExpectScalarKind<VIdentityDataType>();
    ExpectScalarKind<VLinearDataType>();
    ExpectScalarKind<VPiecewiseLinearDataType>();
    ExpectScalarKind<VValueTableDataType>();
    ExpectScalarKind<VTextTableDataType>();
    ExpectScalarKind<VFormulaDataType>();
    ExpectScalarKind<VProcedureDataType>();
    SUCCEED();
}

TEST_F(ScalarDataTypesTest, IdentityHasFullCodedPropertiesAndADisplayRecord) {
    VIdentityDataType& dataType = m_dataTypes.AddNewIdentityDataType();
    EXPECT_TRUE(dataType.CodedProperties() == VCodedProperties());
    EXPECT_TRUE(dataType.PhysicalDisplayProperties() == VPhysicalDisplayProperties());
    dataType.CodedProperties().SetMaxLength(17);
    dataType.PhysicalDisplayProperties().SetUnit(L"s");
    EXPECT_EQ(dataType.CodedProperties().GetMaxLength(), 17U);
    EXPECT_STREQ(dataType.PhysicalDisplayProperties().GetUnit(), L"s");
}

/// Of the three kinds with two display records.
template <class DataType>
void ExpectIndependentDisplayRecords(DataType& dataType) {
    EXPECT_TRUE(dataType.CodedAtomProperties() == VCodedAtomProperties());
    EXPECT_TRUE(dataType.PhysicalAtomProperties() == VPhysicalAtomProperties());
    EXPECT_TRUE(dataType.PhysicalDisplayProperties() == VPhysicalDisplayProperties());
    dataType.PhysicalDisplayProperties().SetUnit(L"km");
    dataType.PhysicalDisplayProperties().SetPrecision(3);
    EXPECT_STREQ(dataType.PhysicalAtomProperties().PhysicalDisplayProperties().GetUnit(), L"");
    EXPECT_EQ(dataType.PhysicalAtomProperties().GetPrecision(), 0U);
    dataType.PhysicalAtomProperties().SetUnit(L"mi");
    EXPECT_STREQ(dataType.PhysicalDisplayProperties().GetUnit(), L"km");
    EXPECT_STREQ(dataType.PhysicalAtomProperties().PhysicalDisplayProperties().GetUnit(), L"mi");
    dataType.CodedAtomProperties().SetBitLength(12);
    EXPECT_EQ(dataType.CodedAtomProperties().GetBitLength(), 12U);
    EXPECT_EQ(dataType.PhysicalAtomProperties().GetBitLength(), 8U);
}

TEST_F(ScalarDataTypesTest, TheTwoDisplayRecordsAreIndependent) {
    ExpectIndependentDisplayRecords(m_dataTypes.AddNewLinearDataType());
    ExpectIndependentDisplayRecords(m_dataTypes.AddNewPiecewiseLinearDataType());
    ExpectIndependentDisplayRecords(m_dataTypes.AddNewValueTableDataType());
}

TEST_F(ScalarDataTypesTest, LinearStartsWithTheNeutralConversion) {
    VLinearConversion& conversion = m_dataTypes.AddNewLinearDataType().LinearConversion();
    EXPECT_EQ(conversion.GetFactorNumerator(), 1.0);
    EXPECT_EQ(conversion.GetFactorDenominator(), 1U);
    EXPECT_EQ(conversion.GetOffset(), 0.0);
    EXPECT_FALSE(conversion.HasStartValue());
    EXPECT_FALSE(conversion.HasEndValue());
    EXPECT_FALSE(conversion.HasCompuInverseValue());
}

TEST_F(ScalarDataTypesTest, PiecewiseLinearOwnsItsSegments) {
    VPiecewiseLinearDataType& dataType = m_dataTypes.AddNewPiecewiseLinearDataType();
    EXPECT_TRUE(dataType.LinearConversionCollection().IsEmpty());
    dataType.LinearConversionCollection().AddNewLinearConversion().SetOffset(40.0);
    EXPECT_EQ(dataType.LinearConversionCollection().Count(), 1U);
    EXPECT_EQ(dataType.LinearConversionCollection().Begin()->GetOffset(), 40.0);
}

TEST_F(ScalarDataTypesTest, AValueTableIsNotInterpolatedUntilSaidSo) {
    VValueTableDataType& dataType = m_dataTypes.AddNewValueTableDataType();
    EXPECT_FALSE(dataType.IsInterpolated());
    EXPECT_TRUE(dataType.ValueTableRowCollection().IsEmpty());
    dataType.IsInterpolated(true);
    EXPECT_TRUE(dataType.IsInterpolated());
    dataType.IsInterpolated(false);
    EXPECT_FALSE(dataType.IsInterpolated());
    dataType.ValueTableRowCollection().AddNewValueTableRow().SetCodedValue(1.0);
    EXPECT_EQ(dataType.ValueTableRowCollection().Count(), 1U);
}

TEST_F(ScalarDataTypesTest, TextTableHasCodedPropertiesAndRows) {
    VTextTableDataType& dataType = m_dataTypes.AddNewTextTableDataType();
    EXPECT_TRUE(dataType.CodedProperties() == VCodedProperties());
    EXPECT_TRUE(dataType.TextTableRowCollection().IsEmpty());
    EXPECT_STREQ(dataType.TextTableRowCollection().DefaultValue().GetText(), L"");
    dataType.TextTableRowCollection().AddNewTextTableRow().SetMappedValue(L"on");
    EXPECT_STREQ(dataType.TextTableRowCollection().Begin()->GetMappedValue(), L"on");
}

TEST_F(ScalarDataTypesTest, AFormulaTypeStartsWithoutFormulas) {
    VFormulaDataType& dataType = m_dataTypes.AddNewFormulaDataType();
    EXPECT_TRUE(dataType.CodedAtomProperties() == VCodedAtomProperties());
    EXPECT_TRUE(dataType.PhysicalAtomProperties() == VPhysicalAtomProperties());
    EXPECT_STREQ(dataType.GetCodedToPhysFormula(), L"");
    EXPECT_STREQ(dataType.GetPhysToCodedFormula(), L"");
    EXPECT_FALSE(dataType.HasPhysToCodedFormula());
}

TEST_F(ScalarDataTypesTest, AFormulaBackIsThereOnceItWasSetAlsoWhenEmpty) {
    VFormulaDataType& dataType = m_dataTypes.AddNewFormulaDataType();
    dataType.SetCodedToPhysFormula(L"x * 2");
    EXPECT_FALSE(dataType.HasPhysToCodedFormula());
    dataType.SetPhysToCodedFormula(L"");
    EXPECT_TRUE(dataType.HasPhysToCodedFormula());
    EXPECT_STREQ(dataType.GetPhysToCodedFormula(), L"");
    dataType.SetPhysToCodedFormula(L"x / 2");
    EXPECT_STREQ(dataType.GetPhysToCodedFormula(), L"x / 2");
    dataType.SetPhysToCodedFormula(L"");
    EXPECT_TRUE(dataType.HasPhysToCodedFormula());
    EXPECT_STREQ(dataType.GetCodedToPhysFormula(), L"x * 2");
}

TEST_F(ScalarDataTypesTest, AFormulaMayBeSetFromAPartOfItself) {
    VFormulaDataType& dataType = m_dataTypes.AddNewFormulaDataType();
    dataType.SetCodedToPhysFormula(L"-(x + 1)");
    dataType.SetCodedToPhysFormula(dataType.GetCodedToPhysFormula() + 1);
    EXPECT_STREQ(dataType.GetCodedToPhysFormula(), L"(x + 1)");
    dataType.SetPhysToCodedFormula(dataType.GetCodedToPhysFormula());
    dataType.SetPhysToCodedFormula(dataType.GetPhysToCodedFormula() + 1);
    EXPECT_STREQ(dataType.GetPhysToCodedFormula(), L"x + 1)");
}

TEST_F(ScalarDataTypesTest, AProcedureTypeHasTwoSeparateFunctionCollections) {
    VProcedureDataType& dataType = m_dataTypes.AddNewProcedureDataType();
    EXPECT_TRUE(dataType.CodedProperties() == VCodedProperties());
    EXPECT_TRUE(dataType.PhysicalProperties() == VPhysicalProperties());
    EXPECT_TRUE(dataType.CodedToPhysFunctionCollection().IsEmpty());
    EXPECT_TRUE(dataType.PhysToCodedFunctionCollection().IsEmpty());
    dataType.CodedToPhysFunctionCollection().AddNewFunction();
    EXPECT_EQ(dataType.CodedToPhysFunctionCollection().Count(), 1U);
    EXPECT_EQ(dataType.PhysToCodedFunctionCollection().Count(), 0U);
    dataType.CodedProperties().SetMinLength(1);
    EXPECT_EQ(dataType.CodedProperties().GetQuantity(), VProperties::field);
    EXPECT_EQ(dataType.PhysicalProperties().GetQuantity(), VProperties::atomic);
    dataType.PhysicalProperties().SetUnit(L"bar");
    EXPECT_STREQ(dataType.PhysicalProperties().GetUnit(), L"bar");
}

} // namespace
