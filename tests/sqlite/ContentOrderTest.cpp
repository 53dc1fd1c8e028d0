#include "sqlite/Database.h"

#include <ImportDame/ImportDame.h>

#include <limits>

namespace SqliteBackendTests {

namespace {

using namespace ImportDame;

class ContentOrderTest : public WrittenDocument {
protected:
    VLinearConversion& Add() { return m_type.LinearConversionCollection().AddNewLinearConversion(); }

    VImportDoc m_document;
    VPiecewiseLinearDataType& m_type = m_document.DataTypeCollection().AddNewPiecewiseLinearDataType();
};

} // namespace

TEST_F(ContentOrderTest, AbsentStartsComeFirstThenNumbersThenTextsThenFields) {
    VValue field;
    field.SetNonTextField(L"0 1");
    Add().GetRange().SetStartValue(field);
    Add().GetRange().SetStartValue(VValue(L"abc"));
    Add().GetRange().SetStartValue(VValue(L"1e3"));
    Add().GetRange().SetStartValue(VValue(L"99.5"));
    Add();
    Write(m_document);
    EXPECT_EQ(Query("SELECT v.text FROM linear_conversion l LEFT JOIN value v ON v.id = l.start_value_id "
                    "ORDER BY l.position"),
              (Rows{"NULL", "99.5", "1e3", "abc", "0 1"}));
}

TEST_F(ContentOrderTest, EqualRangesAreOrderedByTheOtherNumbers) {
    for (const double factor : {3.0, std::numeric_limits<double>::quiet_NaN(), -1.0, 2.0})
        Add().SetFactorNumerator(factor);
    Write(m_document);
    EXPECT_EQ(Query("SELECT factor_numerator FROM linear_conversion ORDER BY position"),
              (Rows{"-1.0", "2.0", "3.0", "NULL"}));
}

TEST_F(ContentOrderTest, WordsForNumbersAreTexts) {
    Add().GetRange().SetStartValue(VValue(L"nan"));
    Add().GetRange().SetStartValue(VValue(L"inf"));
    Add().GetRange().SetStartValue(VValue(L"7"));
    Write(m_document);
    EXPECT_EQ(Query("SELECT v.text FROM linear_conversion l JOIN value v ON v.id = l.start_value_id "
                    "ORDER BY l.position"),
              (Rows{"7", "inf", "nan"}));
}

} // namespace SqliteBackendTests
