#include "Platform.h"

#include <ctime>
#include <dlfcn.h>
#include <malloc.h>
#include <stdexcept>

std::size_t Bench::HeapInUse() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

double Bench::Seconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void Bench::LoadAndUnload(const std::filesystem::path& library) {
    void* const handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        throw std::runtime_error(dlerror());
    dlclose(handle);
}
