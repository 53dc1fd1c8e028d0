#include "core/Platform.h"

#include <gtest/gtest.h>

#include <array>
#include <cwchar>
#include <string_view>

using namespace ImportDame::detail;

namespace {

TEST(OperatingSystemTest, ThePathOfTheProgramEndsInItsName) {
    std::array<wchar_t, 1000> path{};
    ReadExecutablePath(path);
    EXPECT_TRUE(std::wstring_view(FileNamePart(path.data())).starts_with(L"PlatformTests"));
    EXPECT_GT(std::wcslen(path.data()), std::wcslen(FileNamePart(path.data())));
}

TEST(OperatingSystemTest, APathThatIsTooLongIsCutAndStillEnds) {
    std::array<wchar_t, 1000> path{};
    ReadExecutablePath(path);
    std::array<wchar_t, 5> front{L'x', L'x', L'x', L'x', L'x'};
    ReadExecutablePath(front);
    EXPECT_EQ(std::wstring_view(front.data()), std::wstring_view(path.data(), 4));
}

TEST(OperatingSystemTest, ANameWithoutAFolderIsAFileName) {
    EXPECT_STREQ(FileNamePart(L"ConsoleImport.exe"), L"ConsoleImport.exe");
    EXPECT_STREQ(FileNamePart(L"/folder/ConsoleImport.exe"), L"ConsoleImport.exe");
    EXPECT_STREQ(FileNamePart(L""), L"");
}

} // namespace
