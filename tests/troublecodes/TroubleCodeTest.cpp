#include <ImportDame/Attribute.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/RecordItem.h>
#include <ImportDame/TroubleCode.h>

#include "support/FailedCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

constexpr TestSupport::FailedCheck g_noItem{102019, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 154};
constexpr TestSupport::FailedCheck g_noText{102020, "iter != mRecordItemCollection.End()", "TroubleCode.cpp", 164};
constexpr TestSupport::FailedCheck g_nothingToOverwrite{102022, "iNum < mRecordItemCollection.Count()",
                                                        "TroubleCode.cpp", 229};
constexpr TestSupport::FailedCheck g_nothingToOverwriteByCharacters{102024, "iNum < mRecordItemCollection.Count()",
                                                                    "TroubleCode.cpp", 240};

using Texts = std::vector<std::wstring>;

class VTroubleCodeTest : public testing::Test {
protected:
    static VText Identified(const wchar_t* text, const wchar_t* textId) {
        VText identified(text);
        identified.SetTextId(textId);
        return identified;
    }

    Texts Record() const {
        Texts texts;
        for (unsigned int index = 0; index < m_code.GetNumberOfItem(); ++index)
            texts.emplace_back(m_code.GetItem(index));
        return texts;
    }

    VRecordItem& RecordItem(unsigned int index) { return *m_code.RecordItemCollection().FindByIndex(index); }

    void Append(std::initializer_list<const wchar_t*> texts) {
        for (const wchar_t* text : texts)
            m_code.AppendItem(text);
    }

    VImportDoc m_document;
    VTroubleCode m_code{m_document};
};

TEST_F(VTroubleCodeTest, TheDefaultsAreExported) {
    EXPECT_EQ(VTroubleCode::siDefaultCode, 0U);
    EXPECT_TRUE(VTroubleCode::sbDefaultValueIsImported);
    EXPECT_EQ(VTroubleCode::ssDefaultErrorText, L"");
}

TEST_F(VTroubleCodeTest, ANewCodeHasTheDefaultsAndIsImported) {
    EXPECT_EQ(m_code.GetCode(), 0U);
    EXPECT_STREQ(m_code.GetErrorText(), L"");
    EXPECT_FALSE(m_code.ErrorText().HasTextId());
    EXPECT_TRUE(m_code.IsImported());
    EXPECT_EQ(m_code.GetNumberOfItem(), 0U);
    EXPECT_TRUE(m_code.Attributes().IsEmpty());
    EXPECT_EQ(&m_code.Attributes().ImportDoc(), &m_document);
    EXPECT_STREQ(m_code.GetObjectIdentifier(), L"");
    EXPECT_FALSE(m_code.HasObjectIdentifier());
    EXPECT_EQ(&m_code.ImportDoc(), &m_document);
}

TEST_F(VTroubleCodeTest, ACodeOfItsFieldsStoresThem) {
    VTroubleCode code(m_document, -1, L"broken", false);
    EXPECT_EQ(code.GetCode(), 0xFFFFFFFFU);
    EXPECT_STREQ(code.GetErrorText(), L"broken");
    EXPECT_FALSE(code.IsImported());
    EXPECT_EQ(code.GetNumberOfItem(), 0U);
    EXPECT_TRUE(code.Attributes().IsEmpty());
    EXPECT_FALSE(code.HasObjectIdentifier());
    EXPECT_EQ(&code.ImportDoc(), &m_document);
    EXPECT_TRUE(VTroubleCode(m_document, 1, L"", true).IsImported());
}

TEST_F(VTroubleCodeTest, IsCopyableButNotAssignable) {
    static_assert(std::is_copy_constructible_v<VTroubleCode>);
    static_assert(!std::is_copy_assignable_v<VTroubleCode>);
    static_assert(std::is_base_of_v<VImportDocChild, VTroubleCode>);
    static_assert(std::is_invocable_r_v<bool, bool (VTroubleCode::*)() const, const VTroubleCode&>);
    const VTroubleCode& constant = m_code;
    EXPECT_TRUE(constant.IsImported());
}

TEST_F(VTroubleCodeTest, StoresWhatIsSet) {
    m_code.SetCode(0xFFFFFFFF);
    EXPECT_EQ(m_code.GetCode(), 0xFFFFFFFFU);
    m_code.IsImported(false);
    EXPECT_FALSE(m_code.IsImported());
    m_code.SetObjectIdentifier(L"OID");
    EXPECT_TRUE(m_code.HasObjectIdentifier());
    EXPECT_STREQ(m_code.GetObjectIdentifier(), L"OID");
    m_code.SetObjectIdentifier(m_code.GetObjectIdentifier() + 1);
    EXPECT_STREQ(m_code.GetObjectIdentifier(), L"ID");
    m_code.SetObjectIdentifier(L"");
    EXPECT_FALSE(m_code.HasObjectIdentifier());
}

TEST_F(VTroubleCodeTest, SettingTheErrorTextKeepsItsIdentifier) {
    m_code.ErrorText().SetTextId(L"ID");
    m_code.SetErrorText(L"broken wire");
    EXPECT_STREQ(m_code.GetErrorText(), L"broken wire");
    EXPECT_STREQ(m_code.ErrorText().GetText(), L"broken wire");
    EXPECT_STREQ(m_code.ErrorText().GetTextId(), L"ID");
    m_code.SetErrorText(m_code.GetErrorText() + 7);
    EXPECT_STREQ(m_code.GetErrorText(), L"wire");
}

TEST_F(VTroubleCodeTest, TheBitLengthGoesUpToTheHighestBit) {
    for (const auto& [number, length] : {std::pair{0U, 1U},
                                         {1U, 1U},
                                         {2U, 2U},
                                         {3U, 2U},
                                         {255U, 8U},
                                         {256U, 9U},
                                         {0xFFFFU, 16U},
                                         {0x10000U, 17U},
                                         {0x3FFFFFFFU, 30U},
                                         {0x40000000U, 31U},
                                         {0x7FFFFFFFU, 31U},
                                         {0x80000000U, 0U},
                                         {0x80000001U, 0U},
                                         {0xFFFFFFFFU, 0U}}) {
        m_code.SetCode(number);
        EXPECT_EQ(m_code.GetBitLen(), length) << number;
    }
}

TEST_F(VTroubleCodeTest, AppendsItemsWithAndWithoutIdentifier) {
    m_code.AppendItem(L"plain");
    m_code.AppendItem(Identified(L"text", L"ID"));
    m_code.AppendItem(Identified(L"", L""));
    EXPECT_EQ(Record(), (Texts{L"plain", L"text", L""}));
    EXPECT_FALSE(m_code.Item(0).HasTextId());
    EXPECT_STREQ(m_code.Item(1).GetTextId(), L"ID");
    EXPECT_TRUE(m_code.Item(2).HasTextId());
    EXPECT_FALSE(RecordItem(1).IsEnumRecordItem());
}

TEST_F(VTroubleCodeTest, InsertFillsUpAndThenOverwrites) {
    m_code.InsertItem(3, L"x");
    EXPECT_EQ(Record(), (Texts{L"", L"", L"", L"x"}));
    m_code.InsertItem(1, L"y");
    EXPECT_EQ(Record(), (Texts{L"", L"y", L"", L"x"}));
    m_code.InsertItem(4, Identified(L"z", L"ID"));
    EXPECT_EQ(Record(), (Texts{L"", L"y", L"", L"x", L"z"}));
    EXPECT_STREQ(m_code.Item(4).GetTextId(), L"ID");
    EXPECT_FALSE(m_code.Item(0).HasTextId());
}

TEST_F(VTroubleCodeTest, InsertMovesNoItem) {
    Append({L"a", L"b"});
    VRecordItem& first = RecordItem(0);
    m_code.InsertItem(0, L"c");
    EXPECT_EQ(&RecordItem(0), &first);
    EXPECT_EQ(Record(), (Texts{L"c", L"b"}));
    m_code.InsertItem(4, L"d");
    EXPECT_EQ(&RecordItem(0), &first);
    EXPECT_EQ(Record(), (Texts{L"c", L"b", L"", L"", L"d"}));
}

TEST_F(VTroubleCodeTest, InsertEnumRecordItemMakesTheItemAnEnumeratedText) {
    m_code.InsertEnumRecordItem(0, L"on", 5);
    EXPECT_EQ(Record(), Texts{L"on"});
    EXPECT_TRUE(RecordItem(0).IsEnumRecordItem());
    EXPECT_EQ(RecordItem(0).GetEnumIndex(), 5);
    m_code.InsertEnumRecordItem(2, L"off", 0xFFFF);
    EXPECT_EQ(Record(), (Texts{L"on", L"", L"off"}));
    EXPECT_FALSE(RecordItem(1).IsEnumRecordItem());
    EXPECT_EQ(RecordItem(2).GetEnumIndex(), 0xFFFF);
    m_code.InsertEnumRecordItem(0, L"off", 0);
    EXPECT_EQ(Record(), (Texts{L"off", L"", L"off"}));
    EXPECT_EQ(RecordItem(0).GetEnumIndex(), 0);
}

TEST_F(VTroubleCodeTest, OverwritingKeepsFlagAndIndex) {
    m_code.InsertEnumRecordItem(0, L"on", 5);
    m_code.OverwriteItem(0, Identified(L"off", L"ID"));
    EXPECT_STREQ(m_code.Item(0).GetText(), L"off");
    EXPECT_STREQ(m_code.Item(0).GetTextId(), L"ID");
    EXPECT_TRUE(RecordItem(0).IsEnumRecordItem());
    EXPECT_EQ(RecordItem(0).GetEnumIndex(), 5);
    m_code.OverwriteItem(0, L"on"); // a whole text: the identifier goes
    EXPECT_STREQ(m_code.GetItem(0), L"on");
    EXPECT_FALSE(m_code.Item(0).HasTextId());
    EXPECT_EQ(RecordItem(0).GetEnumIndex(), 5);
    m_code.InsertItem(0, Identified(L"off", L"ID"));
    EXPECT_STREQ(m_code.Item(0).GetTextId(), L"ID");
    EXPECT_TRUE(RecordItem(0).IsEnumRecordItem());
    m_code.InsertItem(0, L"on"); // as by overwriting
    EXPECT_FALSE(m_code.Item(0).HasTextId());
    EXPECT_EQ(RecordItem(0).GetEnumIndex(), 5);
}

TEST_F(VTroubleCodeTest, TakesTextsOfItsOwnRecord) {
    Append({L"abcdef"});
    m_code.OverwriteItem(0, m_code.GetItem(0) + 2);
    EXPECT_EQ(Record(), Texts{L"cdef"});
    m_code.AppendItem(m_code.GetItem(0));
    m_code.AppendItem(m_code.Item(0));
    m_code.InsertItem(5, m_code.GetItem(0) + 1);
    m_code.OverwriteItem(0, m_code.Item(5));
    EXPECT_EQ(Record(), (Texts{L"def", L"cdef", L"cdef", L"", L"", L"def"}));
    m_code.InsertEnumRecordItem(1, m_code.GetItem(1) + 3, 1);
    EXPECT_STREQ(m_code.GetItem(1), L"f");
}

TEST_F(VTroubleCodeTest, APositionWithoutItemIsReported) {
    for (const unsigned int count : {0U, 1U, 2U}) {
        for (const unsigned int index : {count, count + 1, 0xFFFFFFFFU}) {
            ExpectFailedCheck(g_noItem, [&] { m_code.Item(index); });
            ExpectFailedCheck(g_noText, [&] { m_code.GetItem(index); });
            ExpectFailedCheck(g_nothingToOverwrite, [&] { m_code.OverwriteItem(index, VText(L"x")); });
            ExpectFailedCheck(g_nothingToOverwriteByCharacters, [&] { m_code.OverwriteItem(index, L"x"); });
        }
        EXPECT_EQ(Record(), Texts(count, L"a"));
        m_code.AppendItem(L"a");
    }
}

TEST_F(VTroubleCodeTest, ClearRecordDeletesItsItemsAlone) {
    Append({L"a", L"b"});
    m_code.SetCode(7);
    m_code.Attributes().AddNewAttribute();
    m_code.ClearRecord();
    EXPECT_EQ(m_code.GetNumberOfItem(), 0U);
    EXPECT_EQ(m_code.GetCode(), 7U);
    EXPECT_EQ(m_code.Attributes().Count(), 1U);
    m_code.ClearRecord();
    EXPECT_EQ(m_code.GetNumberOfItem(), 0U);
}

TEST_F(VTroubleCodeTest, TheItemAndItsTextAreOneObject) {
    Append({L"a"});
    m_code.Item(0).SetText(L"b");
    EXPECT_STREQ(m_code.GetItem(0), L"b");
    RecordItem(0).Text().SetText(L"c");
    EXPECT_STREQ(m_code.GetItem(0), L"c");
}

void Fill(VTroubleCode& code) {
    code.SetCode(0x123456);
    code.SetErrorText(L"broken");
    code.ErrorText().SetTextId(L"ID");
    code.IsImported(false);
    code.InsertEnumRecordItem(1, L"on", 5);
    VAttribute& attribute = code.Attributes().AddNewAttribute();
    attribute.SetQualifier(L"Q");
    attribute.SetValue(L"V");
    code.SetObjectIdentifier(L"OID");
}

void ExpectFilled(VTroubleCode& code, VImportDoc& document) {
    EXPECT_EQ(code.GetCode(), 0x123456U);
    EXPECT_STREQ(code.GetErrorText(), L"broken");
    EXPECT_STREQ(code.ErrorText().GetTextId(), L"ID");
    EXPECT_FALSE(code.IsImported());
    ASSERT_EQ(code.GetNumberOfItem(), 2U);
    EXPECT_STREQ(code.GetItem(0), L"");
    EXPECT_STREQ(code.GetItem(1), L"on");
    EXPECT_EQ(code.RecordItemCollection().FindByIndex(1)->GetEnumIndex(), 5);
    ASSERT_EQ(code.Attributes().Count(), 1U);
    EXPECT_STREQ(code.Attributes().Find(L"Q")->GetValue(), L"V");
    EXPECT_EQ(&code.Attributes().ImportDoc(), &document);
    EXPECT_EQ(&code.Attributes().Begin()->ImportDoc(), &document);
    EXPECT_STREQ(code.GetObjectIdentifier(), L"OID");
    EXPECT_EQ(&code.ImportDoc(), &document);
}

TEST_F(VTroubleCodeTest, ACopyTakesEverything) {
    Fill(m_code);
    VTroubleCode copy(m_code);
    m_code.ClearRecord();
    m_code.Attributes().Clear();
    m_code.SetErrorText(L"");
    ExpectFilled(copy, m_document);
}

TEST_F(VTroubleCodeTest, ACopyForAnotherDocumentBelongsToItWhole) {
    VImportDoc other;
    auto source = std::make_unique<VTroubleCode>(m_document);
    Fill(*source);
    VTroubleCode copy(*source, other);
    source.reset();
    ExpectFilled(copy, other);
}

TEST_F(VTroubleCodeTest, DestroysItself) {
    VImportDocChild& code = *std::make_unique<VTroubleCode>(m_document).release();
    code.Destroy();
}

TEST_F(VTroubleCodeTest, BehavesAsAVectorOfTexts) {
    std::mt19937 random(11);
    Texts model;
    for (int step = 0; step < 3000; ++step) {
        const std::wstring text = std::to_wstring(step);
        const auto place = static_cast<unsigned int>(random() % (model.size() + 3));
        switch (random() % 5) {
        case 0:
            m_code.AppendItem(text.c_str());
            model.push_back(text);
            break;
        case 1:
        case 2:
            m_code.InsertItem(place, text.c_str());
            model.resize(std::max<std::size_t>(model.size(), place + 1U));
            model[place] = text;
            break;
        case 3:
            if (place < model.size()) {
                m_code.OverwriteItem(place, VText(text.c_str()));
                model[place] = text;
            }
            break;
        default:
            if (random() % 50 == 0) {
                m_code.ClearRecord();
                model.clear();
            }
        }
        ASSERT_EQ(Record(), model);
    }
}

TEST_F(VTroubleCodeTest, HoldsALongRecord) {
    m_code.InsertItem(99999, L"last");
    EXPECT_EQ(m_code.GetNumberOfItem(), 100000U);
    EXPECT_STREQ(m_code.GetItem(99999), L"last");
    for (unsigned int index = 0; index < 100000; ++index)
        m_code.OverwriteItem(index, L"x");
    EXPECT_STREQ(m_code.GetItem(50000), L"x");
}

} // namespace
