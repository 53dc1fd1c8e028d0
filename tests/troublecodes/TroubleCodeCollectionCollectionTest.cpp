#include "troublecodes/TroubleCodeTraits.h"

#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

class VTroubleCodeCollectionCollectionTest : public testing::Test {
protected:
    VTroubleCodeCollection& Add(const wchar_t* sourceName, unsigned int imported = 0, unsigned int notImported = 0) {
        VTroubleCodeCollection& codes = m_sources.AppendNew();
        codes.SetSourceName(sourceName);
        for (unsigned int i = 0; i < notImported; ++i)
            codes.AppendNew().IsImported(false);
        for (unsigned int i = 0; i < imported; ++i)
            codes.AppendNew();
        return codes;
    }

    std::vector<std::wstring> Names() {
        std::vector<std::wstring> names;
        for (VTroubleCodeCollection& codes : m_sources)
            names.emplace_back(codes.GetSourceName());
        return names;
    }

    using Texts = std::vector<std::wstring>;

    VImportDoc m_document;
    VImportDoc m_otherDocument;
    TestSupport::ExposedSources m_sources{m_document};
};

TEST_F(VTroubleCodeCollectionCollectionTest, ANewOneIsEmpty) {
    EXPECT_EQ(&m_sources.ImportDoc(), &m_document);
    EXPECT_EQ(m_sources.ImportedCount(), 0U);
    EXPECT_EQ(m_sources.ImportedTroubleCodesCount(), 0U);
    EXPECT_EQ(m_sources.TroubleCodesCount(), 0U);
    EXPECT_TRUE(m_sources.FirstImported() == m_sources.End());
    static_assert(!std::is_copy_constructible_v<VTroubleCodeCollectionCollection>);
    static_assert(!std::is_copy_assignable_v<VTroubleCodeCollectionCollection>);
    static_assert(std::is_same_v<decltype(m_sources.TroubleCodesCount()), unsigned long long>);
    static_assert(std::is_same_v<decltype(m_sources.ImportedTroubleCodesCount()), unsigned int>);
}

TEST_F(VTroubleCodeCollectionCollectionTest, NewCollectionsBelongToTheDocument) {
    EXPECT_EQ(&m_sources.AppendNew().ImportDoc(), &m_document);
    EXPECT_EQ(&m_sources.InsertNew(m_sources.Begin()).ImportDoc(), &m_document);
}

TEST_F(VTroubleCodeCollectionCollectionTest, AppendsAndInserts) {
    Add(L"b");
    m_sources.InsertNew(m_sources.Begin()).SetSourceName(L"a");
    VTroubleCodeCollection& taken = *std::make_unique<VTroubleCodeCollection>(m_document).release();
    taken.SetSourceName(L"d");
    m_sources.Append(taken);
    m_sources.InsertNew(m_sources.Find(L"d")).SetSourceName(L"c");
    auto inserted = std::make_unique<VTroubleCodeCollection>(m_document);
    inserted->SetSourceName(L"e");
    m_sources._Insert(m_sources.End().Unwrap(), *inserted);
    inserted.release(); // the collection's from now on
    EXPECT_EQ(Names(), (Texts{L"a", L"b", L"c", L"d", L"e"}));
    EXPECT_EQ(&m_sources[3], &taken);
}

TEST_F(VTroubleCodeCollectionCollectionTest, CopiesBelongToTheDocument) {
    VTroubleCodeCollection source(m_otherDocument);
    source.SetSourceName(L"Engine");
    source.SetMaxBitLength(16);
    source.AppendNew().SetCode(7);
    VTroubleCodeCollection& appended = m_sources.AppendCopy(source);
    VTroubleCodeCollection& inserted = m_sources.InsertCopy(m_sources.Begin(), source);
    EXPECT_EQ(&m_sources[0], &inserted);
    EXPECT_EQ(&m_sources[1], &appended);
    for (VTroubleCodeCollection* copy : {&appended, &inserted}) {
        EXPECT_EQ(&copy->ImportDoc(), &m_document);
        EXPECT_STREQ(copy->GetSourceName(), L"Engine");
        EXPECT_FALSE(copy->HasMaxBitLength());
        ASSERT_EQ(copy->Count(), 1U);
        EXPECT_EQ(copy->Begin()->GetCode(), 7U);
        EXPECT_EQ(&copy->Begin()->ImportDoc(), &m_document);
    }
}

TEST_F(VTroubleCodeCollectionCollectionTest, FindGoesByTheExactSourceName) {
    Add(L"Engine");
    VTroubleCodeCollection& first = Add(L"ENGINE");
    Add(L"ENGINE");
    EXPECT_EQ(&*m_sources.Find(L"ENGINE"), &first);
    EXPECT_TRUE(m_sources.Find(L"ENGIN") == m_sources.End());
    EXPECT_TRUE(m_sources.Find(L"engine") == m_sources.End());
    EXPECT_TRUE(m_sources.Find(L"") == m_sources.End());
    VTroubleCodeCollection& unnamed = m_sources.AppendNew();
    EXPECT_EQ(&*m_sources.Find(L""), &unnamed);
}

TEST_F(VTroubleCodeCollectionCollectionTest, FirstAndNextImportedSkipCollectionsWithoutImportedCodes) {
    VTroubleCodeCollection& a = Add(L"A", 0, 3);
    VTroubleCodeCollection& b = Add(L"B", 2, 1);
    VTroubleCodeCollection& c = Add(L"C");
    VTroubleCodeCollection& d = Add(L"D", 3);
    EXPECT_EQ(&*m_sources.FirstImported(), &b);
    EXPECT_EQ(&*m_sources.NextImported(b), &d);
    EXPECT_TRUE(m_sources.NextImported(d) == m_sources.End());
    EXPECT_EQ(&*m_sources.NextImported(a), &b);
    EXPECT_EQ(&*m_sources.NextImported(c), &d);
    EXPECT_EQ(m_sources.ImportedCount(), 2U);
    EXPECT_EQ(m_sources.ImportedTroubleCodesCount(), 5U);
    EXPECT_EQ(m_sources.TroubleCodesCount(), 9U);
}

TEST_F(VTroubleCodeCollectionCollectionTest, NextImportedOfAForeignCollectionIsTheEnd) {
    Add(L"A", 1);
    VTroubleCodeCollection foreign(m_document);
    EXPECT_TRUE(m_sources.NextImported(foreign) == m_sources.End());
    m_sources.Clear();
    EXPECT_TRUE(m_sources.NextImported(foreign) == m_sources.End());
}

TEST_F(VTroubleCodeCollectionCollectionTest, SetIsImportedReachesEveryCodeOfEveryCollection) {
    Add(L"A", 1, 2);
    Add(L"B");
    Add(L"C", 0, 2);
    m_sources.SetIsImportedTroubleCodes(true);
    EXPECT_EQ(m_sources.ImportedTroubleCodesCount(), 5U);
    EXPECT_EQ(m_sources.ImportedCount(), 2U);
    m_sources.SetIsImportedTroubleCodes(false);
    EXPECT_EQ(m_sources.ImportedTroubleCodesCount(), 0U);
    EXPECT_EQ(m_sources.ImportedCount(), 0U);
    EXPECT_EQ(m_sources.TroubleCodesCount(), 5U);
    EXPECT_TRUE(m_sources.FirstImported() == m_sources.End());
}

TEST_F(VTroubleCodeCollectionCollectionTest, IndexAndObjectAnswerEachOther) {
    const std::vector<VTroubleCodeCollection*> expected{&Add(L"A"), &Add(L"B"), &Add(L"C")};
    const VTroubleCodeCollectionCollection& constant = m_sources;
    for (unsigned int index = 0; index < 3; ++index) {
        EXPECT_EQ(&constant[index], expected[index]);
        EXPECT_EQ(constant.GetIndex(*expected[index]), index);
    }
    m_sources.Remove(*expected[0]);
    EXPECT_EQ(constant.GetIndex(*expected[2]), 1U);
}

TEST_F(VTroubleCodeCollectionCollectionTest, AnIndexOutOfRangeIsReported) {
    const TestSupport::FailedCheck noCollection{102032, "false", "TroubleCodeCollectionCollection.cpp", 327};
    for (const unsigned int count : {0U, 1U, 2U}) {
        for (const unsigned int index : {count, count + 1, 0xFFFFFFFFU})
            ExpectFailedCheck(noCollection, [&] { m_sources[index]; });
        EXPECT_EQ(m_sources.Count(), count);
        Add(L"A");
    }
}

TEST_F(VTroubleCodeCollectionCollectionTest, TheIndexOfAForeignCollectionIsReported) {
    Add(L"A");
    VTroubleCodeCollection foreign(m_document);
    foreign.SetSourceName(L"A");
    ExpectFailedCheck({102033, "false", "TroubleCodeCollectionCollection.cpp", 344},
                      [&] { m_sources.GetIndex(foreign); });
    EXPECT_EQ(Names(), Texts{L"A"});
}

TEST_F(VTroubleCodeCollectionCollectionTest, ACopyCopiesEveryCollectionForTheDocument) {
    Add(L"A", 1).SetFormatIdentifier(VTroubleCodeCollection::iso14229Format);
    Add(L"B", 0, 2);
    VTroubleCodeCollectionCollection copy(m_sources, m_otherDocument);
    m_sources.Clear();
    EXPECT_EQ(&copy.ImportDoc(), &m_otherDocument);
    ASSERT_EQ(copy.Count(), 2U);
    EXPECT_STREQ(copy[0].GetSourceName(), L"A");
    EXPECT_FALSE(copy[0].HasFormatIdentifier());
    EXPECT_STREQ(copy[1].GetSourceName(), L"B");
    EXPECT_EQ(&copy[1].ImportDoc(), &m_otherDocument);
    EXPECT_EQ(&copy[1].Begin()->ImportDoc(), &m_otherDocument);
    EXPECT_EQ(copy.TroubleCodesCount(), 3U);
    EXPECT_EQ(copy.ImportedTroubleCodesCount(), 1U);
}

TEST_F(VTroubleCodeCollectionCollectionTest, CopiesACollectionOfItsOwn) {
    Add(L"A", 1);
    Add(L"B", 2);
    m_sources.InsertCopy(m_sources.Begin(), m_sources[1]);
    m_sources.AppendCopy(m_sources[1]);
    EXPECT_EQ(Names(), (Texts{L"B", L"A", L"B", L"A"}));
    EXPECT_EQ(m_sources.TroubleCodesCount(), 6U);
}

} // namespace
