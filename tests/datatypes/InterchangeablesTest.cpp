#include "support/FailedCheck.h"

#include <ImportDame/BitField.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

class InterchangeablesTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
    VDataObject m_dataObject{m_document};
    VBitField m_bitField{m_document};
    VGapObject m_gapObject{m_document};
};

TEST_F(InterchangeablesTest, FormTheStatedTree) {
    static_assert(std::is_base_of_v<VQualified, VInterchangeable>);
    static_assert(std::is_abstract_v<VInterchangeable>);
    static_assert(sizeof(VInterchangeable) == sizeof(VQualified));
    static_assert(std::is_base_of_v<VInterchangeable, VBaseDataObject>);
    static_assert(std::is_abstract_v<VBaseDataObject>);
    static_assert(std::is_base_of_v<VBaseDataObject, VDataObject>);
    static_assert(std::is_base_of_v<VBaseDataObject, VBitField>);
    static_assert(std::is_base_of_v<VInterchangeable, VGapObject>);
    static_assert(!std::is_base_of_v<VBaseDataObject, VGapObject>);
    static_assert(!std::is_copy_constructible_v<VDataObject> && !std::is_copy_assignable_v<VDataObject>);
    static_assert(!std::is_copy_constructible_v<VBitField> && !std::is_copy_assignable_v<VBitField>);
    static_assert(!std::is_copy_constructible_v<VGapObject> && !std::is_copy_assignable_v<VGapObject>);
    EXPECT_EQ(&m_dataObject.ImportDoc(), &m_document);
    EXPECT_EQ(&m_bitField.ImportDoc(), &m_document);
    EXPECT_EQ(&m_gapObject.ImportDoc(), &m_document);
}

TEST_F(InterchangeablesTest, DataObjectsAndBitFieldsHaveDataTypeAndSemantics) {
    static_assert(sizeof(VBaseDataObject::VSemantics) == 4);
    VIdentityDataType& dataType = m_dataTypes.AddNewIdentityDataType();
    for (VBaseDataObject* object :
         {static_cast<VBaseDataObject*>(&m_dataObject), static_cast<VBaseDataObject*>(&m_bitField)}) {
        EXPECT_EQ(object->GetDataType(), nullptr);
        EXPECT_EQ(static_cast<int>(object->GetSemantics()), 0);
        object->SetDataType(&dataType);
        object->SetSemantics(static_cast<VBaseDataObject::VSemantics>(-1));
        EXPECT_EQ(object->GetDataType(), &dataType);
        EXPECT_EQ(static_cast<int>(object->GetSemantics()), -1);
        object->SetDataType(nullptr);
        EXPECT_EQ(object->GetDataType(), nullptr);
    }
}

TEST_F(InterchangeablesTest, ADataObjectStartsWithoutOptionalParts) {
    EXPECT_FALSE(m_dataObject.HasDefaultValue());
    EXPECT_FALSE(m_dataObject.HasConstValue());
    EXPECT_FALSE(m_dataObject.HasSelectorDataObject());
    ExpectFailedCheck({101053, "m_hasDefaultValue", "DataObject.cpp", 63}, [&] { m_dataObject.GetDefaultValue(); });
    ExpectFailedCheck({101055, "m_hasConstValue", "DataObject.cpp", 80}, [&] { m_dataObject.GetConstValue(); });
    ExpectFailedCheck({101056, "HasSelectorDataObject()", "DataObject.cpp", 97},
                      [&] { m_dataObject.GetSelectorDataObject(); });
}

TEST_F(InterchangeablesTest, ADefaultValueStaysOnceSet) {
    VValue value(L"12");
    value.IsPhysical(true);
    m_dataObject.SetDefaultValue(value);
    EXPECT_TRUE(m_dataObject.HasDefaultValue());
    EXPECT_FALSE(m_dataObject.HasConstValue());
    EXPECT_TRUE(m_dataObject.GetDefaultValue() == value);
    VValue copy = m_dataObject.GetDefaultValue();
    copy.Set(L"13");
    EXPECT_STREQ(m_dataObject.GetDefaultValue().Get(), L"12");
    m_dataObject.SetDefaultValue(VValue());
    EXPECT_TRUE(m_dataObject.HasDefaultValue());
    EXPECT_STREQ(m_dataObject.GetDefaultValue().Get(), L"");
}

TEST_F(InterchangeablesTest, AConstValueStaysOnceSet) {
    VValue value;
    value.SetNonTextField(L"1 2 3");
    m_dataObject.SetConstValue(value);
    EXPECT_TRUE(m_dataObject.HasConstValue());
    EXPECT_FALSE(m_dataObject.HasDefaultValue());
    EXPECT_TRUE(m_dataObject.GetConstValue() == value);
    EXPECT_EQ(m_dataObject.GetConstValue().GetFieldSize(), 3U);
    m_dataObject.SetConstValue(VValue(L"4"));
    EXPECT_STREQ(m_dataObject.GetConstValue().Get(), L"4");
}

TEST_F(InterchangeablesTest, AValueThatIsGivenAwayKeepsAllOfIt) {
    VValue value;
    value.SetNonTextField(L"1 2 3");
    value.IsPhysical(true);
    const VValue expected(value);
    VValue other(value);
    m_dataObject.SetDefaultValue(std::move(value));
    EXPECT_TRUE(m_dataObject.HasDefaultValue());
    EXPECT_FALSE(m_dataObject.HasConstValue()); // the flags lie beside the values
    EXPECT_TRUE(m_dataObject.GetDefaultValue() == expected);
    m_dataObject.SetConstValue(std::move(other));
    EXPECT_TRUE(m_dataObject.HasConstValue());
    EXPECT_TRUE(m_dataObject.GetConstValue() == expected);
}

TEST_F(InterchangeablesTest, ADataObjectMayBeItsOwnSelector) {
    VDataObject other(m_document);
    m_dataObject.SetSelectorDataObject(other);
    EXPECT_TRUE(m_dataObject.HasSelectorDataObject());
    EXPECT_EQ(&m_dataObject.GetSelectorDataObject(), &other);
    m_dataObject.SetSelectorDataObject(m_dataObject);
    EXPECT_EQ(&m_dataObject.GetSelectorDataObject(), &m_dataObject);
}

TEST_F(InterchangeablesTest, ABitFieldOwnsMembersOfItsDocument) {
    EXPECT_TRUE(m_bitField.InterchangeableCollection().IsEmpty());
    EXPECT_EQ(&m_bitField.InterchangeableCollection().ImportDoc(), &m_document);
    VBitField& nested = m_bitField.InterchangeableCollection().AddNewBitField();
    EXPECT_EQ(m_bitField.InterchangeableCollection().GetLastElement(), &nested);
    EXPECT_TRUE(nested.InterchangeableCollection().IsEmpty());
}

TEST_F(InterchangeablesTest, AGapHasALengthInBits) {
    EXPECT_EQ(m_gapObject.GetBitLength(), 0U);
    m_gapObject.SetBitLength(4294967295U);
    EXPECT_EQ(m_gapObject.GetBitLength(), 4294967295U);
    m_gapObject.SetBitLength(0);
    EXPECT_EQ(m_gapObject.GetBitLength(), 0U);
}

TEST_F(InterchangeablesTest, DataTypeAndSemanticsMayBeOverridden) {
    struct OwnDataObject : VDataObject {
        using VDataObject::VDataObject;

        VSemantics GetSemantics() override { return dtc; }
    };

    OwnDataObject own(m_document);
    EXPECT_EQ(static_cast<VBaseDataObject&>(own).GetSemantics(), VBaseDataObject::dtc);
}

} // namespace
