#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InvalidRange.h>
#include <ImportDame/TextTableDataType.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;

namespace {

/// A data type of the test's own, created outside of a collection.
class OwnDataType : public VDataType {
public:
    explicit OwnDataType(VDataTypeCollection& dataTypeCollection) : VDataType(dataTypeCollection) {}

    void Accept(VDataTypeVisitor&) override {}
};

class VDataTypeTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
    OwnDataType m_dataType{m_dataTypes};
};

TEST_F(VDataTypeTest, BelongsToTheCollectionItWasConstructedAgainstAndToItsDocument) {
    EXPECT_EQ(&m_dataType.DataTypeCollection(), &m_dataTypes);
    EXPECT_EQ(&m_dataType.ImportDoc(), &m_document);
    EXPECT_EQ(m_dataTypes.Count(), 0U);
}

TEST_F(VDataTypeTest, StartsModifiableFromNoKnownLayerAndImportedForNoReason) {
    EXPECT_TRUE(m_dataType.GetMayBeModified());
    EXPECT_EQ(static_cast<int>(m_dataType.GetSourceLayerInfo()), 0);
    EXPECT_EQ(static_cast<int>(m_dataType.ReasonForIsImported()), 0);
    EXPECT_TRUE(m_dataType.IsImported());
    EXPECT_TRUE(m_dataType.InvalidRangeCollection().IsEmpty());
    static_assert(std::is_abstract_v<VDataType>);
    static_assert(!std::is_copy_constructible_v<VDataType>);
    static_assert(!std::is_copy_assignable_v<VDataType>);
    static_assert(sizeof(VDataType::VSourceLayerInfo) == 4);
    static_assert(sizeof(VDataType::VReasonForIsImported) == 4);
}

TEST_F(VDataTypeTest, KeepsItsFlagsAndHandsThemOutByReference) {
    const bool& mayBeModified = m_dataType.GetMayBeModified();
    const VDataType::VSourceLayerInfo& layer = m_dataType.GetSourceLayerInfo();
    m_dataType.SetMayBeModified(false);
    m_dataType.SetSourceLayerInfo(VDataType::ecuVariantLayer);
    m_dataType.ReasonForIsImported(static_cast<VDataType::VReasonForIsImported>(-5));
    EXPECT_FALSE(mayBeModified);
    EXPECT_EQ(layer, VDataType::ecuVariantLayer);
    EXPECT_EQ(static_cast<int>(m_dataType.ReasonForIsImported()), -5);
    EXPECT_TRUE(m_dataType.IsImported()); // the reason says nothing of the flag itself
    m_dataType.SetMayBeModified(mayBeModified);
    EXPECT_FALSE(m_dataType.GetMayBeModified());
}

TEST_F(VDataTypeTest, OwnsInvalidRangesThatKnowIt) {
    m_dataType.InvalidRangeCollection().AddNewInvalidRange();
    EXPECT_EQ(m_dataType.InvalidRangeCollection().Count(), 1U);
    EXPECT_EQ(&m_dataType.InvalidRangeCollection().GetDataType(), &m_dataType);
}

TEST_F(VDataTypeTest, AnswersTheFourQueriesWithFalseWhateverTheKind) {
    VTextTableDataType& textTable = m_dataTypes.AddNewTextTableDataType();
    textTable.CodedProperties().SetEncoding(VProperties::asciiText);
    for (VDataType* dataType : {static_cast<VDataType*>(&m_dataType), static_cast<VDataType*>(&textTable)}) {
        EXPECT_FALSE(dataType->IsCodedAtom());
        EXPECT_FALSE(dataType->IsCodedText());
        EXPECT_FALSE(dataType->IsPhysicalAtom());
        EXPECT_FALSE(dataType->IsPhysicalText());
    }
}

TEST_F(VDataTypeTest, IsAQualifiedObject) {
    VDataType& other = m_dataTypes.AddNewTextTableDataType();
    m_dataType.SetQualifier(L"Speed");
    other.SetQualifier(L"Speed");
    EXPECT_TRUE(m_dataType.CompareContent(other)); // the kind does not count
    other.SetDescription(L"of the vehicle");
    EXPECT_FALSE(m_dataType.CompareContent(other));
}

} // namespace
