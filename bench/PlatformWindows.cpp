#include "Platform.h"

#include <malloc.h>
#include <stdexcept>
#include <windows.h>

std::size_t Bench::HeapInUse() {
    std::size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry{};
    const HANDLE heap = reinterpret_cast<HANDLE>(_get_heap_handle()); // of the C runtime
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData + entry.cbOverhead;
    HeapUnlock(heap);
    return bytes;
}

namespace {

double InSeconds(FILETIME time) {
    return (static_cast<double>(time.dwHighDateTime) * 4294967296.0 + static_cast<double>(time.dwLowDateTime)) * 1e-7;
}

} // namespace

// In steps of 10 milliseconds: a workload has to be repeated for some tenths of a second.
double Bench::Seconds() {
    FILETIME creation{};
    FILETIME exit{};
    FILETIME kernel{};
    FILETIME user{};
    GetThreadTimes(GetCurrentThread(), &creation, &exit, &kernel, &user);
    return InSeconds(kernel) + InSeconds(user);
}

void Bench::LoadAndUnload(const std::filesystem::path& library) {
    const HMODULE handle = LoadLibraryW(library.c_str());
    if (!handle)
        throw std::runtime_error("cannot load " + library.string());
    FreeLibrary(handle);
}
