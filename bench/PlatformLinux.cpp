#include "Platform.h"

#include <ctime>
#include <malloc.h>

std::size_t Bench::HeapInUse() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

double Bench::Seconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}
