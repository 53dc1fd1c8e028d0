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

// Time that passes: what the system says of a thread's own time goes in steps of 10 milliseconds under Wine.
double Bench::Seconds() {
    LARGE_INTEGER ticks{};
    LARGE_INTEGER ticksPerSecond{};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&ticksPerSecond);
    return static_cast<double>(ticks.QuadPart) / static_cast<double>(ticksPerSecond.QuadPart);
}

void Bench::LoadAndUnload(const std::filesystem::path& library) {
    const HMODULE handle = LoadLibraryW(library.c_str());
    if (!handle)
        throw std::runtime_error("cannot load " + library.string());
    FreeLibrary(handle);
}
