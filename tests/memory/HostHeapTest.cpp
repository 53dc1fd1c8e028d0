#include "memory/HostHeap.h"

#include <ImportDame/ImportDoc.h>
#include <ImportDame/ImportDocChild.h>
#include <ImportDame/RecordItem.h>
#include <ImportDame/RecordItemCollection.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>
#include <ImportDame/Value.h>
#include <ImportDame/detail/Memory.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <memory>

using namespace ImportDame;
using TestSupport::ClosedHostHeap;

namespace {

class DerivedTroubleCode : public VTroubleCode {
public:
    using VTroubleCode::VTroubleCode;

private:
    alignas(16) [[maybe_unused]] std::array<char, 32> m_more{};
};

TEST(HostHeapTest, AnObjectThatAHostCreatesLivesInTheLibrarysMemory) {
    VRecordItemCollection record;
    record.AddNewRecordItem();
    record.AppendRecordItem(*new VRecordItem); // the library has memory at hand from now on
    {
        const ClosedHostHeap closed;
        record.AppendRecordItem(*new VRecordItem);
    }
    EXPECT_EQ(record.Count(), 3U);
}

TEST(HostHeapTest, AHandedOverObjectIsFreedByTheLibrary) {
    VImportDoc document;
    auto& collection = document.TroubleCodeCollectionCollection().AppendNew();
    for (int round = 0; round < 1000; ++round) {
        auto* const troubleCode = new VTroubleCode(document, round, L"text", true); // the collection's from now on
        collection.Append(*troubleCode);
    }
    EXPECT_EQ(collection.Count(), 1000U);
    collection.Clear();
    EXPECT_EQ(collection.Count(), 0U);
}

TEST(HostHeapTest, AClassOfTheHostIsFreedWithItsOwnSize) {
    VImportDoc document;
    auto& collection = document.TroubleCodeCollectionCollection().AppendNew();
    for (int round = 0; round < 1000; ++round) {
        auto* const troubleCode = new DerivedTroubleCode(document); // the collection's from now on
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(troubleCode) % 16, 0U);
        collection.Append(*troubleCode);
    }
    collection.Clear();
    EXPECT_EQ(collection.Count(), 0U);
}

TEST(HostHeapTest, AnObjectOfTheLibraryMayBeDeletedByTheHost) {
    const std::unique_ptr<VRecordItem> item(&VRecordItem().Clone());
    const auto value = std::make_unique<VValue>(1.5);
    const auto document = std::make_unique<VImportDoc>();
    EXPECT_STREQ(value->Get(), L"1.500000");
    EXPECT_TRUE(document->IsConstructed());
}

TEST(HostHeapTest, WhatTheLibraryKeepsIsGivenBackOnDemandAndNoModelIsTouched) {
    VRecordItemCollection().AddNewRecordItem();
    detail::ReleaseKept();
    VRecordItemCollection record;
    for (int round = 0; round < 1000; ++round)
        record.AddNewRecordItem().Text().SetText(L"a text of the model");
    detail::ReleaseKept();
    detail::ReleaseKept();
    for (VRecordItem& item : record)
        EXPECT_STREQ(item.Text().GetText(), L"a text of the model");
    record.Clear();
    EXPECT_STREQ(record.AddNewRecordItem().Text().GetText(), L"");
}

TEST(HostHeapTest, NoBlockMayBeFreed) {
    detail::Free(nullptr, 16);
    detail::Free(nullptr, 100000);
    void* const block = detail::Allocate(16);
    EXPECT_NE(block, nullptr);
    detail::Free(block, 16);
}

} // namespace
