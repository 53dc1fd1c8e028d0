#include "support/FailedCheck.h"

#include <ImportDame/Case.h>
#include <ImportDame/DataObject.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>

#include <gtest/gtest.h>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;
using TestSupport::FailedCheck;

namespace {

/// One of the optional positions, by its four operations.
template <class DataType>
struct OptionalPosition {
    bool (DataType::*has)() const;
    const unsigned int& (DataType::*get)() const;
    void (DataType::*set)(const unsigned int&);
    void (DataType::*unset)();
    FailedCheck check;
};

template <class DataType>
void ExpectOptional(DataType& dataType, const OptionalPosition<DataType>& position) {
    const auto expectAbsent = [&] {
        EXPECT_FALSE((dataType.*position.has)());
        ExpectFailedCheck(position.check, [&] { (dataType.*position.get)(); });
    };
    expectAbsent();
    (dataType.*position.unset)(); // nothing to take away
    expectAbsent();
    (dataType.*position.set)(0); // 0 is a value, not none
    EXPECT_TRUE((dataType.*position.has)());
    const unsigned int& stored = (dataType.*position.get)();
    EXPECT_EQ(stored, 0U);
    (dataType.*position.set)(4294967295U);
    EXPECT_EQ(stored, 4294967295U); // the reference follows
    (dataType.*position.set)(stored);
    EXPECT_EQ((dataType.*position.get)(), 4294967295U);
    EXPECT_EQ(&(dataType.*position.get)(), &stored);
    (dataType.*position.unset)();
    expectAbsent();
    (dataType.*position.set)(8);
    EXPECT_EQ((dataType.*position.get)(), 8U);
}

template <class DataType>
void ExpectSelectorDataType(DataType& dataType, VDataType& selector, VDataType& other, const FailedCheck& check) {
    EXPECT_FALSE(dataType.HasSelectorDataType());
    ExpectFailedCheck(check, [&] { dataType.GetSelectorDataType(); });
    dataType.SetSelectorDataType(selector);
    EXPECT_TRUE(dataType.HasSelectorDataType());
    EXPECT_EQ(&dataType.GetSelectorDataType(), &selector);
    dataType.SetSelectorDataType(other);
    EXPECT_EQ(&dataType.GetSelectorDataType(), &other);
    dataType.SetSelectorDataType(dataType);
    EXPECT_EQ(&dataType.GetSelectorDataType(), &dataType);
}

class SelectedDataTypesTest : public testing::Test {
protected:
    VImportDoc m_document;
    VDataTypeCollection m_dataTypes{m_document};
    VMuxDataType m_mux{m_dataTypes};
    VNumeratorIterDataType m_numerator{m_dataTypes};
};

TEST_F(SelectedDataTypesTest, AMuxKnowsItsSelectorDataType) {
    ExpectSelectorDataType(m_mux, m_dataTypes.AddNewIdentityDataType(), m_dataTypes.AddNewIdentityDataType(),
                           {102001, "HasSelectorDataType()", "MuxDataType.cpp", 93});
}

TEST_F(SelectedDataTypesTest, ANumeratorKnowsItsSelectorDataType) {
    ExpectSelectorDataType(m_numerator, m_dataTypes.AddNewIdentityDataType(), m_dataTypes.AddNewIdentityDataType(),
                           {102005, "HasSelectorDataType()", "NumeratorIterDataType.cpp", 79});
}

TEST_F(SelectedDataTypesTest, AMuxHasAnOptionalStart) {
    ExpectOptional<VMuxDataType>(m_mux, {&VMuxDataType::HasMuxStartBitPosition,
                                         &VMuxDataType::GetMuxStartBitPosition,
                                         &VMuxDataType::SetMuxStartBitPosition,
                                         &VMuxDataType::UnsetMuxStartBitPosition,
                                         {102003, "HasMuxStartBitPosition()", "MuxDataType.cpp", 116}});
    EXPECT_FALSE(m_mux.HasSelectorStartBitPosition());
}

TEST_F(SelectedDataTypesTest, AMuxHasAnOptionalSelectorStart) {
    ExpectOptional<VMuxDataType>(m_mux, {&VMuxDataType::HasSelectorStartBitPosition,
                                         &VMuxDataType::GetSelectorStartBitPosition,
                                         &VMuxDataType::SetSelectorStartBitPosition,
                                         &VMuxDataType::UnsetSelectorStartBitPosition,
                                         {102004, "HasSelectorStartBitPosition()", "MuxDataType.cpp", 151}});
    EXPECT_FALSE(m_mux.HasMuxStartBitPosition());
}

TEST_F(SelectedDataTypesTest, ANumeratorHasAnOptionalContentStart) {
    ExpectOptional<VNumeratorIterDataType>(
        m_numerator, {&VNumeratorIterDataType::HasContentStartBitPosition,
                      &VNumeratorIterDataType::GetContentStartBitPosition,
                      &VNumeratorIterDataType::SetContentStartBitPosition,
                      &VNumeratorIterDataType::UnsetContentStartBitPosition,
                      {102006, "HasContentStartBitPosition()", "NumeratorIterDataType.cpp", 102}});
    EXPECT_FALSE(m_numerator.HasSelectorStartBitPosition());
}

TEST_F(SelectedDataTypesTest, ANumeratorHasAnOptionalSelectorStart) {
    ExpectOptional<VNumeratorIterDataType>(
        m_numerator, {&VNumeratorIterDataType::HasSelectorStartBitPosition,
                      &VNumeratorIterDataType::GetSelectorStartBitPosition,
                      &VNumeratorIterDataType::SetSelectorStartBitPosition,
                      &VNumeratorIterDataType::UnsetSelectorStartBitPosition,
                      {102007, "HasSelectorStartBitPosition()", "NumeratorIterDataType.cpp", 137}});
    EXPECT_FALSE(m_numerator.HasContentStartBitPosition());
}

TEST_F(SelectedDataTypesTest, TheOffsetOfANumeratorStartsAtZero) {
    const unsigned int& offset = m_numerator.GetOffset();
    EXPECT_EQ(offset, 0U);
    m_numerator.SetOffset(4294967295U);
    EXPECT_EQ(offset, 4294967295U);
    m_numerator.SetOffset(offset);
    EXPECT_EQ(m_numerator.GetOffset(), 4294967295U);
}

TEST_F(SelectedDataTypesTest, AMuxHasThreeSeparateContents) {
    EXPECT_TRUE(m_mux.GetDefaultCase().IsEmpty());
    EXPECT_TRUE(m_mux.GetCaseCollection().IsEmpty());
    VCase& muxCase = m_mux.GetCaseCollection().AddNewCase();
    VDataObject& own = m_mux.InterchangeableCollection().AddNewDataObject();
    VDataObject& ofDefault = m_mux.GetDefaultCase().AddNewDataObject();
    VDataObject& ofCase = muxCase.InterchangeableCollection().AddNewDataObject();
    EXPECT_EQ(m_mux.InterchangeableCollection().GetLastElement(), &own);
    EXPECT_EQ(m_mux.GetDefaultCase().GetLastElement(), &ofDefault);
    EXPECT_EQ(muxCase.InterchangeableCollection().GetLastElement(), &ofCase);
    EXPECT_EQ(m_mux.InterchangeableCollection().Count(), 1U);
    EXPECT_EQ(m_mux.GetDefaultCase().Count(), 1U);
    for (VDataObject* dataObject : {&own, &ofDefault, &ofCase})
        EXPECT_EQ(&dataObject->ImportDoc(), &m_document);
    EXPECT_EQ(&muxCase.ImportDoc(), &m_document);
}

TEST_F(SelectedDataTypesTest, TheSelectorOperationsMayBeOverridden) {
    struct OwnMux : VMuxDataType {
        using VMuxDataType::VMuxDataType;

        bool HasSelectorDataType() const override { return true; }

        VDataType& GetSelectorDataType() override { return *this; }
    };

    OwnMux own(m_dataTypes);
    VMuxDataType& mux = own;
    EXPECT_TRUE(mux.HasSelectorDataType());
    EXPECT_EQ(&mux.GetSelectorDataType(), &own);
}

} // namespace
