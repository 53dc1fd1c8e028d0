#pragma once

struct _EXCEPTION_POINTERS;

/// The least crash-dump library that ImportDataModel can be linked with.
namespace NCustomCrashHandling {

enum VDumpType : int { anyDump = 0 };

bool CreateDumpFile(VDumpType type, const wchar_t* path, const wchar_t* copyPath,
                    _EXCEPTION_POINTERS* exceptionPointers, int replaceExisting);

} // namespace NCustomCrashHandling
