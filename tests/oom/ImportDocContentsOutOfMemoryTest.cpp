#include "support/FailingAllocation.h"
#include "support/OrderOfDeath.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/DataTypeCollection.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/EndMarkerIterDataType.h>
#include <ImportDame/EndOfServiceIterDataType.h>
#include <ImportDame/FormulaDataType.h>
#include <ImportDame/GapObject.h>
#include <ImportDame/IdentityDataType.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/InterchangeableCollection.h>
#include <ImportDame/LinearDataType.h>
#include <ImportDame/MuxDataType.h>
#include <ImportDame/NumeratorIterDataType.h>
#include <ImportDame/PacketDataType.h>
#include <ImportDame/PiecewiseLinearDataType.h>
#include <ImportDame/ProcedureDataType.h>
#include <ImportDame/StaticIterDataType.h>
#include <ImportDame/TextTableDataType.h>
#include <ImportDame/TroubleCode.h>
#include <ImportDame/TroubleCodeCollection.h>
#include <ImportDame/TroubleCodeCollectionCollection.h>
#include <ImportDame/Unit.h>
#include <ImportDame/UnitCollection.h>
#include <ImportDame/ValueTableDataType.h>

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <typeinfo>
#include <vector>

using namespace ImportDame;
using TestSupport::ForEachFailingAllocation;
using TestSupport::LiveBlocks;

namespace {

TEST(ImportDocContentsOutOfMemoryTest, ADocumentThatCannotBeBuiltFreesWhatItHasAndIsNeverAlive) {
    alignas(VImportDoc) static unsigned char memory[sizeof(VImportDoc)];
    const auto survived = ForEachFailingAllocation(
        [] { return std::make_unique<int>(); },
        [](int&) { std::unique_ptr<VImportDoc, void (*)(VImportDoc*)>(::new (memory) VImportDoc, &std::destroy_at); },
        [](int&) { EXPECT_FALSE(VImportDoc::IsLiving(reinterpret_cast<VImportDoc*>(memory))); });
    // In both modes: five contents, the ECU variants of the base variant and the entry among the living documents.
    EXPECT_GE(survived, 14U);
}

TEST(ImportDocContentsOutOfMemoryTest, ADocumentDeletesItsContentsInTheOrderInWhichItCreatedThem) {
    auto document = std::make_unique<VImportDoc>();
    const std::vector<const void*> contents = {
        &document->DataTypeCollection(), &document->TroubleCodeCollectionCollection(),
        &document->InterchangeableCollection(), &document->GetBaseVariant(), &document->UnitCollection()};
    EXPECT_EQ(TestSupport::OrderOfDeath(contents, [&] { document.reset(); }),
              (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

void FillEveryCollection(VImportDoc& document) {
    document.DataTypeCollection().AddNewPacketDataType().InterchangeableCollection().AddNewGapObject();
    document.TroubleCodeCollectionCollection().AppendNew().AppendNew().SetErrorText(L"text");
    document.InterchangeableCollection().AddNewGapObject().SetQualifier(L"gap");
    document.GetBaseVariant().GetEcuVariantCollection().AddNewEcuVariant().SetQualifier(L"variant");
    document.GetBaseVariant().DiagCommCollection().AddNewDiagService();
    document.UnitCollection().AddNewUnit().SetDisplayName(L"unit");
}

TEST(ImportDocContentsOutOfMemoryTest, ADocumentDeletesEverythingThatItsContentsHold) {
    const std::size_t before = LiveBlocks();
    {
        VImportDoc document;
        FillEveryCollection(document);
        EXPECT_GT(LiveBlocks(), before + 15);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(ImportDocContentsOutOfMemoryTest, ADocumentDoesNotDeleteWhatWasMadeAndNeverAppended) {
    const std::size_t before = LiveBlocks();
    auto document = std::make_unique<VImportDoc>();
    VLinearDataType& dataType = document->MakeLinearDataType();
    document.reset();
    EXPECT_GT(LiveBlocks(), before);
    dataType.Destroy();
    EXPECT_EQ(LiveBlocks(), before);
}

template <class T>
void ExpectNothingLeft(T& (VImportDoc::*make)()) {
    const auto survived = ForEachFailingAllocation(
        [] { return std::make_unique<VImportDoc>(); }, [=](VImportDoc& document) { (document.*make)().Destroy(); },
        [](VImportDoc& document) { EXPECT_TRUE(document.DataTypeCollection().IsEmpty()); });
    EXPECT_GE(survived, 2U) << typeid(T).name();
}

TEST(ImportDocContentsOutOfMemoryTest, AFactoryThatFailsLeavesNothingBehind) {
    ExpectNothingLeft(&VImportDoc::MakeAttribute);
    ExpectNothingLeft(&VImportDoc::MakeAttributeCollection);
    ExpectNothingLeft(&VImportDoc::MakeTroubleCode);
    ExpectNothingLeft(&VImportDoc::MakeTroubleCodeCollection);
    ExpectNothingLeft(&VImportDoc::MakeFormulaDataType);
    ExpectNothingLeft(&VImportDoc::MakeIdentityDataType);
    ExpectNothingLeft(&VImportDoc::MakeLinearDataType);
    ExpectNothingLeft(&VImportDoc::MakePiecewiseLinearDataType);
    ExpectNothingLeft(&VImportDoc::MakeProcedureDataType);
    ExpectNothingLeft(&VImportDoc::MakeTextTableDataType);
    ExpectNothingLeft(&VImportDoc::MakeValueTableDataType);
    ExpectNothingLeft(&VImportDoc::MakeMuxDataType);
    ExpectNothingLeft(&VImportDoc::MakePacketDataType);
    ExpectNothingLeft(&VImportDoc::MakeEndMarkerIterDataType);
    ExpectNothingLeft(&VImportDoc::MakeEndOfServiceIterDataType);
    ExpectNothingLeft(&VImportDoc::MakeNumeratorIterDataType);
    ExpectNothingLeft(&VImportDoc::MakeStaticIterDataType);
}

} // namespace
