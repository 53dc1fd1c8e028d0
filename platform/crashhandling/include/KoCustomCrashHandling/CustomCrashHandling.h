#pragma once

#include "KoCustomCrashHandling/Export.h"

#include <cstdint>

/// What the operating system knows about a failure of the processor or of memory. Windows defines it.
struct _EXCEPTION_POINTERS;
using EXCEPTION_POINTERS = _EXCEPTION_POINTERS;

namespace NCustomCrashHandling {

/// How much of the process a dump holds.
enum VDumpType : std::int32_t {
    /// The threads and their stacks (Linux: the calling one), registers and the loaded modules.
    dumpSmall = 0,
    /// The same, with global variables and the memory that the stacks point to (Linux: with the map of all memory).
    dumpMedium = 1,
};

/// Writes one dump; arguments and result are those of CreateDumpFile. What it throws is taken for a failure.
using VDumpWriter = bool (*)(VDumpType type, const wchar_t* path, const wchar_t* copyPath,
                             EXCEPTION_POINTERS* exceptionPointers, int replaceExisting);

/// Writes a snapshot of the running process, which then runs on, and answers whether the file was written. Never
/// throws.
///
/// \p path names the file; its folder must exist. On Linux only the last component of the path counts, and the file, a
/// readable text, lies in the folder for temporary files ($TMPDIR, or /tmp where that is not set).
/// \p copyPath, where not null, names a second file that receives the same, in the same way.
/// \p exceptionPointers describes a failure being handled; null where there is none. Linux does not use it.
/// \p replaceExisting other than 0 replaces a file that stands under that name; with 0 nothing is written then.
KOCUSTOMCRASHHANDLING_API bool CreateDumpFile(VDumpType type, const wchar_t* path, const wchar_t* copyPath,
                                              EXCEPTION_POINTERS* exceptionPointers, int replaceExisting) noexcept;

/// Has \p writer called in place of the one of this platform; null restores it. For tests.
KOCUSTOMCRASHHANDLING_API void SetDumpWriter(VDumpWriter writer) noexcept;

} // namespace NCustomCrashHandling
