#include "Platform.h"

#include <chrono>
#include <stdexcept>
#include <windows.h>

// The C runtime allocates from the process's own heap.
std::size_t Bench::HeapInUse() {
    std::size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry{};
    const HANDLE heap = GetProcessHeap();
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData + entry.cbOverhead;
    HeapUnlock(heap);
    return bytes;
}

// Wine counts a process's time in steps that are too coarse.
double Bench::Seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void Bench::LoadAndUnload(const std::filesystem::path& library) {
    const HMODULE handle = LoadLibraryW(library.c_str());
    if (!handle)
        throw std::runtime_error("cannot load " + library.string());
    FreeLibrary(handle);
}
