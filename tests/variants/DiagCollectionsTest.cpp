#include "variants/DiagTraits.h"

#include <cstdint>
#include <string>
#include <type_traits>

using namespace ImportDame;

namespace TestSupport {

INSTANTIATE_TYPED_TEST_SUITE_P(DiagComms, CollectionContract, VDiagCommCollection);
INSTANTIATE_TYPED_TEST_SUITE_P(DiagServiceShapes, CollectionContract, VDiagServiceShapeCollection);

} // namespace TestSupport

namespace {

static_assert(!std::is_copy_constructible_v<VDiagCommCollection> && !std::is_copy_assignable_v<VDiagCommCollection>);
static_assert(!std::is_copy_constructible_v<VDiagServiceShapeCollection>);
static_assert(!std::is_copy_assignable_v<VDiagServiceShapeCollection>);
static_assert(std::is_base_of_v<VImportDocChild, VDiagCommCollection>);
static_assert(std::is_base_of_v<VImportDocChild, VDiagServiceShapeCollection>);

class VDiagCommCollectionTest : public testing::Test {
protected:
    template <class Element>
    static Element& Named(Element& element, const wchar_t* qualifier) {
        element.SetQualifier(qualifier);
        return element;
    }

    VDiagService& AddService(const wchar_t* qualifier) { return Named(m_diagComms.AddNewDiagService(), qualifier); }

    VDiagJob& AddJob(const wchar_t* qualifier) { return Named(m_diagComms.AddNewDiagJob(), qualifier); }

    VImportDoc m_document;
    VDiagCommCollection m_diagComms{m_document};
};

TEST_F(VDiagCommCollectionTest, CreatesServicesAndJobsOfItsDocument) {
    VDiagService& service = m_diagComms.AddNewDiagService();
    const unsigned int serviceId = 0x22;
    VDiagService& numbered = m_diagComms.AddNewDiagService(serviceId);
    VDiagJob& job = m_diagComms.AddNewDiagJob();
    EXPECT_EQ(service.GetServiceId(), 0U);
    EXPECT_EQ(numbered.GetServiceId(), 0x22U);
    EXPECT_EQ(&service.ImportDoc(), &m_document);
    EXPECT_EQ(&numbered.ImportDoc(), &m_document);
    EXPECT_EQ(&job.ImportDoc(), &m_document);
    EXPECT_EQ(&m_diagComms.ImportDoc(), &m_document);
}

TEST_F(VDiagCommCollectionTest, ItsLastElementIsTheOneAddedLastOrNull) {
    EXPECT_EQ(m_diagComms.GetLastElement(), nullptr);
    VDiagJob& job = m_diagComms.AddNewDiagJob();
    EXPECT_EQ(m_diagComms.GetLastElement(), &job);
    VDiagService& service = m_diagComms.AddNewDiagService();
    EXPECT_EQ(m_diagComms.GetLastElement(), &service);
    m_diagComms.Remove(service);
    EXPECT_EQ(m_diagComms.GetLastElement(), &job);
    m_diagComms.Clear();
    EXPECT_EQ(m_diagComms.GetLastElement(), nullptr);
}

TEST_F(VDiagCommCollectionTest, CountsImportedJobsAndServicesAlike) {
    AddService(L"S");
    AddJob(L"J");
    EXPECT_EQ(m_diagComms.ImportedCount(), 2U);
    m_diagComms.GetLastElement()->IsImported(false);
    EXPECT_EQ(m_diagComms.ImportedCount(), 1U);
    m_diagComms.Begin()->IsImported(false);
    EXPECT_EQ(m_diagComms.ImportedCount(), 0U);
}

TEST_F(VDiagCommCollectionTest, FindsNothingByNameBeforeTheCacheIsBuilt) {
    VDiagService& service = AddService(L"S1");
    VDiagJob& job = AddJob(L"J1");
    EXPECT_EQ(m_diagComms.GetFromCache(L"S1"), nullptr);
    m_diagComms.InitCache();
    EXPECT_EQ(m_diagComms.GetFromCache(L"S1"), &service);
    EXPECT_EQ(m_diagComms.GetFromCache(L"J1"), &job);
}

TEST_F(VDiagCommCollectionTest, OfEqualNamesTheFirstElementIsFound) {
    AddJob(L"other");
    VDiagService& first = AddService(L"S1");
    AddService(L"S1");
    AddJob(L"S1");
    m_diagComms.InitCache();
    EXPECT_EQ(m_diagComms.GetFromCache(L"S1"), &first);
}

TEST_F(VDiagCommCollectionTest, ANameIsFoundExactlyOrNotAtAll) {
    AddService(L"S1");
    m_diagComms.InitCache();
    for (const wchar_t* const name : {L"s1", L"S", L"S10", L"S1 ", L" S1", L""})
        EXPECT_EQ(m_diagComms.GetFromCache(name), nullptr) << testing::PrintToString(name);
}

TEST_F(VDiagCommCollectionTest, TheEmptyNameAndNamesBeyondAsciiAreNamesLikeAnyOther) {
    VDiagService& unnamed = AddService(L"");
    VDiagService& german = AddService(L"Pr\u00fcfger\u00e4t");
    VDiagJob& cyrillic = AddJob(L"\u0414\u0430\u0442\u0447\u0438\u043a");
    m_diagComms.InitCache();
    EXPECT_EQ(m_diagComms.GetFromCache(L""), &unnamed);
    EXPECT_EQ(m_diagComms.GetFromCache(L"Pr\u00fcfger\u00e4t"), &german);
    EXPECT_EQ(m_diagComms.GetFromCache(L"\u0414\u0430\u0442\u0447\u0438\u043a"), &cyrillic);
    EXPECT_EQ(m_diagComms.GetFromCache(L"Prufgerat"), nullptr);
}

TEST_F(VDiagCommCollectionTest, TheCacheIsASnapshotThatLaterNamesAndElementsDoNotTouch) {
    VDiagService& service = AddService(L"old");
    m_diagComms.InitCache();
    service.SetQualifier(L"new");
    VDiagJob& job = AddJob(L"added");
    EXPECT_EQ(m_diagComms.GetFromCache(L"old"), &service);
    EXPECT_EQ(m_diagComms.GetFromCache(L"new"), nullptr);
    EXPECT_EQ(m_diagComms.GetFromCache(L"added"), nullptr);
    m_diagComms.InitCache();
    EXPECT_EQ(m_diagComms.GetFromCache(L"old"), nullptr);
    EXPECT_EQ(m_diagComms.GetFromCache(L"new"), &service);
    EXPECT_EQ(m_diagComms.GetFromCache(L"added"), &job);
}

TEST_F(VDiagCommCollectionTest, RemovingDoesNotTouchTheCacheEither) {
    VDiagService& removed = AddService(L"removed");
    VDiagService& kept = AddService(L"kept");
    const auto address = reinterpret_cast<std::uintptr_t>(static_cast<VDiagComm*>(&removed));
    m_diagComms.InitCache();
    m_diagComms.Remove(removed);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(m_diagComms.GetFromCache(L"removed")), address);
    EXPECT_EQ(m_diagComms.GetFromCache(L"kept"), &kept);
    m_diagComms.Clear();
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(m_diagComms.GetFromCache(L"removed")), address);
    m_diagComms.InitCache();
    EXPECT_EQ(m_diagComms.GetFromCache(L"removed"), nullptr);
    EXPECT_EQ(m_diagComms.GetFromCache(L"kept"), nullptr);
}

TEST_F(VDiagCommCollectionTest, BuildsTheShapeCachesOfAllServicesAlsoOfOnesWithARefusedName) {
    VDiagServiceShape& first = Named(AddService(L"S").DiagServiceShapeCollection().AddNewDiagServiceShape(), L"shape");
    AddJob(L"J");
    VDiagService& second = AddService(L"S");
    VDiagServiceShape& shape = Named(second.DiagServiceShapeCollection().AddNewDiagServiceShape(), L"shape");
    EXPECT_EQ(second.DiagServiceShapeCollection().GetFromCache(L"shape"), nullptr);
    m_diagComms.InitCache();
    EXPECT_EQ(second.DiagServiceShapeCollection().GetFromCache(L"shape"), &shape);
    auto& found = dynamic_cast<VDiagService&>(*m_diagComms.GetFromCache(L"S"));
    EXPECT_EQ(found.DiagServiceShapeCollection().GetFromCache(L"shape"), &first);
}

TEST_F(VDiagCommCollectionTest, AgreesWithAScanOfTheElementsForManyNames) {
    for (int i = 0; i < 500; ++i)
        AddService((L"Service " + std::to_wstring(i * 7919 % 311)).c_str()).SetServiceId(static_cast<unsigned int>(i));
    m_diagComms.InitCache();
    for (int name = 0; name < 320; ++name) {
        const std::wstring qualifier = L"Service " + std::to_wstring(name);
        VDiagComm* expected = nullptr;
        for (VDiagComm& diagComm : m_diagComms)
            if (!expected && diagComm.GetQualifier() == qualifier)
                expected = &diagComm;
        EXPECT_EQ(m_diagComms.GetFromCache(qualifier.c_str()), expected);
    }
}

TEST(VDiagServiceShapeCollectionTest, ItsLastElementIsTheOneAddedLastOrNull) {
    VImportDoc document;
    VDiagServiceShapeCollection shapes(document);
    EXPECT_EQ(shapes.GetLastElement(), nullptr);
    shapes.AddNewDiagServiceShape();
    VDiagServiceShape& last = shapes.AddNewDiagServiceShape();
    EXPECT_EQ(shapes.GetLastElement(), &last);
    EXPECT_EQ(&last.ImportDoc(), &document);
    EXPECT_EQ(&shapes.ImportDoc(), &document);
}

TEST(VDiagServiceShapeCollectionTest, ItsCacheIsASnapshotInWhichTheFirstOfEqualNamesCounts) {
    VImportDoc document;
    VDiagServiceShapeCollection shapes(document);
    VDiagServiceShape& first = shapes.AddNewDiagServiceShape();
    VDiagServiceShape& second = shapes.AddNewDiagServiceShape();
    first.SetQualifier(L"shape");
    second.SetQualifier(L"shape");
    EXPECT_EQ(shapes.GetFromCache(L"shape"), nullptr);
    shapes.InitCache();
    EXPECT_EQ(shapes.GetFromCache(L"shape"), &first);
    EXPECT_EQ(shapes.GetFromCache(L"Shape"), nullptr);
    first.SetQualifier(L"renamed");
    shapes.AddNewDiagServiceShape().SetQualifier(L"added");
    EXPECT_EQ(shapes.GetFromCache(L"shape"), &first);
    EXPECT_EQ(shapes.GetFromCache(L"renamed"), nullptr);
    EXPECT_EQ(shapes.GetFromCache(L"added"), nullptr);
    shapes.InitCache();
    EXPECT_EQ(shapes.GetFromCache(L"shape"), &second);
    EXPECT_EQ(shapes.GetFromCache(L"renamed"), &first);
    EXPECT_EQ(shapes.GetFromCache(L"added"), shapes.GetLastElement());
}

} // namespace
