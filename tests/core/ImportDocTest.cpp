#include <ImportDame/ImportDoc.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

using ImportDame::VImportDoc;

namespace {

TEST(VImportDocTest, IsEmptyAndAliveAtFirst) {
    VImportDoc document;
    EXPECT_STREQ(document.GetLanguage(), L"");
    EXPECT_STREQ(document.GetEcuName(), L"");
    EXPECT_STREQ(document.GetKDIVersion(), L"");
    EXPECT_TRUE(document.IsConstructed());
}

TEST(VImportDocTest, HandsBackItsTexts) {
    VImportDoc document;
    document.SetLanguage(L"de-DE");
    document.SetEcuName(L"ESP");
    document.SetKDIVersion(L"7.1");
    EXPECT_STREQ(document.GetLanguage(), L"de-DE");
    EXPECT_STREQ(document.GetEcuName(), L"ESP");
    EXPECT_STREQ(document.GetKDIVersion(), L"7.1");
    document.SetKDIVersion(L"");
    EXPECT_STREQ(document.GetKDIVersion(), L"");
    document.SetLanguage(document.GetLanguage() + 3);
    EXPECT_STREQ(document.GetLanguage(), L"DE");
}

TEST(VImportDocTest, IsNeitherCopiedNorAssigned) {
    static_assert(!std::is_copy_constructible_v<VImportDoc> && !std::is_copy_assignable_v<VImportDoc>);
    static_assert(!std::is_move_constructible_v<VImportDoc> && std::has_virtual_destructor_v<VImportDoc>);
    static_assert(std::is_same_v<decltype(&VImportDoc::GetLanguage), const wchar_t* (VImportDoc::*)()>);
    static_assert(std::is_same_v<decltype(&VImportDoc::GetKDIVersion), const wchar_t* (VImportDoc::*)() const>);
}

TEST(VImportDocTest, TheDeathOfOneLeavesAnotherAlive) {
    auto first = std::make_unique<VImportDoc>();
    auto second = std::make_unique<VImportDoc>();
    EXPECT_TRUE(first->IsConstructed());
    EXPECT_TRUE(second->IsConstructed());
    first.reset();
    EXPECT_TRUE(second->IsConstructed());
}

TEST(VImportDocTest, APointerOfUnknownFateCanBeAskedFor) {
    auto document = std::make_unique<VImportDoc>();
    const VImportDoc* const pointer = document.get();
    EXPECT_TRUE(VImportDoc::IsLiving(pointer));
    document.reset();
    EXPECT_FALSE(VImportDoc::IsLiving(pointer));
    EXPECT_FALSE(VImportDoc::IsLiving(nullptr));
}

TEST(VImportDocTest, IsAliveInADerivedConstructorButNotInAnOwnerThatWatchesItsDeath) {
    struct Observed : VImportDoc {
        bool aliveWhenBuilt = IsConstructed();
        bool* aliveWhenDying = nullptr;

        ~Observed() override { *aliveWhenDying = IsConstructed(); }
    };

    bool aliveWhenDying = false;
    {
        Observed document;
        document.aliveWhenDying = &aliveWhenDying;
        EXPECT_TRUE(document.aliveWhenBuilt);
    }
    EXPECT_TRUE(aliveWhenDying); // the document's own destructor has not started yet
}

} // namespace
