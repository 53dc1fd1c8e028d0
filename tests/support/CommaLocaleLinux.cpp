#include "support/CommaLocale.h"

#include <clocale>
#include <cstdlib>

bool TestSupport::Internal::UseGermanLocale() {
    if (std::setlocale(LC_ALL, "de_DE.UTF-8"))
        return true;
    ::setenv("LOCPATH", IMPORTDAME_TEST_LOCALE_FOLDER, 1); // not installed: the one that the build made
    const bool found = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    ::unsetenv("LOCPATH");
    return found;
}
