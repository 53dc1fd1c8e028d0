#include "support/CapturedLog.h"
#include "support/FailingAllocation.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/LgAssertException.h>
#include <ImportDame/Mappable.h>
#include <ImportDame/Qualified.h>
#include <ImportDame/detail/Memory.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

using namespace ImportDame;
using TestSupport::ForEachFailingAllocation;

namespace {

/// A qualified object with every text set and two attributes.
struct Model {
    Model() {
        object.SetQualifier(L"old qualifier");
        object.SetName(L"old name");
        object.Name().SetTextId(L"old identifier");
        object.SetDescription(L"old description");
        object.SetObjectIdentifier(L"old object identifier");
        object.SetSourceInfo(L"old source");
        for (const wchar_t* qualifier : {L"first", L"second"}) {
            VAttribute& attribute = object.Attributes().AddNewAttribute();
            attribute.SetQualifier(qualifier);
            attribute.SetValue(L"a value");
        }
    }

    VImportDoc document;
    VQualified object{document};
};

void ExpectUnchanged(Model& model) {
    EXPECT_STREQ(model.object.GetQualifier(), L"old qualifier");
    EXPECT_STREQ(model.object.GetName(), L"old name");
    EXPECT_STREQ(model.object.Name().GetTextId(), L"old identifier");
    EXPECT_STREQ(model.object.GetDescription(), L"old description");
    EXPECT_STREQ(model.object.GetObjectIdentifier(), L"old object identifier");
    EXPECT_STREQ(model.object.GetSourceInfo(), L"old source");
    ASSERT_EQ(model.object.Attributes().Count(), 2U);
    EXPECT_STREQ(model.object.Attributes().Begin()->GetQualifier(), L"first");
}

template <class Operation>
std::size_t Survived(Operation operation) {
    return ForEachFailingAllocation([] { return std::make_unique<Model>(); }, operation, ExpectUnchanged);
}

TEST(CoreOutOfMemoryTest, SettingATextKeepsTheOldOne) {
    EXPECT_GE(Survived([](Model& model) { model.object.SetQualifier(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.object.SetName(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.object.Name().SetTextId(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.object.SetDescription(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.object.SetObjectIdentifier(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.object.SetSourceInfo(L"new"); }), 1U);
}

TEST(CoreOutOfMemoryTest, AnIdentifierThatCouldNotBeSetIsStillAbsent) {
    const auto survived = ForEachFailingAllocation([] { return std::make_unique<VText>(L"text"); },
                                                   [](VText& text) { text.SetTextId(L"identifier"); },
                                                   [](const VText& text) { EXPECT_FALSE(text.HasTextId()); });
    EXPECT_GE(survived, 1U);
}

TEST(CoreOutOfMemoryTest, AssigningATextKeepsTheOldOneWhole) {
    VText source(L"new text");
    source.SetTextId(L"new identifier");
    EXPECT_GE(Survived([&](Model& model) { model.object.Name() = source; }), 2U);
}

TEST(CoreOutOfMemoryTest, AddingAnAttributeLeavesTheCollectionAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.object.Attributes().AddNewAttribute(); }), 2U);
}

TEST(CoreOutOfMemoryTest, CopyingLeaksNothing) {
    EXPECT_GE(Survived([](Model& model) { const VQualified copy(model.object); }), 9U);
    EXPECT_GE(Survived([](Model& model) { const VAttributeCollection copy(model.object.Attributes()); }), 6U);
}

TEST(CoreOutOfMemoryTest, DocumentTextsAreKept) {
    const auto prepare = [] {
        auto document = std::make_unique<VImportDoc>();
        document->SetLanguage(L"de");
        return document;
    };
    const auto survived = ForEachFailingAllocation(
        prepare, [](VImportDoc& document) { document.SetLanguage(L"en"); },
        [](VImportDoc& document) { EXPECT_STREQ(document.GetLanguage(), L"de"); });
    EXPECT_GE(survived, 1U);
}

TEST(CoreOutOfMemoryTest, AssigningAServiceMappingKeepsTheOldOneWhole) {
    const auto prepare = [] {
        auto mappable = std::make_unique<VMappable>();
        mappable->ServiceMapping().SetVariant(L"old");
        return mappable;
    };
    VMappable source;
    source.ServiceMapping() = VServiceMapping(L"a", L"b", L"c", L"d", L"e", 1);
    source.ServiceMapping().SetDtcPoolType(VServiceMapping::mirrorMemory);
    const auto expectOld = [](VMappable& mappable) {
        EXPECT_STREQ(mappable.ServiceMapping().GetVariant(), L"old");
        EXPECT_EQ(mappable.ServiceMapping().GetBitPosition(), 0);
        EXPECT_FALSE(mappable.ServiceMapping().IsDtcPool());
    };
    EXPECT_GE(ForEachFailingAllocation(
                  prepare, [&](VMappable& target) { target.ServiceMapping() = source.ServiceMapping(); }, expectOld),
              6U);
    EXPECT_GE(ForEachFailingAllocation(
                  prepare, [&](VMappable& target) { target = source; }, expectOld),
              7U);
    EXPECT_GE(ForEachFailingAllocation(
                  prepare, [&](VMappable&) { const VMappable copy(source); }, expectOld),
              7U);
}

/// The report itself allocates nothing; the exception object alone comes from the language's own reserve.
TEST(CoreOutOfMemoryTest, AFailedCheckIsReportedWithoutMemory) {
    const VText text;
    NArdenaSharedUtil::Logging::VLogging::GetInstance().SetEnabled(false);
    TestSupport::FailAllocation(1, TestSupport::FailureMode::andLater);
    int errorCode = 0;
    try {
        text.GetTextId();
    } catch (const VLgAssertException& failure) {
        errorCode = failure.GetErrorCode();
    }
    const bool allocated = TestSupport::StopFailing();
    NArdenaSharedUtil::Logging::VLogging::GetInstance().SetEnabled(true);
    EXPECT_EQ(errorCode, 102016);
    EXPECT_FALSE(allocated);
}

/// The allocations of these tests would show it if the library did this.
TEST(CoreOutOfMemoryTest, AWriteBehindABlockIsNoticedWhenTheBlockIsFreed) {
    auto* const block = static_cast<volatile unsigned char*>(detail::Allocate(20));
    block[19] = 1;
    detail::Free(const_cast<unsigned char*>(block), 20);
    EXPECT_EQ(TestSupport::TakeDamagedBlocks(), 0U);
    auto* const damaged = static_cast<volatile unsigned char*>(detail::Allocate(20));
    damaged[20] = 1;
    detail::Free(const_cast<unsigned char*>(damaged), 20);
    EXPECT_EQ(TestSupport::TakeDamagedBlocks(), 1U);
}

TEST(CoreOutOfMemoryTest, TheCountStaysRightWhenABlockTakesThePlaceOfOneThatAnotherLibraryFreed) {
    std::free(detail::Allocate(20));
    const std::size_t before = TestSupport::LiveBlocks();
    detail::Free(detail::Allocate(20), 20); // mostly in the same place
    EXPECT_EQ(TestSupport::LiveBlocks(), before);
}

} // namespace
