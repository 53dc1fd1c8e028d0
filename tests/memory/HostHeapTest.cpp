#include "support/AllocationControl.h"

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
using TestSupport::FailAllocation;
using TestSupport::FailureMode;
using TestSupport::StopFailing;

namespace {

/// This program's own operator new fails for as long as this lives; memory of the library is at hand.
class WithoutHostHeap {
public:
    WithoutHostHeap() : m_block(detail::Allocate(8)), m_room(detail::Allocate(512)) {
        detail::Free(m_room, 512);
        FailAllocation(1, FailureMode::andLater);
    }

    WithoutHostHeap(const WithoutHostHeap&) = delete;
    WithoutHostHeap& operator=(const WithoutHostHeap&) = delete;

    ~WithoutHostHeap() {
        StopFailing();
        detail::Free(m_block, 8);
    }

private:
    void* m_block;
    void* m_room;
};

class DerivedTroubleCode : public VTroubleCode {
public:
    using VTroubleCode::VTroubleCode;

private:
    alignas(16) std::array<char, 32> m_more{};
};

TEST(HostHeapTest, AnObjectThatAHostCreatesLivesInTheLibrarysMemory) {
    VImportDoc document;
    const WithoutHostHeap noHeap;
    auto* const item = new VRecordItem; // the record's from the next lines on
    VRecordItemCollection record;
    record.AppendRecordItem(*item);
    EXPECT_EQ(record.Count(), 1U);
    record.Clear();
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

} // namespace
