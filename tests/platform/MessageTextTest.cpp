#include "core/MessageText.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

using ImportDame::detail::MessageText;

namespace {

TEST(MessageTextTest, PiecesFollowEachOtherWithNothingBetweenThem) {
    MessageText message;
    EXPECT_TRUE(message.IsEmpty());
    message << L"File: '" << L"Text.cpp" << L"'";
    EXPECT_FALSE(message.IsEmpty());
    EXPECT_STREQ(message.Get(), L"File: 'Text.cpp'");
}

TEST(MessageTextTest, ATextThatIsTooLongIsCutAndStillEnds) {
    MessageText message;
    const std::wstring piece(1000, L'a');
    message << piece.c_str() << piece.c_str() << L"b";
    EXPECT_EQ(std::wcslen(message.Get()), 1023U);
    EXPECT_EQ(message.Get(), std::wstring(1023, L'a'));
}

} // namespace
