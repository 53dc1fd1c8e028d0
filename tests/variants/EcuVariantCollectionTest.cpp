#include "variants/EcuVariantTraits.h"

#include <ImportDame/DiagService.h>

#include <type_traits>

using namespace ImportDame;

namespace TestSupport {

INSTANTIATE_TYPED_TEST_SUITE_P(EcuVariants, CollectionContract, VEcuVariantCollection);

} // namespace TestSupport

namespace {

static_assert(std::is_base_of_v<VImportDocChild, VEcuVariantCollection>);
static_assert(std::is_copy_constructible_v<VEcuVariantCollection> && !std::is_copy_assignable_v<VEcuVariantCollection>);

class VEcuVariantCollectionTest : public testing::Test {
protected:
    VEcuVariant& Add(const wchar_t* qualifier) {
        VEcuVariant& variant = m_variants.AddNewEcuVariant();
        variant.SetQualifier(qualifier);
        return variant;
    }

    VImportDoc m_document;
    VEcuVariantCollection m_variants{m_document};
};

TEST_F(VEcuVariantCollectionTest, NewVariantsBelongToTheDocumentAndAreNotImported) {
    VEcuVariant& variant = m_variants.AddNewEcuVariant();
    EXPECT_EQ(&variant.ImportDoc(), &m_document);
    EXPECT_FALSE(variant.IsImported());
}

TEST_F(VEcuVariantCollectionTest, FindTellsUpperFromLowerCase) {
    VEcuVariant& upper = Add(L"EV1");
    VEcuVariant& lower = Add(L"ev1");
    EXPECT_EQ(&*m_variants.Find(L"ev1"), &lower);
    EXPECT_EQ(&*m_variants.Find(L"EV1"), &upper);
    EXPECT_TRUE(m_variants.Find(L"Ev1") == m_variants.End());
}

TEST_F(VEcuVariantCollectionTest, FindYieldsTheFirstWithTheWholeText) {
    Add(L"EV");
    VEcuVariant& first = Add(L"EV1");
    Add(L"EV1");
    EXPECT_EQ(&*m_variants.Find(L"EV1"), &first);
    EXPECT_TRUE(m_variants.Find(L"E") == m_variants.End());
    EXPECT_TRUE(m_variants.Find(L"EV10") == m_variants.End());
    EXPECT_TRUE(m_variants.Find(L"") == m_variants.End());
    VEcuVariant& unnamed = m_variants.AddNewEcuVariant();
    EXPECT_EQ(&*m_variants.Find(L""), &unnamed);
}

TEST_F(VEcuVariantCollectionTest, FindFollowsRenamesAtOnce) {
    VEcuVariant& variant = Add(L"old");
    variant.SetQualifier(L"new");
    EXPECT_TRUE(m_variants.Find(L"old") == m_variants.End());
    EXPECT_EQ(&*m_variants.Find(L"new"), &variant);
}

TEST_F(VEcuVariantCollectionTest, ACopyHasCopiesWithTheirLosses) {
    VEcuVariant& first = Add(L"EV1");
    first.DiagCommCollection().AddNewDiagService();
    first.SetTargetVariantQualifier(L"T");
    first.SetReferenceFromVariantQualifier(L"R");
    first.SetVariantIsLockedInTarget(true);
    Add(L"EV2");
    VEcuVariantCollection copy(m_variants);
    EXPECT_EQ(&copy.ImportDoc(), &m_document);
    ASSERT_EQ(copy.Count(), 2U);
    VEcuVariant& copied = *copy.Begin();
    EXPECT_NE(&copied, &first);
    EXPECT_STREQ(copied.GetQualifier(), L"EV1");
    EXPECT_TRUE(copied.GetVariantIsLockedInTarget());
    EXPECT_STREQ(copied.GetTargetVariantQualifier(), L"");
    EXPECT_FALSE(copied.HasReferenceFromVariantSpecified());
    EXPECT_TRUE(copied.DiagCommCollection().IsEmpty());
    EXPECT_FALSE(copied.IsImported());
    EXPECT_STREQ((++copy.Begin())->GetQualifier(), L"EV2");
    copy.Clear();
    EXPECT_EQ(m_variants.Count(), 2U);
    EXPECT_TRUE(first.IsImported());
}

TEST_F(VEcuVariantCollectionTest, ACopyOfAnEmptyCollectionIsEmpty) {
    VEcuVariantCollection copy(m_variants);
    EXPECT_TRUE(copy.IsEmpty());
}

} // namespace
