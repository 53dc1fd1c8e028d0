#include "KoCustomCrashHandling/CustomCrashHandling.h"

#include "DumpFile.h"

#include <atomic>

namespace NCustomCrashHandling {

namespace {

bool WriteDumpAndCopy(VDumpType type, const wchar_t* path, const wchar_t* copyPath,
                      EXCEPTION_POINTERS* exceptionPointers, int replaceExisting) {
    const bool replace = replaceExisting != 0;
    return path != nullptr && WriteDumpFile(type, path, exceptionPointers, replace) &&
           (copyPath == nullptr || WriteDumpFile(type, copyPath, exceptionPointers, replace));
}

std::atomic<VDumpWriter> s_writer = &WriteDumpAndCopy;

} // namespace

bool CreateDumpFile(VDumpType type, const wchar_t* path, const wchar_t* copyPath, EXCEPTION_POINTERS* exceptionPointers,
                    int replaceExisting) noexcept {
    try {
        return s_writer.load()(type, path, copyPath, exceptionPointers, replaceExisting);
    } catch (...) {
        return false;
    }
}

void SetDumpWriter(VDumpWriter writer) noexcept {
    s_writer = writer != nullptr ? writer : &WriteDumpAndCopy;
}

} // namespace NCustomCrashHandling
