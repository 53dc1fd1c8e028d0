#include <ImportDame/AdditionalFile.h>
#include <ImportDame/Function.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ImportDame;

namespace {

TEST(VFileTest, ANewFileHasNoPath) {
    VFile file;
    EXPECT_STREQ(file.GetPath(), L"");
    file.SetPath(L"C:\\a.java");
    EXPECT_STREQ(file.GetPath(), L"C:\\a.java");
    file.SetPath(file.GetPath() + 3);
    EXPECT_STREQ(file.GetPath(), L"a.java");
}

template <class File>
void ExpectCopyable() {
    File file;
    file.SetPath(L"a.java");
    File copy(file);
    File assigned;
    EXPECT_EQ(&(assigned = file), &assigned);
    file.SetPath(L"b.java");
    EXPECT_STREQ(copy.GetPath(), L"a.java");
    EXPECT_STREQ(assigned.GetPath(), L"a.java");
    File& same = assigned;
    assigned = same;
    EXPECT_STREQ(assigned.GetPath(), L"a.java");
}

TEST(VFileTest, CopiesTakeThePath) {
    ExpectCopyable<VFile>();
}

TEST(VAdditionalFileTest, CopiesTakeThePath) {
    ExpectCopyable<VAdditionalFile>();
    static_assert(std::is_base_of_v<VFile, VAdditionalFile>);
    static_assert(std::has_virtual_destructor_v<VFile>);
}

TEST(VFunctionTest, ANewFunctionIsEmpty) {
    VFunction function;
    EXPECT_STREQ(function.GetVersion(), L"");
    EXPECT_STREQ(function.GetEntryPoint(), L"");
    EXPECT_STREQ(function.GetSyntax(), L"");
    EXPECT_STREQ(function.GetEncryption(), L"");
    EXPECT_STREQ(function.SourceFile().GetPath(), L"");
    EXPECT_TRUE(function.AdditionalFileCollection().IsEmpty());
    static_assert(std::has_virtual_destructor_v<VFunction>);
    static_assert(!std::is_copy_constructible_v<VFunction> && !std::is_copy_assignable_v<VFunction>);
}

TEST(VFunctionTest, KeepsItsTextsApart) {
    VFunction function;
    function.SetVersion(L"1.2");
    function.SetEntryPoint(L"run");
    function.SetSyntax(L"JAR");
    function.SetEncryption(L"none");
    const VFunction& constant = function;
    EXPECT_STREQ(constant.GetVersion(), L"1.2");
    EXPECT_STREQ(constant.GetEntryPoint(), L"run");
    EXPECT_STREQ(constant.GetSyntax(), L"JAR");
    EXPECT_STREQ(constant.GetEncryption(), L"none");
    function.SetVersion(function.GetEntryPoint() + 1);
    EXPECT_STREQ(function.GetVersion(), L"un");
    EXPECT_STREQ(function.GetEntryPoint(), L"run");
}

TEST(VFunctionTest, HandsOutItsFilesForChanging) {
    VFunction function;
    function.SourceFile().SetPath(L"main.jar");
    function.AdditionalFileCollection().AddNewAdditionalFile().SetPath(L"lib.jar");
    EXPECT_STREQ(function.SourceFile().GetPath(), L"main.jar");
    EXPECT_EQ(function.AdditionalFileCollection().Count(), 1U);
    EXPECT_STREQ(function.AdditionalFileCollection().Begin()->GetPath(), L"lib.jar");
}

} // namespace
