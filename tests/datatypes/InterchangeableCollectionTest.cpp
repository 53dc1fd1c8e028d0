#include "datatypes/InterchangeableTraits.h"

using namespace ImportDame;

namespace TestSupport {

INSTANTIATE_TYPED_TEST_SUITE_P(Interchangeables, CollectionContract, VInterchangeableCollection);

} // namespace TestSupport

namespace {

class VInterchangeableCollectionTest : public testing::Test {
protected:
    VImportDoc m_document;
    VInterchangeableCollection m_members{m_document};
};

TEST_F(VInterchangeableCollectionTest, CreatesEveryKindAtTheEnd) {
    const std::vector<VInterchangeable*> created = {&m_members.AddNewGapObject(), &m_members.AddNewBitField(),
                                                    &m_members.AddNewDataObject()};
    std::vector<VInterchangeable*> walked;
    for (VInterchangeable& member : m_members)
        walked.push_back(&member);
    EXPECT_EQ(walked, created);
    for (VInterchangeable* member : created)
        EXPECT_EQ(&member->ImportDoc(), &m_document);
}

TEST_F(VInterchangeableCollectionTest, TheLastElementIsNullOrTheOneAddedLast) {
    EXPECT_EQ(m_members.GetLastElement(), nullptr);
    VGapObject& gapObject = m_members.AddNewGapObject();
    EXPECT_EQ(m_members.GetLastElement(), &gapObject);
    VDataObject& dataObject = m_members.AddNewDataObject();
    EXPECT_EQ(m_members.GetLastElement(), &dataObject);
    m_members.Remove(dataObject);
    EXPECT_EQ(m_members.GetLastElement(), &gapObject);
    m_members.Clear();
    EXPECT_EQ(m_members.GetLastElement(), nullptr);
}

TEST_F(VInterchangeableCollectionTest, FindByIdentityIgnoresEqualContent) {
    VDataObject& first = m_members.AddNewDataObject();
    VDataObject& second = m_members.AddNewDataObject();
    for (VDataObject* dataObject : {&first, &second}) {
        dataObject->SetQualifier(L"Same");
        dataObject->SetName(L"Same");
    }
    VQualified& asQualified = second;
    EXPECT_EQ(&*m_members.Find(first), &first);
    EXPECT_EQ(&*m_members.Find(second), &second);
    EXPECT_EQ(&*m_members.Find(asQualified), &second);
    VDataObject outside(m_document);
    outside.SetQualifier(L"Same");
    VQualified& outsideAsQualified = outside;
    EXPECT_TRUE(m_members.Find(outside) == m_members.End());
    EXPECT_TRUE(m_members.Find(outsideAsQualified) == m_members.End());
}

TEST_F(VInterchangeableCollectionTest, AMemberOfABitFieldIsNotAMemberOfTheOuterCollection) {
    VBitField& bitField = m_members.AddNewBitField();
    VDataObject& nested = bitField.InterchangeableCollection().AddNewDataObject();
    EXPECT_TRUE(m_members.Find(nested) == m_members.End());
    TestSupport::ExpectFailedCheck({101073, "iter != End()", "InterchangeableCollection.cpp", 148},
                                   [&] { m_members.Remove(nested); });
    EXPECT_EQ(m_members.Count(), 1U);
    EXPECT_EQ(bitField.InterchangeableCollection().GetLastElement(), &nested);
}

TEST_F(VInterchangeableCollectionTest, TheImportedFlagReachesTheTopLevelOnly) {
    VBitField& bitField = m_members.AddNewBitField();
    VDataObject& nested = bitField.InterchangeableCollection().AddNewDataObject();
    nested.IsImported(false);
    m_members.AddNewGapObject();
    EXPECT_EQ(m_members.ImportedCount(), 2U);
    m_members.SetIsImportedInterchangeables(false);
    EXPECT_EQ(m_members.ImportedCount(), 0U);
    m_members.SetIsImportedInterchangeables(true);
    EXPECT_EQ(m_members.ImportedCount(), 2U);
    EXPECT_TRUE(bitField.IsImported());
    EXPECT_FALSE(nested.IsImported());
    EXPECT_EQ(bitField.InterchangeableCollection().ImportedCount(), 0U);
}

TEST_F(VInterchangeableCollectionTest, IsADocumentChildAndNotCopied) {
    static_assert(std::is_base_of_v<VImportDocChild, VInterchangeableCollection>);
    static_assert(!std::is_copy_constructible_v<VInterchangeableCollection>);
    static_assert(!std::is_copy_assignable_v<VInterchangeableCollection>);
    EXPECT_EQ(&m_members.ImportDoc(), &m_document);
}

} // namespace
