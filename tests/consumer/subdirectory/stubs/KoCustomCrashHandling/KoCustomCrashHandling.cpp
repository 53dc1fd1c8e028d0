#include "KoCustomCrashHandling/CustomCrashHandling.h"

namespace NCustomCrashHandling {

bool CreateDumpFile(VDumpType, const wchar_t*, const wchar_t*, _EXCEPTION_POINTERS*, int) {
    return false;
}

} // namespace NCustomCrashHandling
