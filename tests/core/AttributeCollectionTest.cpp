#include "core/AttributeTraits.h"

#include <type_traits>

using namespace ImportDame;

namespace TestSupport {

INSTANTIATE_TYPED_TEST_SUITE_P(Attributes, CollectionContract, VAttributeCollection);

} // namespace TestSupport

namespace {

class VAttributeCollectionTest : public testing::Test {
protected:
    VAttribute& Add(const wchar_t* qualifier, const wchar_t* value) {
        VAttribute& attribute = m_attributes.AddNewAttribute();
        attribute.SetQualifier(qualifier);
        attribute.SetValue(value);
        return attribute;
    }

    VImportDoc m_document;
    VAttributeCollection m_attributes{m_document};
};

TEST_F(VAttributeCollectionTest, NewAttributesBelongToTheDocumentAndAreImported) {
    VAttribute& attribute = m_attributes.AddNewAttribute();
    EXPECT_EQ(&attribute.ImportDoc(), &m_document);
    EXPECT_STREQ(attribute.GetValue(), L"");
    EXPECT_TRUE(attribute.IsImported());
    EXPECT_EQ(m_attributes.ImportedCount(), 1U);
}

TEST_F(VAttributeCollectionTest, FindByQualifierYieldsTheFirstExactMatch) {
    Add(L"Fred", L"0");
    VAttribute& first = Add(L"FRED", L"1");
    Add(L"FRED", L"2");
    EXPECT_EQ(&*m_attributes.Find(L"FRED"), &first);
    EXPECT_TRUE(m_attributes.Find(L"FRE") == m_attributes.End());
    EXPECT_TRUE(m_attributes.Find(L"FREDX") == m_attributes.End());
    EXPECT_TRUE(m_attributes.Find(L"") == m_attributes.End());
}

TEST_F(VAttributeCollectionTest, FindOfTheEmptyTextYieldsTheFirstAttributeWithoutQualifier) {
    Add(L"A", L"");
    VAttribute& unnamed = Add(L"", L"");
    EXPECT_EQ(&*m_attributes.Find(L""), &unnamed);
}

TEST_F(VAttributeCollectionTest, FindByIdentityIgnoresEqualContent) {
    Add(L"A", L"1");
    VAttribute& second = Add(L"A", L"1");
    VQualified& asQualified = second;
    EXPECT_EQ(&*m_attributes.Find(asQualified), &second);
    VAttribute outside(second);
    EXPECT_TRUE(m_attributes.Find(outside) == m_attributes.End());
}

TEST_F(VAttributeCollectionTest, SetIsImportedReachesEveryAttribute) {
    Add(L"A", L"");
    Add(L"B", L"");
    m_attributes.SetIsImportedAttributes(false);
    EXPECT_EQ(m_attributes.ImportedCount(), 0U);
    m_attributes.SetIsImportedAttributes(true);
    EXPECT_EQ(m_attributes.ImportedCount(), 2U);
}

TEST_F(VAttributeCollectionTest, ACopyHasItsOwnAttributesInTheSameOrder) {
    Add(L"A", L"1").IsImported(false);
    Add(L"B", L"2");
    VAttributeCollection copy(m_attributes);
    ASSERT_EQ(copy.Count(), 2U);
    auto position = copy.Begin();
    EXPECT_STREQ(position->GetQualifier(), L"A");
    EXPECT_STREQ(position->GetValue(), L"1");
    EXPECT_FALSE(position->IsImported());
    EXPECT_EQ(&position->ImportDoc(), &m_document);
    ++position;
    EXPECT_STREQ(position->GetQualifier(), L"B");
    EXPECT_STREQ(position->GetValue(), L"2");
    copy.Clear();
    EXPECT_EQ(m_attributes.Count(), 2U);
}

TEST_F(VAttributeCollectionTest, ACopyForAnotherDocumentBelongsToItWhole) {
    VAttribute& attribute = Add(L"A", L"1");
    attribute.Attributes().AddNewAttribute().SetQualifier(L"Nested");
    VImportDoc other;
    VAttributeCollection copy(m_attributes, other);
    EXPECT_EQ(&copy.ImportDoc(), &other);
    EXPECT_EQ(&copy.Begin()->ImportDoc(), &other);
    EXPECT_EQ(&copy.Begin()->Attributes().ImportDoc(), &other);
    EXPECT_EQ(&copy.Begin()->Attributes().Begin()->ImportDoc(), &other);
    EXPECT_STREQ(copy.Begin()->Attributes().Begin()->GetQualifier(), L"Nested");
}

TEST_F(VAttributeCollectionTest, IteratorsElsewhereSurviveChangesBehindThem) {
    Add(L"A", L"");
    VAttribute& second = Add(L"B", L"");
    const auto first = m_attributes.Begin();
    const auto end = m_attributes.End();
    m_attributes.Remove(second);
    Add(L"C", L"");
    EXPECT_STREQ(first->GetQualifier(), L"A");
    EXPECT_TRUE(end == m_attributes.End());
    auto next = first;
    EXPECT_STREQ((++next)->GetQualifier(), L"C");
}

TEST(VAttributeTest, CopiesEverythingOfAQualifiedCopyAndTheValue) {
    VImportDoc document;
    VAttribute attribute(document);
    attribute.SetQualifier(L"Q");
    attribute.SetSourceInfo(L"somewhere");
    attribute.SetValue(L"V");
    const VAttribute copy(attribute);
    EXPECT_STREQ(copy.GetQualifier(), L"Q");
    EXPECT_STREQ(copy.GetValue(), L"V");
    EXPECT_STREQ(copy.GetSourceInfo(), L"");
    EXPECT_GT(copy.UniquenessId(), attribute.UniquenessId());
}

TEST(VAttributeTest, IsCopiedButNotAssigned) {
    static_assert(std::is_copy_constructible_v<VAttribute> && !std::is_copy_assignable_v<VAttribute>);
    static_assert(std::is_copy_constructible_v<VAttributeCollection>);
    static_assert(!std::is_copy_assignable_v<VAttributeCollection>);
    VImportDoc document;
    VAttribute attribute(document);
    EXPECT_STREQ(VAttribute(attribute).GetValue(), L"");
}

TEST(VAttributeTest, AValueMayBeSetFromAPartOfItself) {
    VImportDoc document;
    VAttribute attribute(document);
    attribute.SetValue(L"a value");
    attribute.SetValue(attribute.GetValue() + 2);
    EXPECT_STREQ(attribute.GetValue(), L"value");
    attribute.SetValue(attribute.GetValue());
    EXPECT_STREQ(attribute.GetValue(), L"value");
}

} // namespace
