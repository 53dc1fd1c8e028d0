#pragma once

#include "KoCustomCrashHandling/CustomCrashHandling.h"

namespace NCustomCrashHandling {

/// Writes one dump with the means of this platform; arguments and result as for CreateDumpFile, \p path not null.
bool WriteDumpFile(VDumpType type, const wchar_t* path, EXCEPTION_POINTERS* exceptionPointers, bool replaceExisting);

} // namespace NCustomCrashHandling
