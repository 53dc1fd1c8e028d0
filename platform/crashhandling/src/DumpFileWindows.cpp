#include "DumpFile.h"

#include <windows.h>
// dbghelp.h needs windows.h before it.
#include <dbghelp.h>

#include <memory>

namespace NCustomCrashHandling {

namespace {

MINIDUMP_TYPE MiniDumpType(VDumpType type) {
    return type == dumpSmall
               ? MiniDumpNormal
               : static_cast<MINIDUMP_TYPE>(MiniDumpWithDataSegs | MiniDumpWithIndirectlyReferencedMemory);
}

struct CloseFile {
    void operator()(HANDLE file) const { CloseHandle(file); }
};

} // namespace

bool WriteDumpFile(VDumpType type, const wchar_t* path, EXCEPTION_POINTERS* exceptionPointers, bool replaceExisting) {
    const HANDLE handle = CreateFileW(path, GENERIC_WRITE, 0, nullptr, replaceExisting ? CREATE_ALWAYS : CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    const std::unique_ptr<void, CloseFile> file(handle);
    MINIDUMP_EXCEPTION_INFORMATION exception = {GetCurrentThreadId(), exceptionPointers, FALSE};
    return MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), file.get(), MiniDumpType(type),
                             exceptionPointers != nullptr ? &exception : nullptr, nullptr, nullptr) != FALSE;
}

} // namespace NCustomCrashHandling
