#include "support/FailingAllocation.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/RecordItem.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ImportDame;
using TestSupport::ForEachFailingAllocation;

namespace {

/// One collection of a source with two codes, of two items and of none.
struct Model {
    Model() {
        codes.SetSourceName(L"Engine");
        first.SetErrorText(L"old error");
        first.AppendItem(L"old item");
        first.InsertEnumRecordItem(1, L"old text", 5);
        first.Attributes().AddNewAttribute().SetValue(L"value");
        VItemMapping mapping;
        mapping.SetContent(L"old content");
        for (int i = 0; i < 4; ++i)
            codes.RecordTemplateMapping().Append(mapping);
    }

    VImportDoc document;
    VTroubleCodeCollectionCollection sources{document};
    VTroubleCodeCollection& codes = sources.AppendNew();
    VTroubleCode& first = codes.AppendNew();
    VTroubleCode& second = codes.AppendNew();
};

void ExpectUnchanged(Model& model) {
    EXPECT_EQ(model.sources.Count(), 1U);
    EXPECT_STREQ(model.codes.GetSourceName(), L"Engine");
    ASSERT_EQ(model.codes.Count(), 2U);
    EXPECT_EQ(&*model.codes.Begin(), &model.first);
    EXPECT_STREQ(model.first.GetErrorText(), L"old error");
    ASSERT_EQ(model.first.GetNumberOfItem(), 2U);
    EXPECT_STREQ(model.first.GetItem(0), L"old item");
    EXPECT_STREQ(model.first.GetItem(1), L"old text");
    EXPECT_FALSE(model.first.RecordItemCollection().Begin()->IsEnumRecordItem());
    EXPECT_EQ(model.first.RecordItemCollection().FindByIndex(1)->GetEnumIndex(), 5);
    EXPECT_EQ(model.second.GetNumberOfItem(), 0U);
    ASSERT_EQ(model.codes.RecordTemplateMapping().GetNumberOfTemplateItem(), 4U);
    EXPECT_STREQ(model.codes.RecordTemplateMapping().GetItemMapping(3).GetContent(), L"old content");
}

template <class Operation>
std::size_t Survived(Operation operation) {
    return ForEachFailingAllocation([] { return std::make_unique<Model>(); }, operation, ExpectUnchanged);
}

TEST(TroubleCodesOutOfMemoryTest, SettingATextKeepsTheOldOne) {
    EXPECT_GE(Survived([](Model& model) { model.codes.SetSourceName(L"new"); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.codes.SetObjectIdentifier(L"new"); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.first.SetErrorText(L"new"); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.first.SetObjectIdentifier(L"new"); }), 2U);
}

TEST(TroubleCodesOutOfMemoryTest, AppendingAnItemAppendsItWholeOrNotAtAll) {
    EXPECT_GE(Survived([](Model& model) { model.first.AppendItem(L"new"); }), 4U);
    EXPECT_GE(Survived([](Model& model) { model.second.AppendItem(L"new"); }), 6U);
    EXPECT_GE(Survived([](Model& model) { model.second.AppendItem(VText(L"new")); }), 6U);
    EXPECT_GE(Survived([](Model& model) { model.second.RecordItemCollection().AddNewRecordItem(); }), 4U);
}

TEST(TroubleCodesOutOfMemoryTest, InsertingAnItemFarBehindTheEndLeavesTheRecordAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.first.InsertItem(20, L"new"); }), 38U);
    EXPECT_GE(Survived([](Model& model) { model.second.InsertEnumRecordItem(3, L"new", 1); }), 8U);
}

TEST(TroubleCodesOutOfMemoryTest, OverwritingAnItemKeepsTheOldOne) {
    EXPECT_GE(Survived([](Model& model) { model.first.OverwriteItem(0, L"new"); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.first.OverwriteItem(1, VText(L"new")); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.first.InsertItem(1, L"new"); }), 2U);
    EXPECT_GE(Survived([](Model& model) { model.first.InsertEnumRecordItem(0, L"new", 1); }), 2U);
}

TEST(TroubleCodesOutOfMemoryTest, CompletingRecordsCompletesAllOrNone) {
    EXPECT_GE(Survived([](Model& model) { model.codes.CompleteRecords(); }), 12U);
}

TEST(TroubleCodesOutOfMemoryTest, AssigningARecordAppendsAllOrNothing) {
    VRecordItemCollection source;
    for (int i = 0; i < 3; ++i)
        source.AddNewRecordItem().Text().SetText(L"new");
    EXPECT_GE(Survived([&](Model& model) { model.first.RecordItemCollection() = source; }), 12U);
    EXPECT_GE(Survived([](Model& model) {
                  VRecordItemCollection& record = model.first.RecordItemCollection();
                  const VRecordItemCollection& same = record;
                  record = same;
              }),
              8U);
    EXPECT_GE(Survived([](Model& model) { const VRecordItemCollection copy(model.first.RecordItemCollection()); }), 8U);
}

TEST(TroubleCodesOutOfMemoryTest, ATemplateKeepsItsItems) {
    VItemMapping mapping(true);
    mapping.SetContent(L"new");
    VRecordTemplateMapping source;
    for (int i = 0; i < 3; ++i)
        source.Append(mapping);
    EXPECT_GE(Survived([&](Model& model) { model.codes.RecordTemplateMapping().Append(mapping); }), 2U);
    EXPECT_GE(Survived([&](Model& model) { model.codes.RecordTemplateMapping().OverwriteItemMapping(3, mapping); }),
              2U);
    EXPECT_GE(Survived([&](Model& model) { model.codes.RecordTemplateMapping() = source; }), 8U);
    EXPECT_GE(
        Survived([](Model& model) { model.codes.RecordTemplateMapping().IsRecordTemplateMappingOK({L"a name"}); }), 2U);
}

TEST(TroubleCodesOutOfMemoryTest, AddingACodeOrACollectionLeavesTheOwnerAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.codes.AppendNew(); }), 4U);
    EXPECT_GE(Survived([](Model& model) { model.codes.InsertNew(model.codes.Begin()); }), 4U);
    EXPECT_GE(Survived([](Model& model) { model.codes.AppendCopy(model.first); }), 18U);
    EXPECT_GE(Survived([](Model& model) { model.codes.InsertCopy(model.codes.Begin(), model.first); }), 18U);
    EXPECT_GE(Survived([](Model& model) { model.sources.AppendNew(); }), 6U);
    EXPECT_GE(Survived([](Model& model) { model.sources.InsertNew(model.sources.Begin()); }), 6U);
    EXPECT_GE(Survived([](Model& model) { model.sources.AppendCopy(model.codes); }), 30U);
    EXPECT_GE(Survived([](Model& model) { model.sources.InsertCopy(model.sources.Begin(), model.codes); }), 30U);
}

TEST(TroubleCodesOutOfMemoryTest, CopyingLeaksNothing) {
    EXPECT_GE(Survived([](Model& model) { const VTroubleCode copy(model.first); }), 16U);
    EXPECT_GE(Survived([](Model& model) { const VTroubleCodeCollection copy(model.codes, model.document); }), 30U);
    EXPECT_GE(
        Survived([](Model& model) { const VTroubleCodeCollectionCollection copy(model.sources, model.document); }),
        30U);
    EXPECT_GE(Survived([](Model& model) {
                  const std::unique_ptr<VRecordItem> clone(&model.first.RecordItemCollection().Begin()->Clone());
              }),
              4U);
}

TEST(TroubleCodesOutOfMemoryTest, AnItemThatCouldNotBeTakenOverIsStillTheCallers) {
    struct WithItem : Model {
        std::unique_ptr<VRecordItem> item = std::make_unique<VRecordItem>();
    };

    const auto survived =
        ForEachFailingAllocation([] { return std::make_unique<WithItem>(); },
                                 [](WithItem& model) {
                                     model.second.RecordItemCollection().AppendRecordItem(*model.item);
                                     model.item.release(); // the record's from now on
                                 },
                                 [](WithItem& model) {
                                     EXPECT_NE(model.item, nullptr);
                                     ExpectUnchanged(model);
                                 });
    EXPECT_GE(survived, 2U);
}

} // namespace
