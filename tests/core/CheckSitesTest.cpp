#include <ImportDame/FailureReport.h>

#include <gtest/gtest.h>

#include <string_view>

namespace {

struct Row {
    int errorCode;
    std::string_view expression;
    std::string_view sourceFile;
    int line;
};

constexpr Row g_rows[] = {
    {101048, "false", "AdditionalFileCollection.cpp", 98},
    {101049, "iter != End()", "AttributeCollection.cpp", 159},
    {101050, "iter != End()", "AttributeCollection.cpp", 167},
    {101051, "iter != m_collection.end()", "AttributeCollection.cpp", 175},
    {101052, "HasCompuInverseValue()", "Conversion.cpp", 57},
    {101053, "m_hasDefaultValue", "DataObject.cpp", 63},
    {101055, "m_hasConstValue", "DataObject.cpp", 80},
    {101056, "HasSelectorDataObject()", "DataObject.cpp", 97},
    {101057, "iter != End()", "DataTypeCollection.cpp", 147},
    {101058, "iter != End()", "DataTypeCollection.cpp", 155},
    {101059, "iter != m_collection.end()", "DataTypeCollection.cpp", 163},
    {101060, "iter != End()", "DiagCommCollection.cpp", 121},
    {101061, "iter != End()", "DiagCommCollection.cpp", 129},
    {101062, "iter != m_collection.end()", "DiagCommCollection.cpp", 137},
    {101062, "iter != End()", "DiagServiceShapeCollection.cpp", 122},
    {101063, "iter != End()", "DiagServiceShapeCollection.cpp", 130},
    {101064, "iter != m_collection.end()", "DiagServiceShapeCollection.cpp", 138},
    {101065, "iter != End()", "EcuVariantCollection.cpp", 138},
    {101070, "iter != End()", "EcuVariantCollection.cpp", 148},
    {101071, "iter != mCollection.end()", "EcuVariantCollection.cpp", 158},
    {101072, "false", "FunctionCollection.cpp", 98},
    {101073, "iter != End()", "InterchangeableCollection.cpp", 148},
    {101075, "iter != End()", "InterchangeableCollection.cpp", 156},
    {101076, "iter != m_collection.end()", "InterchangeableCollection.cpp", 164},
    {102000, "false", "InvalidRangeCollection.cpp", 92},
    {102001, "false", "LinearConversionCollection.cpp", 99},
    {102001, "HasSelectorDataType()", "MuxDataType.cpp", 93},
    {102003, "HasMuxStartBitPosition()", "MuxDataType.cpp", 116},
    {102004, "HasSelectorStartBitPosition()", "MuxDataType.cpp", 151},
    {102005, "HasSelectorDataType()", "NumeratorIterDataType.cpp", 79},
    {102006, "HasContentStartBitPosition()", "NumeratorIterDataType.cpp", 102},
    {102007, "HasSelectorStartBitPosition()", "NumeratorIterDataType.cpp", 137},
    {102008, "m_hasDid", "PacketDataType.cpp", 73},
    {102009, "m_hasStartValue", "Range.cpp", 52},
    {102010, "m_hasEndValue", "Range.cpp", 69},
    {102011, "iter != End()", "RecordItemCollection.cpp", 145},
    {102012, "iter != End()", "RecordItemCollection.cpp", 155},
    {102012, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 231},
    {102013, "iter != m_collection.end()", "RecordItemCollection.cpp", 165},
    {102014, "iNum >= 0 && iNum < mItemMappings.size()", "RecordTemplateMapping.cpp", 176},
    {102015, "iNum < mItemMappings.size()", "RecordTemplateMapping.cpp", 212},
    {102016, "IsDtcPool()", "ServiceMapping.cpp", 180},
    {102016, "mbHasTextId", "Text.cpp", 69},
    {102019, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 154},
    {102020, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 164},
    {102021, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 204},
    {102022, "iNum < mRecordItemCollection.Count()", "TroubleCode.cpp", 229},
    {102024, "iNum < mRecordItemCollection.Count()", "TroubleCode.cpp", 240},
    {102025, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 242},
    {102026, "iter != End()", "TroubleCodeCollection.cpp", 237},
    {102027, "iter != End()", "TroubleCodeCollection.cpp", 247},
    {102028, "iter != m_collection.end()", "TroubleCodeCollection.cpp", 257},
    {102029, "iter != End()", "TroubleCodeCollectionCollection.cpp", 282},
    {102030, "iter != End()", "TroubleCodeCollectionCollection.cpp", 292},
    {102031, "iter != m_collection.end()", "TroubleCodeCollectionCollection.cpp", 302},
    {102032, "false", "TroubleCodeCollectionCollection.cpp", 327},
    {102033, "false", "TroubleCodeCollectionCollection.cpp", 344},
    {102033, "pDisplayName", "Unit.cpp", 74},
    {102034, "m_quantity == atomic", "Value.cpp", 156},
    {102035, "m_quantity == atomic", "Value.cpp", 162},
    {102036, "m_quantity == field", "Value.cpp", 179},
    {102037, "m_quantity == field", "Value.cpp", 187},
    {102038, "m_quantity == field", "Value.cpp", 193},
    {102039, "m_quantity == field", "Value.cpp", 199},
    {102040, "(m_quantity == VValue::atomic) || (m_quantity == VValue::field)", "Value.cpp", 213},
    {102042, "pTargetVariantQualifier", "Variant.cpp", 63},
    {102043, "pQualifierOfVariantToReferenceFrom", "Variant.cpp", 87},
};

TEST(CheckSitesTest, HaveTheirCodesExpressionsFilesAndLines) {
    const auto sites = ImportDame::GetCheckSites();
    ASSERT_EQ(sites.size(), std::size(g_rows));
    for (std::size_t i = 0; i < sites.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(sites[i].errorCode, g_rows[i].errorCode);
        EXPECT_EQ(sites[i].expression, g_rows[i].expression);
        EXPECT_EQ(sites[i].sourceFile, g_rows[i].sourceFile);
        EXPECT_EQ(sites[i].line, g_rows[i].line);
    }
}

TEST(CheckSitesTest, CountSixtySeven) {
    EXPECT_EQ(ImportDame::GetCheckSites().size(), 67U);
}

TEST(CheckSitesTest, KnowTheVersion) {
    EXPECT_STREQ(ImportDame::GetVersionText(), L"1.0.0");
}

} // namespace
