#include "support/Sample.h"

#include <gtest/gtest.h>

using namespace ImportDame;
using OdxTests::Attribute;
using OdxTests::Describe;
using OdxTests::Sample;

namespace {

/// Ranges in any order: "[,9]:3 [250,]:3 [255,255]:2 sensor missing".
std::vector<std::wstring> InvalidRanges(VDataType& type) {
    std::vector<std::wstring> texts;
    for (VInvalidRange& range : type.InvalidRangeCollection())
        texts.push_back(Describe(range) + L":" + std::to_wstring(range.GetInvalidity()) + range.GetAssignedText());
    std::sort(texts.begin(), texts.end());
    return texts;
}

} // namespace

TEST(SampleDataTypesTest, ThereIsOneTypeForEachObjectAndOneForEachCodedTypeOfParameters) {
    EXPECT_EQ(Sample().document.DataTypeCollection().Count(), 48u);
    EXPECT_EQ(Sample().document.DataTypeCollection().ImportedCount(), 48u);
}

TEST(SampleDataTypesTest, LinearTypeHasFactorOffsetRangePropertiesUnitAndTexts) {
    auto& type = Sample().DataType<VLinearDataType>(L"Temperature");
    EXPECT_EQ(type.LinearConversion().GetFactorNumerator(), 1.0);
    EXPECT_EQ(type.LinearConversion().GetFactorDenominator(), 2u);
    EXPECT_EQ(type.LinearConversion().GetOffset(), -40.0);
    EXPECT_EQ(Describe(type.LinearConversion().GetRange()), L"[0,254]");
    EXPECT_EQ(type.CodedAtomProperties().GetBitLength(), 8u);
    EXPECT_EQ(type.CodedAtomProperties().GetEncoding(), VProperties::unsignedInteger);
    EXPECT_EQ(type.CodedAtomProperties().GetByteOrder(), VProperties::highLow);
    EXPECT_EQ(type.PhysicalAtomProperties().GetEncoding(), VProperties::floatingPoint);
    EXPECT_EQ(type.PhysicalAtomProperties().GetBitLength(), 64u);
    EXPECT_EQ(type.PhysicalDisplayProperties().GetPrecision(), 1u);
    EXPECT_TRUE(type.PhysicalDisplayProperties().IsSigned());
    EXPECT_STREQ(type.PhysicalDisplayProperties().GetUnit(), L"\u00B0C");
    EXPECT_STREQ(type.PhysicalAtomProperties().GetUnit(), L"\u00B0C");
    EXPECT_STREQ(type.GetName(), L"Temperature of the coolant");
    EXPECT_STREQ(type.Name().GetTextId(), L"dop.temperature.ln");
    EXPECT_EQ(std::wstring(type.GetDescription()), L"Measured at the outlet.\nK\u00FChlmittel \U0001F697");
    EXPECT_STREQ(type.Description().GetTextId(), L"dop.temperature.d");
    EXPECT_STREQ(type.GetObjectIdentifier(), L"dop.temperature");
    EXPECT_STREQ(type.GetSourceInfo(), L"BASE-VARIANT CoolantPump");
    EXPECT_EQ(type.GetSourceLayerInfo(), VDataType::baseVariantLayer);
}

TEST(SampleDataTypesTest, InternalConstraintsAreInvalidRanges) {
    EXPECT_EQ(InvalidRanges(Sample().DataType<VLinearDataType>(L"Temperature")),
              (std::vector<std::wstring>{L"[,9]:3", L"[250,]:3", L"[255,255]:2sensor missing"}));
}

TEST(SampleDataTypesTest, PiecewiseLinearTypeHasASegmentForEachScale) {
    auto& type = Sample().DataType<VPiecewiseLinearDataType>(L"Speed");
    std::vector<std::wstring> segments;
    for (VLinearConversion& segment : type.LinearConversionCollection())
        segments.push_back(
            Describe(segment.GetRange()) + L" " + std::to_wstring(static_cast<int>(segment.GetFactorNumerator())) +
            L"/" + std::to_wstring(segment.GetFactorDenominator()) + L"+" +
            std::to_wstring(static_cast<int>(segment.GetOffset())) +
            (segment.HasCompuInverseValue() ? std::wstring(L" back ") + segment.GetCompuInverseValue().Get() : L""));
    std::sort(segments.begin(), segments.end());
    EXPECT_EQ(segments,
              (std::vector<std::wstring>{L"[0,99] 10/1+0", L"[100,200] 5/1+500", L"[201,] 0/1+1500 back 201"}));
    EXPECT_STREQ(type.PhysicalDisplayProperties().GetUnit(), L"1/min");
}

TEST(SampleDataTypesTest, TextTableTypeHasRowsInOrderWithTextIdentifiersInverseValuesAndDefault) {
    VTextTableRowCollection& rows = Sample().DataType<VTextTableDataType>(L"Mode").TextTableRowCollection();
    ASSERT_EQ(rows.Count(), 2u);
    auto at = rows.Begin();
    EXPECT_EQ(Describe((*at).GetRange()), L"[0,0]");
    EXPECT_STREQ((*at).GetMappedValue(), L"idle");
    EXPECT_STREQ((*at).MappedValue().GetTextId(), L"mode.idle");
    EXPECT_STREQ((*at).GetAdditionalInfo(), L"m0");
    EXPECT_STREQ((*at).GetCompuInverseValue().Get(), L"0");
    ++at;
    EXPECT_EQ(Describe((*at).GetRange()), L"[1,3]");
    EXPECT_STREQ((*at).GetMappedValue(), L"running");
    EXPECT_FALSE((*at).HasCompuInverseValue());
    EXPECT_STREQ(rows.DefaultValue().GetText(), L"unknown mode");
}

TEST(SampleDataTypesTest, ValueTableTypeIsInterpolatedAndHasItsRows) {
    auto& type = Sample().DataType<VValueTableDataType>(L"Flow");
    EXPECT_TRUE(type.IsInterpolated());
    std::vector<std::pair<double, double>> rows;
    for (VValueTableRow& row : type.ValueTableRowCollection())
        rows.emplace_back(row.GetCodedValue(), row.GetMappedValue());
    EXPECT_EQ(rows, (std::vector<std::pair<double, double>>{{0, 0}, {128, 12.5}, {255, 40}}));
}

TEST(SampleDataTypesTest, RationalFunctionsAreFormulaTexts) {
    auto& ratio = Sample().DataType<VFormulaDataType>(L"Ratio");
    EXPECT_STREQ(ratio.GetCodedToPhysFormula(), L"(1 + 2*x + 0.5*x^2) / (3*x)");
    ASSERT_TRUE(ratio.HasPhysToCodedFormula());
    EXPECT_STREQ(ratio.GetPhysToCodedFormula(), L"(10*x) / (1)");
    auto& stages = Sample().DataType<VFormulaDataType>(L"Stages");
    EXPECT_STREQ(stages.GetCodedToPhysFormula(), L"x >= 0 && x < 10 ? (1*x) / (2); x >= 10 && x <= 20 ? (5) / (1)");
    EXPECT_FALSE(stages.HasPhysToCodedFormula());
}

TEST(SampleDataTypesTest, ComputationCodeIsAFunctionWithItsFiles) {
    auto& type = Sample().DataType<VProcedureDataType>(L"Seed");
    ASSERT_EQ(type.CodedToPhysFunctionCollection().Count(), 1u);
    EXPECT_EQ(type.PhysToCodedFunctionCollection().Count(), 0u);
    VFunction& function = *type.CodedToPhysFunctionCollection().Begin();
    EXPECT_STREQ(function.SourceFile().GetPath(), L"seed.jar");
    EXPECT_STREQ(function.GetSyntax(), L"JAR");
    EXPECT_STREQ(function.GetVersion(), L"1.2");
    EXPECT_STREQ(function.GetEntryPoint(), L"pump.Seed");
    ASSERT_EQ(function.AdditionalFileCollection().Count(), 1u);
    EXPECT_STREQ((*function.AdditionalFileCollection().Begin()).GetPath(), L"crypto.jar");
    EXPECT_EQ(type.CodedProperties().GetQuantity(), VProperties::field);
    EXPECT_EQ(type.CodedProperties().GetMinLength(), 4u);
    EXPECT_EQ(type.CodedProperties().GetMaxLength(), 4u);
}

TEST(SampleDataTypesTest, CodedPropertiesFollowTheDiagCodedType) {
    auto& status = Sample().DataType<VIdentityDataType>(L"StatusByte");
    EXPECT_EQ(status.CodedProperties().GetBitMask(), 0x7Fu);
    EXPECT_TRUE(status.CodedProperties().HasBitMask());
    auto& word = Sample().DataType<VIdentityDataType>(L"Word");
    EXPECT_EQ(word.CodedProperties().GetByteOrder(), VProperties::lowHigh);
    EXPECT_EQ(word.CodedProperties().GetAtomicBitLength(), 16u);
    EXPECT_EQ(word.CodedProperties().GetQuantity(), VProperties::atomic);
    auto& trim = Sample().DataType<VIdentityDataType>(L"Trim");
    EXPECT_EQ(trim.CodedProperties().GetEncoding(), VProperties::twosComplement);
    EXPECT_TRUE(trim.PhysicalDisplayProperties().IsSigned());
    auto& byte = Sample().DataType<VIdentityDataType>(L"Byte");
    EXPECT_EQ(byte.PhysicalDisplayProperties().GetDisplayFormat(), VPhysicalDisplayProperties::hexadecimal);
    EXPECT_EQ(byte.GetSourceLayerInfo(), VDataType::protocolLayer);
    EXPECT_STREQ(byte.GetSourceInfo(), L"PROTOCOL UDS");
}

TEST(SampleDataTypesTest, VariableLengthsAreFieldProperties) {
    VCodedProperties& name = Sample().DataType<VIdentityDataType>(L"Name").CodedProperties();
    EXPECT_EQ(name.GetEncoding(), VProperties::asciiText);
    EXPECT_EQ(name.GetSizeInfo(), VFieldProperties::minMaxLengthZero);
    EXPECT_EQ(name.GetMinLength(), 1u);
    EXPECT_EQ(name.GetMaxLength(), 20u);
    VCodedProperties& blob = Sample().DataType<VIdentityDataType>(L"Blob").CodedProperties();
    EXPECT_EQ(blob.GetSizeInfo(), VFieldProperties::leadingLength);
    EXPECT_EQ(blob.GetMaxLength(), 255u);
    EXPECT_EQ(Attribute(Sample().DataType<VIdentityDataType>(L"Blob").Attributes(), L"LENGTH-FIELD-BITS"), L"8");
    VCodedProperties& sized = Sample().DataType<VIdentityDataType>(L"Sized").CodedProperties();
    EXPECT_EQ(sized.GetSizeInfo(), VFieldProperties::paramLength);
}

TEST(SampleDataTypesTest, UnitsAreThoseOfTheLayersAndThoseThatAreUsed) {
    std::vector<std::wstring> units;
    for (VUnit& unit : Sample().document.UnitCollection())
        units.push_back(std::wstring(unit.GetQualifier()) + L" " + unit.GetDisplayName());
    std::sort(units.begin(), units.end());
    EXPECT_EQ(units, (std::vector<std::wstring>{L"bar bar", L"degreeCelsius \u00B0C", L"revolutionsPerMinute 1/min"}));
    for (VUnit& unit : Sample().document.UnitCollection()) {
        if (std::wstring_view(unit.GetQualifier()) != L"degreeCelsius")
            continue;
        EXPECT_EQ(Attribute(unit.Attributes(), L"OFFSET-SI-TO-UNIT"), L"-273.15");
        EXPECT_EQ(Attribute(unit.Attributes(), L"PHYSICAL-DIMENSION"), L"temperature");
        EXPECT_STREQ(unit.Name().GetTextId(), L"u.degC.ln");
        EXPECT_STREQ(unit.GetSourceInfo() + std::wstring_view(unit.GetSourceInfo()).find(L'!') + 1, L"units.odx-cs");
    }
}
