#include <ImportDame/Attribute.h>
#include <ImportDame/DiagCommVisitor.h>
#include <ImportDame/DiagJob.h>
#include <ImportDame/DiagService.h>
#include <ImportDame/DiagServiceShape.h>
#include <ImportDame/ImportDoc.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

using namespace ImportDame;

namespace {

static_assert(std::is_abstract_v<VDiagComm> && std::is_base_of_v<VQualified, VDiagComm>);
static_assert(!std::is_constructible_v<VDiagComm, VImportDoc&>);
static_assert(std::is_base_of_v<VDiagComm, VDiagJob> && std::is_copy_constructible_v<VDiagJob>);
static_assert(std::is_base_of_v<VDiagComm, VDiagService> && std::is_copy_constructible_v<VDiagService>);
static_assert(std::is_base_of_v<VQualified, VDiagServiceShape> && std::is_copy_constructible_v<VDiagServiceShape>);
static_assert(!std::is_copy_assignable_v<VDiagService> && !std::is_copy_assignable_v<VDiagServiceShape>);
static_assert(std::is_abstract_v<VDiagCommVisitor> && std::has_virtual_destructor_v<VDiagCommVisitor>);

/// Remembers what it was shown.
class Visitor : public VDiagCommVisitor {
public:
    void VisitDiagService(VDiagService& service) override { services.push_back(&service); }

    void VisitDiagJob(VDiagJob& job) override { jobs.push_back(&job); }

    std::vector<VDiagService*> services;
    std::vector<VDiagJob*> jobs;
};

/// A kind that a host adds.
class OtherComm : public VDiagComm {
public:
    explicit OtherComm(VImportDoc& importDoc) : VDiagComm(importDoc) {}

    OtherComm(const OtherComm&) = default;

    void Accept(VDiagCommVisitor&) override {}
};

class VDiagServiceTest : public testing::Test {
protected:
    VDiagServiceShape& AddShape() { return m_service.DiagServiceShapeCollection().AddNewDiagServiceShape(); }

    VImportDoc m_document;
    VDiagService m_service{m_document};
};

TEST_F(VDiagServiceTest, IsEmptyAndImportedAtFirst) {
    EXPECT_EQ(m_service.GetServiceId(), 0U);
    EXPECT_STREQ(m_service.GetSemantic(), L"");
    EXPECT_STREQ(m_service.GetFunctClass(), L"");
    EXPECT_TRUE(m_service.DiagServiceShapeCollection().IsEmpty());
    EXPECT_EQ(&m_service.DiagServiceShapeCollection().ImportDoc(), &m_document);
    EXPECT_TRUE(m_service.IsImported());
    EXPECT_TRUE(m_service.IsImportedCompletly());
}

TEST_F(VDiagServiceTest, CanBeBuiltWithItsServiceId) {
    const VDiagService service(m_document, 0xFFFFFFFFU);
    EXPECT_EQ(service.GetServiceId(), 0xFFFFFFFFU);
    EXPECT_EQ(&service.ImportDoc(), &m_document);
}

TEST_F(VDiagServiceTest, HandsBackItsFields) {
    m_service.SetServiceId(0x19);
    m_service.SetSemantic(L"FAULTREAD");
    m_service.SetFunctClass(L"fault memory");
    EXPECT_EQ(m_service.GetServiceId(), 0x19U);
    EXPECT_STREQ(m_service.GetSemantic(), L"FAULTREAD");
    EXPECT_STREQ(m_service.GetFunctClass(), L"fault memory");
    m_service.SetSemantic(m_service.GetSemantic() + 5);
    m_service.SetFunctClass(L"");
    EXPECT_STREQ(m_service.GetSemantic(), L"READ");
    EXPECT_STREQ(m_service.GetFunctClass(), L"");
}

TEST_F(VDiagServiceTest, TheServiceIdMayBeSetFromItself) {
    m_service.SetServiceId(7);
    m_service.SetServiceId(m_service.GetServiceId());
    EXPECT_EQ(m_service.GetServiceId(), 7U);
}

TEST_F(VDiagServiceTest, PassesItsImportedFlagToEveryShape) {
    VDiagServiceShape& first = AddShape();
    VDiagServiceShape& second = AddShape();
    VQualified& asQualified = m_service;
    asQualified.IsImported(false);
    EXPECT_FALSE(m_service.IsImported());
    EXPECT_FALSE(first.IsImported());
    EXPECT_FALSE(second.IsImported());
    asQualified.IsImported(true);
    EXPECT_TRUE(asQualified.IsImported());
    EXPECT_TRUE(first.IsImported());
    EXPECT_TRUE(second.IsImported());
}

TEST_F(VDiagServiceTest, AShapeAddedLaterKeepsItsOwnState) {
    m_service.IsImported(false);
    EXPECT_TRUE(AddShape().IsImported());
    EXPECT_FALSE(m_service.IsImported());
}

TEST_F(VDiagServiceTest, IsCompletelyImportedWithAllItsShapesOnly) {
    AddShape();
    AddShape().IsImported(false);
    EXPECT_TRUE(m_service.IsImported());
    EXPECT_FALSE(m_service.IsImportedCompletly());
    m_service.IsImported(true);
    EXPECT_TRUE(m_service.IsImportedCompletly());
    m_service.IsImported(false);
    m_service.DiagServiceShapeCollection().Begin()->IsImported(true);
    m_service.DiagServiceShapeCollection().GetLastElement()->IsImported(true);
    EXPECT_FALSE(m_service.IsImportedCompletly());
}

TEST_F(VDiagServiceTest, RebuildsTheCacheOfItsShapes) {
    VDiagServiceShape& shape = AddShape();
    shape.SetQualifier(L"default session");
    VDiagComm& asComm = m_service;
    EXPECT_EQ(m_service.DiagServiceShapeCollection().GetFromCache(L"default session"), nullptr);
    asComm.InitCache();
    EXPECT_EQ(m_service.DiagServiceShapeCollection().GetFromCache(L"default session"), &shape);
}

TEST_F(VDiagServiceTest, ACopyHasEverythingButTheShapesAndTheSourceInformation) {
    m_service.SetQualifier(L"S");
    m_service.SetName(L"Service");
    m_service.SetDescription(L"reads");
    m_service.SetObjectIdentifier(L"id");
    m_service.SetSourceInfo(L"file");
    m_service.Attributes().AddNewAttribute().SetValue(L"value");
    m_service.SetServiceId(0x22);
    m_service.SetSemantic(L"semantic");
    m_service.SetFunctClass(L"class");
    m_service.IsImported(false);
    AddShape();
    VDiagService copy(m_service);
    EXPECT_TRUE(copy.CompareContent(m_service));
    EXPECT_STREQ(copy.GetObjectIdentifier(), L"id");
    EXPECT_STREQ(copy.GetSourceInfo(), L"");
    EXPECT_EQ(copy.Attributes().Count(), 1U);
    EXPECT_EQ(copy.GetServiceId(), 0x22U);
    EXPECT_STREQ(copy.GetSemantic(), L"semantic");
    EXPECT_STREQ(copy.GetFunctClass(), L"class");
    EXPECT_FALSE(copy.IsImported());
    EXPECT_TRUE(copy.DiagServiceShapeCollection().IsEmpty());
    EXPECT_EQ(&copy.DiagServiceShapeCollection().ImportDoc(), &m_document);
    EXPECT_EQ(m_service.DiagServiceShapeCollection().Count(), 1U);
    copy.SetSemantic(L"other");
    EXPECT_STREQ(m_service.GetSemantic(), L"semantic");
}

TEST(VDiagJobTest, IsCompletelyImportedExactlyWhenItIsImported) {
    VImportDoc document;
    VDiagJob job(document);
    EXPECT_TRUE(job.IsImported());
    EXPECT_TRUE(job.IsImportedCompletly());
    job.IsImported(false);
    EXPECT_FALSE(job.IsImportedCompletly());
    job.InitCache();
    job.IsImported(true);
    EXPECT_TRUE(job.IsImportedCompletly());
}

TEST(VDiagJobTest, ACopyHasWhatAQualifiedCopyHas) {
    VImportDoc document;
    VDiagJob job(document);
    job.SetQualifier(L"J");
    job.IsImported(false);
    job.SetSourceInfo(L"file");
    VDiagJob copy(job);
    EXPECT_STREQ(copy.GetQualifier(), L"J");
    EXPECT_FALSE(copy.IsImported());
    EXPECT_STREQ(copy.GetSourceInfo(), L"");
    EXPECT_EQ(&copy.ImportDoc(), &document);
}

TEST(VDiagServiceShapeTest, HasASubValueThatACopyTakes) {
    VImportDoc document;
    VDiagServiceShape shape(document);
    EXPECT_EQ(shape.GetSubValue(), 0U);
    EXPECT_TRUE(shape.IsImported());
    shape.SetSubValue(0xFFFFFFFFU);
    shape.SetQualifier(L"shape");
    const VDiagServiceShape copy(shape);
    shape.SetSubValue(3);
    EXPECT_EQ(copy.GetSubValue(), 0xFFFFFFFFU);
    EXPECT_STREQ(copy.GetQualifier(), L"shape");
    EXPECT_EQ(shape.GetSubValue(), 3U);
}

TEST(VDiagCommTest, AKindOfItsOwnHasTheAnswersOfTheBase) {
    VImportDoc document;
    OtherComm comm(document);
    EXPECT_TRUE(comm.IsImportedCompletly());
    comm.IsImported(false);
    comm.InitCache();
    EXPECT_FALSE(comm.IsImportedCompletly());
    OtherComm copy(comm);
    EXPECT_FALSE(copy.IsImportedCompletly());
}

TEST(VDiagCommVisitorTest, IsShownEveryCommunicationByTheOperationOfItsKind) {
    VImportDoc document;
    VDiagService service(document);
    VDiagJob job(document);
    Visitor visitor;
    visitor.DispatchDiagComm(service);
    EXPECT_EQ(visitor.services, std::vector<VDiagService*>{&service});
    EXPECT_TRUE(visitor.jobs.empty());
    visitor.DispatchDiagComm(job);
    EXPECT_EQ(visitor.services.size(), 1U);
    EXPECT_EQ(visitor.jobs, std::vector<VDiagJob*>{&job});
    Visitor copy(visitor);
    copy = visitor;
    service.Accept(copy);
    EXPECT_EQ(copy.services.size(), 2U);
}

} // namespace
