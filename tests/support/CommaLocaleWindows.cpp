#include "support/CommaLocale.h"

#include <clocale>

bool TestSupport::Internal::UseGermanLocale() {
    return std::setlocale(LC_ALL, "German_Germany.1252") != nullptr;
}
