#include "support/FailedCheck.h"

#include <ImportDame/Attribute.h>
#include <ImportDame/BaseVariant.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/EcuVariant.h>
#include <ImportDame/EcuVariantCollection.h>
#include <ImportDame/ImportDoc.h>
#include <ImportDame/VariantVisitor.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

using namespace ImportDame;
using TestSupport::ExpectFailedCheck;

namespace {

static_assert(std::is_abstract_v<VVariant> && std::is_base_of_v<VQualified, VVariant>);
static_assert(std::is_base_of_v<VVariant, VBaseVariant> && std::is_base_of_v<VVariant, VEcuVariant>);
static_assert(std::is_copy_constructible_v<VBaseVariant> && !std::is_copy_assignable_v<VBaseVariant>);
static_assert(std::is_abstract_v<VVariantVisitor> && std::has_virtual_destructor_v<VVariantVisitor>);

/// A variant that remembers which imported flags it was given through the virtual interface, and its target then.
class ObservedVariant : public VVariant {
public:
    using VVariant::VVariant;

    void IsImported(bool isImported) override {
        flags.push_back(isImported);
        targets.emplace_back(GetTargetVariantQualifier());
        VVariant::IsImported(isImported);
    }

    bool IsImported() override { return VVariant::IsImported(); }

    void Accept(VVariantVisitor&) override {}

    std::vector<bool> flags;
    std::vector<std::wstring> targets;
};

class VVariantTest : public testing::Test {
protected:
    void ExpectImported(bool isImported) {
        EXPECT_EQ(m_variant.IsImported(), isImported);
        EXPECT_EQ(m_service.IsImported(), isImported);
        EXPECT_EQ(m_shape.IsImported(), isImported);
        EXPECT_EQ(m_job.IsImported(), isImported);
    }

    VImportDoc m_document;
    VEcuVariant m_variant{m_document};
    VDiagService& m_service = m_variant.DiagCommCollection().AddNewDiagService();
    VDiagServiceShape& m_shape = m_service.DiagServiceShapeCollection().AddNewDiagServiceShape();
    VDiagJob& m_job = m_variant.DiagCommCollection().AddNewDiagJob();
};

TEST(VNewVariantTest, IsNotImportedAndEmpty) {
    VImportDoc document;
    VEcuVariant variant(document);
    EXPECT_FALSE(variant.IsImported());
    EXPECT_FALSE(variant.IsImportedCompletly());
    EXPECT_STREQ(variant.GetTargetVariantQualifier(), L"");
    EXPECT_STREQ(variant.GetReferenceFromVariantQualifier(), L"");
    EXPECT_FALSE(variant.HasReferenceFromVariantSpecified());
    EXPECT_FALSE(variant.GetVariantIsLockedInTarget());
    EXPECT_TRUE(variant.DiagCommCollection().IsEmpty());
    EXPECT_EQ(&variant.DiagCommCollection().ImportDoc(), &document);
    EXPECT_EQ(&variant.ImportDoc(), &document);
}

TEST_F(VVariantTest, SettingTheTargetMarksEverythingInItAsImported) {
    m_variant.IsImported(false);
    m_variant.SetTargetVariantQualifier(L"EV_Target");
    EXPECT_STREQ(m_variant.GetTargetVariantQualifier(), L"EV_Target");
    ExpectImported(true);
    EXPECT_TRUE(m_variant.IsImportedCompletly());
}

TEST_F(VVariantTest, AnEmptyTargetMarksItAsImportedAllTheSame) {
    m_variant.IsImported(false);
    m_variant.SetTargetVariantQualifier(L"");
    EXPECT_STREQ(m_variant.GetTargetVariantQualifier(), L"");
    ExpectImported(true);
}

TEST_F(VVariantTest, UnsettingTheTargetMarksEverythingInItAsNotImported) {
    m_variant.SetTargetVariantQualifier(L"EV_Target");
    m_variant.UnsetTargetVariantQualifier();
    EXPECT_STREQ(m_variant.GetTargetVariantQualifier(), L"");
    ExpectImported(false);
    EXPECT_FALSE(m_variant.IsImportedCompletly());
}

TEST_F(VVariantTest, CommunicationsAddedLaterKeepTheirOwnState) {
    EXPECT_FALSE(m_variant.IsImported());
    EXPECT_TRUE(m_service.IsImported());
    m_variant.SetTargetVariantQualifier(L"EV");
    VDiagJob& added = m_variant.DiagCommCollection().AddNewDiagJob();
    added.IsImported(false);
    EXPECT_TRUE(m_variant.IsImported());
    EXPECT_FALSE(added.IsImported());
    EXPECT_FALSE(m_variant.IsImportedCompletly());
}

TEST_F(VVariantTest, ItsOwnFlagIsNotChangedByItsCommunications) {
    m_variant.SetTargetVariantQualifier(L"EV");
    m_service.IsImported(false);
    m_job.IsImported(false);
    EXPECT_TRUE(m_variant.IsImported());
}

TEST_F(VVariantTest, IsNotCompletelyImportedWithAServiceThatIsNot) {
    m_variant.SetTargetVariantQualifier(L"EV");
    m_shape.IsImported(false);
    EXPECT_TRUE(m_variant.IsImported());
    EXPECT_TRUE(m_service.IsImported());
    EXPECT_FALSE(m_variant.IsImportedCompletly());
    m_shape.IsImported(true);
    EXPECT_TRUE(m_variant.IsImportedCompletly());
    m_job.IsImported(false);
    EXPECT_FALSE(m_variant.IsImportedCompletly());
}

TEST(VNewVariantTest, WithoutCommunicationsIsCompletelyImportedWhenItIsImported) {
    VImportDoc document;
    VEcuVariant variant(document);
    variant.IsImported(true);
    EXPECT_TRUE(variant.IsImportedCompletly());
}

TEST(VNewVariantTest, IsNotCompletelyImportedWhenOnlyItsCommunicationsAre) {
    VImportDoc document;
    VEcuVariant variant(document);
    variant.DiagCommCollection().AddNewDiagJob();
    EXPECT_FALSE(variant.IsImportedCompletly());
}

TEST(VObservedVariantTest, TheTargetReachesTheFlagThroughTheVirtualInterfaceConstructionDoesNot) {
    VImportDoc document;
    ObservedVariant variant(document);
    EXPECT_TRUE(variant.flags.empty());
    variant.SetTargetVariantQualifier(L"T");
    variant.UnsetTargetVariantQualifier();
    variant.SetReferenceFromVariantQualifier(L"R");
    variant.UnsetReferenceFromVariantQualifier();
    variant.SetVariantIsLockedInTarget(true);
    EXPECT_EQ(variant.flags, (std::vector<bool>{true, false}));
}

TEST(VObservedVariantTest, TheTargetIsThereBeforeTheFlagIsSetAndGoneBeforeItIsCleared) {
    VImportDoc document;
    ObservedVariant variant(document);
    variant.SetTargetVariantQualifier(L"T");
    variant.UnsetTargetVariantQualifier();
    EXPECT_EQ(variant.targets, (std::vector<std::wstring>{L"T", L""}));
}

TEST_F(VVariantTest, TheReferenceLeavesTheImportedStateAlone) {
    m_variant.IsImported(false);
    m_variant.SetReferenceFromVariantQualifier(L"EV_Source");
    EXPECT_STREQ(m_variant.GetReferenceFromVariantQualifier(), L"EV_Source");
    EXPECT_TRUE(m_variant.HasReferenceFromVariantSpecified());
    ExpectImported(false);
    m_variant.IsImported(true);
    m_variant.UnsetReferenceFromVariantQualifier();
    EXPECT_STREQ(m_variant.GetReferenceFromVariantQualifier(), L"");
    EXPECT_FALSE(m_variant.HasReferenceFromVariantSpecified());
    ExpectImported(true);
}

TEST_F(VVariantTest, AnEmptyReferenceIsNone) {
    m_variant.SetReferenceFromVariantQualifier(L"EV_Source");
    m_variant.SetReferenceFromVariantQualifier(L"");
    EXPECT_FALSE(m_variant.HasReferenceFromVariantSpecified());
}

TEST_F(VVariantTest, NullQualifiersAreRefusedAndChangeNothing) {
    m_variant.SetTargetVariantQualifier(L"T");
    m_variant.SetReferenceFromVariantQualifier(L"R");
    m_variant.IsImported(false);
    ExpectFailedCheck({102042, "pTargetVariantQualifier", "Variant.cpp", 63},
                      [&] { m_variant.SetTargetVariantQualifier(nullptr); });
    ExpectFailedCheck({102043, "pQualifierOfVariantToReferenceFrom", "Variant.cpp", 87},
                      [&] { m_variant.SetReferenceFromVariantQualifier(nullptr); });
    EXPECT_STREQ(m_variant.GetTargetVariantQualifier(), L"T");
    EXPECT_STREQ(m_variant.GetReferenceFromVariantQualifier(), L"R");
    ExpectImported(false);
}

TEST_F(VVariantTest, QualifiersMayBeSetFromPartsOfThemselves) {
    m_variant.SetTargetVariantQualifier(L"EV_Target");
    m_variant.SetTargetVariantQualifier(m_variant.GetTargetVariantQualifier() + 3);
    EXPECT_STREQ(m_variant.GetTargetVariantQualifier(), L"Target");
    m_variant.SetReferenceFromVariantQualifier(L"EV_Source");
    m_variant.SetReferenceFromVariantQualifier(m_variant.GetReferenceFromVariantQualifier() + 3);
    EXPECT_STREQ(m_variant.GetReferenceFromVariantQualifier(), L"Source");
}

TEST_F(VVariantTest, TheLockedFlagChangesNothingElse) {
    m_variant.SetTargetVariantQualifier(L"T");
    m_variant.SetVariantIsLockedInTarget(true);
    EXPECT_TRUE(m_variant.GetVariantIsLockedInTarget());
    ExpectImported(true);
    EXPECT_STREQ(m_variant.GetTargetVariantQualifier(), L"T");
    m_variant.SetVariantIsLockedInTarget(false);
    EXPECT_FALSE(m_variant.GetVariantIsLockedInTarget());
}

void ExpectVariantCopy(VVariant& source, VVariant& copy) {
    EXPECT_TRUE(copy.CompareContent(source));
    EXPECT_STREQ(copy.GetObjectIdentifier(), L"id");
    EXPECT_STREQ(copy.GetSourceInfo(), L"");
    EXPECT_EQ(copy.Attributes().Count(), 1U);
    EXPECT_GT(copy.UniquenessId(), source.UniquenessId());
    EXPECT_TRUE(copy.GetVariantIsLockedInTarget());
    EXPECT_STREQ(copy.GetTargetVariantQualifier(), L"");
    EXPECT_STREQ(copy.GetReferenceFromVariantQualifier(), L"");
    EXPECT_FALSE(copy.IsImported());
    EXPECT_TRUE(copy.DiagCommCollection().IsEmpty());
    EXPECT_EQ(&copy.DiagCommCollection().ImportDoc(), &source.ImportDoc());
    EXPECT_TRUE(source.IsImported());
    EXPECT_EQ(source.DiagCommCollection().Count(), 1U);
    EXPECT_TRUE(source.DiagCommCollection().Begin()->IsImported());
}

void FillForCopy(VVariant& variant) {
    variant.SetQualifier(L"EV1");
    variant.SetName(L"Variant");
    variant.Name().SetTextId(L"T1");
    variant.SetDescription(L"described");
    variant.SetObjectIdentifier(L"id");
    variant.SetSourceInfo(L"file");
    variant.Attributes().AddNewAttribute();
    variant.SetVariantIsLockedInTarget(true);
    variant.SetReferenceFromVariantQualifier(L"R");
    variant.DiagCommCollection().AddNewDiagService();
    variant.SetTargetVariantQualifier(L"T");
}

TEST(VEcuVariantTest, ACopyKeepsWhatItIsCalledAndTheLockedFlagOnly) {
    VImportDoc document;
    VEcuVariant variant(document);
    FillForCopy(variant);
    VEcuVariant copy(variant);
    ExpectVariantCopy(variant, copy);
}

TEST(VBaseVariantTest, ACopyHasNoEcuVariants) {
    VImportDoc document;
    VBaseVariant variant(document);
    FillForCopy(variant);
    variant.GetEcuVariantCollection().AddNewEcuVariant();
    variant.GetEcuVariantCollection().AddNewEcuVariant();
    VBaseVariant copy(variant);
    ExpectVariantCopy(variant, copy);
    EXPECT_TRUE(copy.GetEcuVariantCollection().IsEmpty());
    EXPECT_NE(&copy.GetEcuVariantCollection(), &variant.GetEcuVariantCollection());
    EXPECT_EQ(&copy.GetEcuVariantCollection().ImportDoc(), &document);
    EXPECT_EQ(variant.GetEcuVariantCollection().Count(), 2U);
}

TEST(VBaseVariantTest, ItsEcuVariantsKeepTheirOwnImportedState) {
    VImportDoc document;
    VBaseVariant variant(document);
    VEcuVariant& ecuVariant = variant.GetEcuVariantCollection().AddNewEcuVariant();
    variant.SetTargetVariantQualifier(L"BV");
    EXPECT_FALSE(ecuVariant.IsImported());
    EXPECT_TRUE(variant.IsImportedCompletly());
}

/// Remembers what it was shown.
class Visitor : public VVariantVisitor {
public:
    void VisitBaseVariant(VBaseVariant& variant) override { baseVariants.push_back(&variant); }

    void VisitEcuVariant(VEcuVariant& variant) override { ecuVariants.push_back(&variant); }

    std::vector<VBaseVariant*> baseVariants;
    std::vector<VEcuVariant*> ecuVariants;
};

TEST(VVariantVisitorTest, IsShownEveryVariantByTheOperationOfItsKindAlone) {
    VImportDoc document;
    VBaseVariant baseVariant(document);
    VEcuVariant& ecuVariant = baseVariant.GetEcuVariantCollection().AddNewEcuVariant();
    Visitor visitor;
    visitor.DispatchVariant(baseVariant);
    EXPECT_EQ(visitor.baseVariants, std::vector<VBaseVariant*>{&baseVariant});
    EXPECT_TRUE(visitor.ecuVariants.empty());
    visitor.DispatchVariant(ecuVariant);
    EXPECT_EQ(visitor.baseVariants.size(), 1U);
    EXPECT_EQ(visitor.ecuVariants, std::vector<VEcuVariant*>{&ecuVariant});
    Visitor copy(visitor);
    copy = visitor;
    ecuVariant.Accept(copy);
    EXPECT_EQ(copy.ecuVariants.size(), 2U);
}

} // namespace
