#include <ImportDame/Attribute.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/Qualified.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace {

/// Of the first qualified object of the process: taken before any test runs.
const unsigned int g_firstUniquenessId = [] {
    VImportDoc document;
    return document.GetBaseVariant().UniquenessId();
}();

class VQualifiedTest : public testing::Test {
protected:
    VImportDoc m_document;
    VQualified m_qualified{m_document};
};

TEST_F(VQualifiedTest, StartsEmptyAndImported) {
    EXPECT_EQ(&m_qualified.ImportDoc(), &m_document);
    EXPECT_STREQ(m_qualified.GetQualifier(), L"");
    EXPECT_STREQ(m_qualified.GetName(), L"");
    EXPECT_FALSE(m_qualified.Name().HasTextId());
    EXPECT_STREQ(m_qualified.GetDescription(), L"");
    EXPECT_FALSE(m_qualified.Description().HasTextId());
    EXPECT_TRUE(m_qualified.IsImported());
    EXPECT_STREQ(m_qualified.GetSourceInfo(), L"");
    EXPECT_TRUE(m_qualified.Attributes().IsEmpty());
    EXPECT_EQ(&m_qualified.Attributes().ImportDoc(), &m_document);
    EXPECT_FALSE(m_qualified.HasObjectIdentifier());
    EXPECT_STREQ(m_qualified.GetObjectIdentifier(), L"");
}

TEST_F(VQualifiedTest, HandsBackWhatWasSet) {
    m_qualified.SetQualifier(L"Q");
    m_qualified.SetName(L"N");
    m_qualified.SetDescription(L"D");
    m_qualified.SetSourceInfo(L"S");
    m_qualified.SetObjectIdentifier(L"O");
    m_qualified.IsImported(false);
    EXPECT_STREQ(m_qualified.GetQualifier(), L"Q");
    EXPECT_STREQ(m_qualified.GetName(), L"N");
    EXPECT_STREQ(m_qualified.GetDescription(), L"D");
    EXPECT_STREQ(m_qualified.GetSourceInfo(), L"S");
    EXPECT_STREQ(m_qualified.GetObjectIdentifier(), L"O");
    EXPECT_FALSE(m_qualified.IsImported());
}

TEST_F(VQualifiedTest, SettingNameAndDescriptionKeepsTheirTextIdentifiers) {
    m_qualified.Name().SetTextId(L"N1");
    m_qualified.Description().SetTextId(L"D1");
    m_qualified.SetName(L"name");
    m_qualified.SetDescription(L"description");
    EXPECT_STREQ(m_qualified.Name().GetText(), L"name");
    EXPECT_STREQ(m_qualified.Name().GetTextId(), L"N1");
    EXPECT_STREQ(m_qualified.Description().GetText(), L"description");
    EXPECT_STREQ(m_qualified.Description().GetTextId(), L"D1");
}

TEST_F(VQualifiedTest, HasAnObjectIdentifierExactlyWhileItIsNotEmpty) {
    m_qualified.SetObjectIdentifier(L"_42");
    EXPECT_TRUE(m_qualified.HasObjectIdentifier());
    m_qualified.SetObjectIdentifier(L"");
    EXPECT_FALSE(m_qualified.HasObjectIdentifier());
}

TEST_F(VQualifiedTest, CompareContentLooksAtQualifierNameAndDescriptionOnly) {
    VImportDoc otherDocument;
    VQualified other(otherDocument);
    for (VQualified* object : {&m_qualified, &other}) {
        object->SetQualifier(L"Q");
        object->SetName(L"N");
        object->SetDescription(L"D");
    }
    other.SetObjectIdentifier(L"O");
    other.SetSourceInfo(L"S");
    other.Attributes().AddNewAttribute();
    other.IsImported(false);
    EXPECT_TRUE(m_qualified.CompareContent(other));
    EXPECT_TRUE(other.CompareContent(m_qualified));
    EXPECT_TRUE(m_qualified.CompareContent(m_qualified));
}

TEST_F(VQualifiedTest, CompareContentSeesEveryDifferenceInTheThreeTexts) {
    VQualified other(m_document);
    other.SetQualifier(L"q");
    EXPECT_FALSE(m_qualified.CompareContent(other));
    other.SetQualifier(L"");
    other.SetName(L"n");
    EXPECT_FALSE(m_qualified.CompareContent(other));
    other.SetName(L"");
    other.Name().SetTextId(L"id");
    EXPECT_FALSE(m_qualified.CompareContent(other));
    other.Name().SetTextId(L"");
    EXPECT_TRUE(m_qualified.CompareContent(other));
    other.SetDescription(L"d");
    EXPECT_FALSE(m_qualified.CompareContent(other));
    other.SetDescription(L"");
    other.Description().SetTextId(L"id");
    EXPECT_FALSE(m_qualified.CompareContent(other));
}

TEST_F(VQualifiedTest, ACopyTakesEverythingButTheSourceInformation) {
    m_qualified.SetQualifier(L"Q");
    m_qualified.SetName(L"N");
    m_qualified.Name().SetTextId(L"NI");
    m_qualified.SetDescription(L"D");
    m_qualified.Description().SetTextId(L"DI");
    m_qualified.IsImported(false);
    m_qualified.SetSourceInfo(L"S");
    m_qualified.SetObjectIdentifier(L"O");
    m_qualified.Attributes().AddNewAttribute().SetValue(L"V");

    VQualified copy(m_qualified);
    EXPECT_EQ(&copy.ImportDoc(), &m_document);
    EXPECT_STREQ(copy.GetQualifier(), L"Q");
    EXPECT_STREQ(copy.GetName(), L"N");
    EXPECT_STREQ(copy.Name().GetTextId(), L"NI");
    EXPECT_STREQ(copy.GetDescription(), L"D");
    EXPECT_STREQ(copy.Description().GetTextId(), L"DI");
    EXPECT_FALSE(copy.IsImported());
    EXPECT_STREQ(copy.GetSourceInfo(), L"");
    EXPECT_STREQ(copy.GetObjectIdentifier(), L"O");
    ASSERT_EQ(copy.Attributes().Count(), 1U);
    EXPECT_STREQ(copy.Attributes().Begin()->GetValue(), L"V");
    EXPECT_NE(&*copy.Attributes().Begin(), &*m_qualified.Attributes().Begin());
}

TEST_F(VQualifiedTest, TheFirstOneOfAProcessHasTheUniquenessNumberOne) {
    EXPECT_EQ(g_firstUniquenessId, 1U);
}

TEST_F(VQualifiedTest, UniquenessNumbersCountUpWithEveryConstruction) {
    const unsigned int start = VQualified(m_document).UniquenessId();
    const VQualified next(m_document);
    EXPECT_EQ(next.UniquenessId(), start + 1);
    const VQualified copy(next);
    EXPECT_EQ(copy.UniquenessId(), start + 2);
    {
        VImportDoc shortLived;
        const VQualified gone(shortLived);
    }
    const VAttribute afterwards(m_document);
    EXPECT_GT(afterwards.UniquenessId(), start + 3);
}

TEST_F(VQualifiedTest, ACopyHasALargerUniquenessNumberThanTheAttributesCopiedWithIt) {
    m_qualified.Attributes().AddNewAttribute();
    m_qualified.Attributes().AddNewAttribute();
    const unsigned int last = VQualified(m_document).UniquenessId();
    VQualified copy(m_qualified);
    EXPECT_EQ(copy.Attributes().Begin()->UniquenessId(), last + 1);
    EXPECT_EQ(std::next(copy.Attributes().Begin())->UniquenessId(), last + 2);
    EXPECT_EQ(copy.UniquenessId(), last + 3);
}

TEST_F(VQualifiedTest, ATextHandedOutStaysUntilThatTextChanges) {
    m_qualified.SetQualifier(L"Q");
    m_qualified.SetName(L"N");
    m_qualified.SetDescription(L"D");
    m_qualified.SetSourceInfo(L"S");
    m_qualified.SetObjectIdentifier(L"O");
    const auto handedOut = [this] {
        return std::vector<const wchar_t*>{m_qualified.GetQualifier(), m_qualified.GetName(),
                                           m_qualified.GetDescription(), m_qualified.GetSourceInfo(),
                                           m_qualified.GetObjectIdentifier()};
    };
    const auto before = handedOut();
    m_qualified.Name().SetTextId(L"N1");
    m_qualified.Description().SetTextId(L"D1");
    m_qualified.Attributes().AddNewAttribute();
    m_qualified.IsImported(false);
    EXPECT_EQ(handedOut(), before);
    m_qualified.SetSourceInfo(L"somewhere else");
    const auto after = handedOut();
    for (const std::size_t other : {0U, 1U, 2U, 4U})
        EXPECT_EQ(after[other], before[other]);
    EXPECT_STREQ(before[0], L"Q");
    EXPECT_STREQ(before[4], L"O");
}

TEST_F(VQualifiedTest, DestroyDeletesThroughTheVirtualDestructor) {
    struct Observed : VQualified {
        Observed(VImportDoc& document, bool& dead) : VQualified(document), m_dead(dead) {}

        ~Observed() override { m_dead = true; }

        bool& m_dead;
    };

    bool dead = false;
    VImportDocChild& child = *std::make_unique<Observed>(m_document, dead).release();
    child.Destroy();
    EXPECT_TRUE(dead);
}

TEST_F(VQualifiedTest, ACopyOfAChildBelongsToTheSameDocument) {
    const VImportDocChild child(m_document);
    const VImportDocChild copy(child);
    EXPECT_EQ(&copy.ImportDoc(), &m_document);
    static_assert(!std::is_copy_assignable_v<VImportDocChild>);
    static_assert(!std::is_copy_assignable_v<VQualified>);
}

TEST_F(VQualifiedTest, EveryTextMayBeSetFromAPartOfItself) {
    m_qualified.SetQualifier(L"xQ");
    m_qualified.SetQualifier(m_qualified.GetQualifier() + 1);
    EXPECT_STREQ(m_qualified.GetQualifier(), L"Q");
    m_qualified.SetName(m_qualified.GetQualifier());
    m_qualified.SetName(m_qualified.GetName());
    EXPECT_STREQ(m_qualified.GetName(), L"Q");
    m_qualified.SetObjectIdentifier(L"xO");
    m_qualified.SetObjectIdentifier(m_qualified.GetObjectIdentifier() + 1);
    EXPECT_STREQ(m_qualified.GetObjectIdentifier(), L"O");
    m_qualified.SetSourceInfo(L"xS");
    m_qualified.SetSourceInfo(m_qualified.GetSourceInfo() + 1);
    EXPECT_STREQ(m_qualified.GetSourceInfo(), L"S");
}

} // namespace
