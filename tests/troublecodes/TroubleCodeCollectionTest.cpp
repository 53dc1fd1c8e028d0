#include "troublecodes/TroubleCodeTraits.h"

#include <ImportDame/Attribute.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <iterator>
#include <memory>
#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace {

class VTroubleCodeCollectionTest : public testing::Test {
protected:
    std::vector<unsigned int> Codes() {
        std::vector<unsigned int> codes;
        for (const VTroubleCode& code : m_codes)
            codes.push_back(code.GetCode());
        return codes;
    }

    VTroubleCode& Add(unsigned int number) {
        VTroubleCode& code = m_codes.AppendNew();
        code.SetCode(number);
        return code;
    }

    using Numbers = std::vector<unsigned int>;

    VImportDoc m_document;
    VImportDoc m_otherDocument;
    TestSupport::ExposedTroubleCodes m_codes{m_document};
};

TEST_F(VTroubleCodeCollectionTest, ANewCollectionHasNothingSet) {
    EXPECT_STREQ(m_codes.GetSourceName(), L"");
    EXPECT_FALSE(m_codes.HasMaxBitLength());
    EXPECT_EQ(m_codes.GetMaxBitLength(), 0U);
    EXPECT_FALSE(m_codes.HasFormatIdentifier());
    EXPECT_EQ(static_cast<unsigned int>(m_codes.GetFormatIdentifier()), 0U);
    EXPECT_FALSE(m_codes.HasObjectIdentifier());
    EXPECT_STREQ(m_codes.GetObjectIdentifier(), L"");
    EXPECT_EQ(m_codes.RecordTemplateMapping().GetNumberOfTemplateItem(), 0U);
    EXPECT_STREQ(m_codes.ServiceMapping().GetService(), L"");
    EXPECT_EQ(&m_codes.ImportDoc(), &m_document);
    EXPECT_EQ(m_codes.ImportedCount(), 0U);
}

TEST_F(VTroubleCodeCollectionTest, IsMappableAndAChildOfItsDocument) {
    static_assert(std::is_base_of_v<VMappable, VTroubleCodeCollection>);
    static_assert(std::is_base_of_v<VImportDocChild, VTroubleCodeCollection>);
    static_assert(!std::is_copy_constructible_v<VTroubleCodeCollection>);
    static_assert(!std::is_copy_assignable_v<VTroubleCodeCollection>);
    static_assert(sizeof(VTroubleCodeCollection::VFormatIdentifier) == 4);
    VMappable& mappable = m_codes;
    EXPECT_EQ(static_cast<void*>(&mappable), static_cast<void*>(&m_codes)); // the first base
    VImportDocChild& child = *std::make_unique<VTroubleCodeCollection>(m_document).release();
    child.Destroy();
}

TEST_F(VTroubleCodeCollectionTest, StoresWhatIsSet) {
    m_codes.SetSourceName(L"Engine");
    EXPECT_STREQ(m_codes.GetSourceName(), L"Engine");
    m_codes.SetSourceName(m_codes.GetSourceName() + 3);
    EXPECT_STREQ(m_codes.GetSourceName(), L"ine");
    m_codes.SetObjectIdentifier(L"OID");
    EXPECT_TRUE(m_codes.HasObjectIdentifier());
    EXPECT_STREQ(m_codes.GetObjectIdentifier(), L"OID");
    m_codes.SetObjectIdentifier(L"");
    EXPECT_FALSE(m_codes.HasObjectIdentifier());
    m_codes.SetMaxBitLength(0);
    EXPECT_TRUE(m_codes.HasMaxBitLength());
    m_codes.SetMaxBitLength(24);
    EXPECT_EQ(m_codes.GetMaxBitLength(), 24U);
    m_codes.SetFormatIdentifier(static_cast<VTroubleCodeCollection::VFormatIdentifier>(0));
    EXPECT_TRUE(m_codes.HasFormatIdentifier());
    m_codes.SetFormatIdentifier(static_cast<VTroubleCodeCollection::VFormatIdentifier>(0xFFFFFFFF));
    EXPECT_EQ(static_cast<unsigned int>(m_codes.GetFormatIdentifier()), 0xFFFFFFFFU);
}

TEST_F(VTroubleCodeCollectionTest, NewCodesBelongToTheDocumentAndAreImported) {
    VTroubleCode& code = m_codes.AppendNew();
    EXPECT_EQ(&code.ImportDoc(), &m_document);
    EXPECT_EQ(code.GetCode(), 0U);
    EXPECT_TRUE(code.IsImported());
    EXPECT_EQ(m_codes.ImportedCount(), 1U);
}

TEST_F(VTroubleCodeCollectionTest, TakesOverACodeThatIsAppended) {
    VTroubleCode& code = *std::make_unique<VTroubleCode>(m_document, 7, L"", true).release();
    Add(1);
    m_codes.Append(code);
    EXPECT_EQ(&*m_codes.Find(7), &code);
    EXPECT_EQ(Codes(), (Numbers{1, 7}));
}

TEST_F(VTroubleCodeCollectionTest, CopiesBelongToTheCollectionsDocument) {
    VTroubleCode source(m_otherDocument, 7, L"broken", false);
    source.AppendItem(L"item");
    source.Attributes().AddNewAttribute();
    VTroubleCode& appended = m_codes.AppendCopy(source);
    VTroubleCode& inserted = m_codes.InsertCopy(m_codes.Begin(), source);
    EXPECT_EQ(&*m_codes.Begin(), &inserted);
    EXPECT_EQ(&*std::next(m_codes.Begin()), &appended);
    for (VTroubleCode* copy : {&appended, &inserted}) {
        EXPECT_NE(copy, &source);
        EXPECT_EQ(&copy->ImportDoc(), &m_document);
        EXPECT_EQ(copy->GetCode(), 7U);
        EXPECT_STREQ(copy->GetErrorText(), L"broken");
        EXPECT_FALSE(copy->IsImported());
        EXPECT_STREQ(copy->GetItem(0), L"item");
        EXPECT_EQ(&copy->Attributes().Begin()->ImportDoc(), &m_document);
    }
}

TEST_F(VTroubleCodeCollectionTest, CopiesACodeOfItsOwn) {
    for (unsigned int number = 1; number <= 9; ++number)
        Add(number);
    m_codes.AppendCopy(*m_codes.Begin());
    m_codes.InsertCopy(m_codes.Begin(), *m_codes.Find(9));
    m_codes.InsertCopy(m_codes.Find(5), *m_codes.Find(5));
    EXPECT_EQ(Codes(), (Numbers{9, 1, 2, 3, 4, 5, 5, 6, 7, 8, 9, 1}));
}

TEST_F(VTroubleCodeCollectionTest, InsertsBeforeAPosition) {
    m_codes.InsertNew(m_codes.End()).SetCode(2);
    m_codes.InsertNew(m_codes.Begin()).SetCode(1);
    m_codes.InsertNew(m_codes.End()).SetCode(4);
    m_codes.InsertNew(std::next(m_codes.Begin(), 2)).SetCode(3);
    EXPECT_EQ(Codes(), (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(&m_codes.Begin()->ImportDoc(), &m_document);
    auto code = std::make_unique<VTroubleCode>(m_document);
    m_codes._Insert(m_codes.Find(3).Unwrap(), *code);
    code.release(); // the collection's from now on
    EXPECT_EQ(Codes(), (Numbers{1, 2, 0, 3, 4}));
}

TEST_F(VTroubleCodeCollectionTest, FindByCodeYieldsTheFirst) {
    Add(1);
    VTroubleCode& first = Add(7);
    Add(7);
    EXPECT_EQ(&*m_codes.Find(7), &first);
    EXPECT_TRUE(m_codes.Find(8) == m_codes.End());
    first.SetCode(0xFFFFFFFF);
    EXPECT_EQ(&*m_codes.Find(0xFFFFFFFF), &first);
}

TEST_F(VTroubleCodeCollectionTest, SetIsImportedReachesEveryCode) {
    Add(1);
    Add(2).IsImported(false);
    EXPECT_EQ(m_codes.ImportedCount(), 1U);
    m_codes.SetIsImportedTroubleCodes(true);
    EXPECT_EQ(m_codes.ImportedCount(), 2U);
    m_codes.SetIsImportedTroubleCodes(false);
    EXPECT_EQ(m_codes.ImportedCount(), 0U);
    EXPECT_EQ(m_codes.Count(), 2U);
}

void SetEverything(VTroubleCodeCollection& codes) {
    codes.SetSourceName(L"Engine");
    codes.SetObjectIdentifier(L"OID");
    codes.SetMaxBitLength(24);
    codes.SetFormatIdentifier(VTroubleCodeCollection::saeJ1939Format);
    codes.ServiceMapping().SetService(L"ReadDTC");
    codes.ServiceMapping().SetDtcPoolType(VServiceMapping::mirrorMemory);
    VItemMapping mapping(true);
    mapping.SetContent(L"Status");
    codes.RecordTemplateMapping().Append(mapping);
    codes.AppendNew().SetCode(1);
    codes.AppendNew().SetCode(2);
}

TEST_F(VTroubleCodeCollectionTest, ClearLeavesEverythingButTheCodes) {
    SetEverything(m_codes);
    m_codes.Clear();
    EXPECT_TRUE(m_codes.IsEmpty());
    EXPECT_STREQ(m_codes.GetSourceName(), L"Engine");
    EXPECT_STREQ(m_codes.GetObjectIdentifier(), L"OID");
    EXPECT_EQ(m_codes.GetMaxBitLength(), 24U);
    EXPECT_TRUE(m_codes.HasMaxBitLength());
    EXPECT_EQ(m_codes.GetFormatIdentifier(), VTroubleCodeCollection::saeJ1939Format);
    EXPECT_EQ(m_codes.RecordTemplateMapping().GetNumberOfTemplateItem(), 1U);
    EXPECT_STREQ(m_codes.ServiceMapping().GetService(), L"ReadDTC");
}

TEST_F(VTroubleCodeCollectionTest, ACopyHasNoBitLengthAndNoFormat) {
    SetEverything(m_codes);
    m_codes.Begin()->AppendItem(L"item");
    VTroubleCodeCollection copy(m_codes, m_otherDocument);
    m_codes.Clear();
    m_codes.RecordTemplateMapping().Clear();
    m_codes.ServiceMapping().SetService(L"");
    EXPECT_EQ(&copy.ImportDoc(), &m_otherDocument);
    EXPECT_STREQ(copy.GetSourceName(), L"Engine");
    EXPECT_STREQ(copy.GetObjectIdentifier(), L"OID");
    EXPECT_STREQ(copy.ServiceMapping().GetService(), L"ReadDTC");
    EXPECT_EQ(copy.ServiceMapping().GetDtcPoolType(), VServiceMapping::mirrorMemory);
    ASSERT_EQ(copy.RecordTemplateMapping().GetNumberOfTemplateItem(), 1U);
    EXPECT_STREQ(copy.RecordTemplateMapping().GetItemMapping(0).GetContent(), L"Status");
    EXPECT_TRUE(copy.RecordTemplateMapping().GetItemMapping(0).IsAutomaticallyForcedMapping());
    ASSERT_EQ(copy.Count(), 2U);
    EXPECT_EQ(copy.Begin()->GetCode(), 1U);
    EXPECT_STREQ(copy.Begin()->GetItem(0), L"item");
    EXPECT_EQ(&copy.Begin()->ImportDoc(), &m_otherDocument);
    EXPECT_EQ(std::next(copy.Begin())->GetCode(), 2U);
    EXPECT_FALSE(copy.HasMaxBitLength());
    EXPECT_EQ(copy.GetMaxBitLength(), 0U);
    EXPECT_FALSE(copy.HasFormatIdentifier());
    EXPECT_EQ(static_cast<unsigned int>(copy.GetFormatIdentifier()), 0U);
}

class CompleteRecordsTest : public VTroubleCodeCollectionTest {
protected:
    void AddTemplateItems(int count) {
        VItemMapping mapping;
        for (int i = 0; i < count; ++i)
            m_codes.RecordTemplateMapping().Append(mapping);
    }

    VTroubleCode& AddRecord(std::initializer_list<const wchar_t*> texts) {
        VTroubleCode& code = m_codes.AppendNew();
        for (const wchar_t* text : texts)
            code.AppendItem(text);
        return code;
    }
};

TEST_F(CompleteRecordsTest, AnEmptyTemplateChangesNothing) {
    VTroubleCode& empty = AddRecord({});
    VTroubleCode& two = AddRecord({L"a", L"b"});
    m_codes.CompleteRecords();
    EXPECT_EQ(empty.GetNumberOfItem(), 0U);
    EXPECT_EQ(two.GetNumberOfItem(), 2U);
}

TEST_F(CompleteRecordsTest, EveryRecordGetsTheLengthOfTheTemplate) {
    VTroubleCode& empty = AddRecord({});
    VTroubleCode& one = AddRecord({L"a"});
    VTroubleCode& three = AddRecord({L"a", L"b", L"c"});
    AddTemplateItems(3);
    m_codes.CompleteRecords();
    for (VTroubleCode* code : {&empty, &one, &three})
        ASSERT_EQ(code->GetNumberOfItem(), 3U);
    EXPECT_STREQ(one.GetItem(0), L"a");
    EXPECT_STREQ(one.GetItem(1), L"");
    EXPECT_STREQ(one.GetItem(2), L"");
    EXPECT_FALSE(one.Item(2).HasTextId());
    EXPECT_STREQ(three.GetItem(2), L"c");
    m_codes.CompleteRecords();
    EXPECT_EQ(empty.GetNumberOfItem(), 3U);
}

TEST_F(CompleteRecordsTest, ALongerRecordStaysAsItIs) {
    VTroubleCode& longer = AddRecord({L"a", L"b", L"c"});
    VTroubleCode& shorter = AddRecord({L"a"});
    AddTemplateItems(2);
    m_codes.CompleteRecords();
    EXPECT_EQ(longer.GetNumberOfItem(), 3U);
    EXPECT_STREQ(longer.GetItem(2), L"c");
    EXPECT_EQ(shorter.GetNumberOfItem(), 2U);
}

TEST_F(VTroubleCodeCollectionTest, ADyingCodeIsAlreadyOut) {
    struct Witness : VTroubleCode {
        Witness(VTroubleCodeCollection& codes, unsigned long long& countAtDeath)
            : VTroubleCode(codes.ImportDoc()), m_codes(codes), m_countAtDeath(countAtDeath) {}

        ~Witness() override {
            EXPECT_TRUE(m_codes.Find(*this) == m_codes.End());
            m_countAtDeath = m_codes.Count();
        }

        VTroubleCodeCollection& m_codes;
        unsigned long long& m_countAtDeath;
    };

    unsigned long long countAtDeath = 99;
    Add(1);
    VTroubleCode& witness = *std::make_unique<Witness>(m_codes, countAtDeath).release();
    m_codes.Append(witness);
    m_codes.Remove(witness);
    EXPECT_EQ(countAtDeath, 1U);
}

TEST_F(VTroubleCodeCollectionTest, HoldsAndClearsAHundredThousandCodes) {
    for (unsigned int number = 0; number < 100000; ++number)
        Add(number);
    EXPECT_EQ(m_codes.ImportedCount(), 100000U);
    m_codes.Clear();
    EXPECT_TRUE(m_codes.IsEmpty());
}

} // namespace
