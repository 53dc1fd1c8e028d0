#include "support/CommaLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string_view>

namespace TestSupport {

CommaLocale::CommaLocale() {
    EXPECT_TRUE(Internal::UseGermanLocale()) << "the system has no German locale";
    EXPECT_EQ(std::string_view(std::localeconv()->decimal_point), ",");
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_ALL, "C");
}

} // namespace TestSupport
