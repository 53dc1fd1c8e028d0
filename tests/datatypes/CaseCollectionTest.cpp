#include "datatypes/CaseTraits.h"

#include <ImportDame/DataObject.h>

using namespace ImportDame;

namespace TestSupport {

INSTANTIATE_TYPED_TEST_SUITE_P(Cases, CollectionContract, VCaseCollection);

} // namespace TestSupport

namespace {

class VCaseCollectionTest : public testing::Test {
protected:
    VImportDoc m_document;
    VCaseCollection m_cases{m_document};
};

TEST_F(VCaseCollectionTest, CreatesCasesOfItsDocument) {
    VCase& muxCase = m_cases.AddNewCase();
    EXPECT_EQ(&muxCase.ImportDoc(), &m_document);
    EXPECT_EQ(&muxCase.InterchangeableCollection().ImportDoc(), &m_document);
    EXPECT_TRUE(muxCase.InterchangeableCollection().IsEmpty());
    EXPECT_FALSE(muxCase.Range().HasStartValue());
    EXPECT_FALSE(muxCase.Range().HasEndValue());
}

TEST_F(VCaseCollectionTest, ACaseKeepsItsRange) {
    VCase& muxCase = m_cases.AddNewCase();
    muxCase.Range().SetStartValue(VValue(L"1"));
    muxCase.Range().SetEndValue(VValue(L"3"));
    EXPECT_STREQ(muxCase.Range().GetStartValue().Get(), L"1");
    EXPECT_STREQ(muxCase.Range().GetEndValue().Get(), L"3");
}

TEST_F(VCaseCollectionTest, ARemovedCaseIsTheCallersAndStaysUsable) {
    m_cases.AddNewCase();
    VCase& removed = m_cases.AddNewCase();
    removed.SetQualifier(L"Removed");
    VDataObject& member = removed.InterchangeableCollection().AddNewDataObject();
    m_cases.Remove(removed);
    EXPECT_EQ(m_cases.Count(), 1U);
    EXPECT_STREQ(removed.GetQualifier(), L"Removed");
    EXPECT_EQ(removed.InterchangeableCollection().GetLastElement(), &member);
    m_cases.Remove(removed); // no longer held: ignored
    EXPECT_EQ(m_cases.Count(), 1U);
    removed.Destroy();
}

TEST_F(VCaseCollectionTest, ACaseThatIsNotHeldIsIgnored) {
    VCaseCollection other(m_document);
    VCase& foreign = other.AddNewCase();
    const TestSupport::CapturedLog log;
    m_cases.Remove(foreign);
    EXPECT_TRUE(log.Records().empty());
    EXPECT_TRUE(m_cases.IsEmpty());
    EXPECT_EQ(&*other.Begin(), &foreign);
}

TEST_F(VCaseCollectionTest, IsNoDocumentChildAndNotCopied) {
    static_assert(!std::is_base_of_v<VImportDocChild, VCaseCollection>);
    static_assert(!std::is_copy_constructible_v<VCaseCollection>);
    static_assert(!std::is_copy_assignable_v<VCaseCollection>);
    static_assert(std::has_virtual_destructor_v<VCaseCollection>);
    static_assert(!std::is_copy_constructible_v<VCase>);
    EXPECT_EQ(m_cases.Count(), 0U);
}

} // namespace
