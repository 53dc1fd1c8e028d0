#include "support/FailingAllocation.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/ImportDoc.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ImportDame;
using TestSupport::ForEachFailingAllocation;

namespace {

/// A variant, not imported, with a service in two shapes and a job, all found by name.
struct Model {
    Model() {
        service.SetQualifier(L"service");
        service.SetSemantic(L"old semantic");
        service.SetFunctClass(L"old class");
        shape.SetQualifier(L"shape");
        service.DiagServiceShapeCollection().AddNewDiagServiceShape().SetQualifier(L"other shape");
        variant.DiagCommCollection().AddNewDiagJob().SetQualifier(L"job");
        variant.SetTargetVariantQualifier(L"old target");
        variant.SetReferenceFromVariantQualifier(L"old reference");
        variant.IsImported(false);
        variant.DiagCommCollection().InitCache();
    }

    VImportDoc document;
    VBaseVariant variant{document};
    VDiagService& service = variant.DiagCommCollection().AddNewDiagService();
    VDiagServiceShape& shape = service.DiagServiceShapeCollection().AddNewDiagServiceShape();
};

void ExpectUnchanged(Model& model) {
    EXPECT_STREQ(model.service.GetSemantic(), L"old semantic");
    EXPECT_STREQ(model.service.GetFunctClass(), L"old class");
    EXPECT_STREQ(model.variant.GetTargetVariantQualifier(), L"old target");
    EXPECT_STREQ(model.variant.GetReferenceFromVariantQualifier(), L"old reference");
    EXPECT_FALSE(model.variant.IsImported());
    EXPECT_FALSE(model.service.IsImported());
    EXPECT_FALSE(model.shape.IsImported());
    EXPECT_EQ(model.variant.DiagCommCollection().Count(), 2U);
    EXPECT_EQ(model.variant.DiagCommCollection().GetFromCache(L"service"), &model.service);
    EXPECT_EQ(model.service.DiagServiceShapeCollection().Count(), 2U);
    EXPECT_EQ(model.service.DiagServiceShapeCollection().GetFromCache(L"shape"), &model.shape);
    EXPECT_TRUE(model.variant.GetEcuVariantCollection().IsEmpty());
}

template <class Operation>
std::size_t Survived(Operation operation) {
    return ForEachFailingAllocation([] { return std::make_unique<Model>(); }, operation, ExpectUnchanged);
}

TEST(VariantsOutOfMemoryTest, SettingATextKeepsTheOldOneAndTheImportedState) {
    EXPECT_GE(Survived([](Model& model) { model.service.SetSemantic(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.service.SetFunctClass(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.variant.SetTargetVariantQualifier(L"new"); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.variant.SetReferenceFromVariantQualifier(L"new"); }), 1U);
}

TEST(VariantsOutOfMemoryTest, AddingAnElementLeavesTheCollectionAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.variant.DiagCommCollection().AddNewDiagService(); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.variant.DiagCommCollection().AddNewDiagService(1); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.variant.DiagCommCollection().AddNewDiagJob(); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.service.DiagServiceShapeCollection().AddNewDiagServiceShape(); }), 1U);
    EXPECT_GE(Survived([](Model& model) { model.variant.GetEcuVariantCollection().AddNewEcuVariant(); }), 2U);
}

TEST(VariantsOutOfMemoryTest, CopyingLeaksNothing) {
    EXPECT_GE(Survived([](Model& model) { const VDiagService copy(model.service); }), 3U);
    EXPECT_GE(Survived([](Model& model) { const VDiagServiceShape copy(model.shape); }), 1U);
    EXPECT_GE(Survived([](Model& model) { const VBaseVariant copy(model.variant); }), 1U);
}

TEST(VariantsOutOfMemoryTest, CopyingEcuVariantsLeaksNothing) {
    const auto prepare = [] {
        auto document = std::make_unique<VImportDoc>();
        for (const wchar_t* const qualifier : {L"EV1", L"EV2"})
            document->GetBaseVariant().GetEcuVariantCollection().AddNewEcuVariant().SetQualifier(qualifier);
        return document;
    };
    const auto survived = ForEachFailingAllocation(
        prepare,
        [](VImportDoc& document) {
            const VEcuVariantCollection copy(document.GetBaseVariant().GetEcuVariantCollection());
        },
        [](VImportDoc& document) { EXPECT_EQ(document.GetBaseVariant().GetEcuVariantCollection().Count(), 2U); });
    EXPECT_GE(survived, 12U); // in both modes: two variants with their list nodes and qualifiers
}

TEST(VariantsOutOfMemoryTest, ACacheThatCannotBeRebuiltStaysAsItWas) {
    EXPECT_GE(Survived([](Model& model) { model.service.DiagServiceShapeCollection().InitCache(); }), 8U);
    EXPECT_GE(Survived([](Model& model) { model.variant.DiagCommCollection().InitCache(); }), 16U);
}

TEST(VariantsOutOfMemoryTest, ACacheThatCannotBeRebuiltStillAnswersByTheOldNames) {
    const auto prepare = [] {
        auto model = std::make_unique<Model>();
        model->service.SetQualifier(L"renamed");
        model->variant.DiagCommCollection().AddNewDiagJob().SetQualifier(L"added");
        return model;
    };
    const auto expectOldNames = [](Model& model) {
        VDiagCommCollection& diagComms = model.variant.DiagCommCollection();
        EXPECT_EQ(diagComms.GetFromCache(L"service"), &model.service);
        EXPECT_EQ(diagComms.GetFromCache(L"renamed"), nullptr);
        EXPECT_EQ(diagComms.GetFromCache(L"added"), nullptr);
    };
    const auto survived = ForEachFailingAllocation(
        prepare, [](Model& model) { model.variant.DiagCommCollection().InitCache(); }, expectOldNames);
    EXPECT_GE(survived, 12U);
}

} // namespace
