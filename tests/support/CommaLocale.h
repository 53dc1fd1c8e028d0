/// @file
/// A process locale in which numbers have a decimal comma.
#pragma once

namespace TestSupport {

/// While it lives, the locale of the process writes 1.5 as "1,5". Fails the test where the system has no such locale.
class CommaLocale {
public:
    CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale();
};

namespace Internal {

/// Switches to the German locale of the platform; false where there is none.
bool UseGermanLocale();

} // namespace Internal

} // namespace TestSupport
