#include "core/FavoringLock.h"

#include <thread>

namespace ImportDame::detail {

/// The seat of the favorite, or null where the lock was taken as one of many.
///
/// The favorite writes that it is inside and then looks whether it still is the favorite; who ends the favor writes
/// that and then looks whether the favorite is inside. `FenceAllThreads` between these two stands for the fence that
/// the favorite leaves out, so that one of them sees the other.
FavoringLock::Seat* FavoringLock::Enter() noexcept {
    Seat* const seat = m_favorite.load(std::memory_order_acquire);
    if (seat && seat->thread == ThisThread()) {
        seat->isTaken.store(true, std::memory_order_relaxed);
        std::atomic_signal_fence(std::memory_order_seq_cst);
        if (m_favorite.load(std::memory_order_acquire) != seat)
            seat->isTaken.store(false, std::memory_order_release); // unreachable: takes a halt between two instructions
        else
            return seat;
    }
    EnterAsOneOfMany();
    return nullptr;
}

void FavoringLock::Leave(Seat* seat) noexcept {
    if (seat)
        seat->isTaken.store(false, std::memory_order_release);
    else
        m_isLocked.clear(std::memory_order_release);
}

void FavoringLock::EnterAsOneOfMany() noexcept {
    while (m_isLocked.test_and_set(std::memory_order_acquire))
        std::this_thread::yield();
    EndFavor();
    CountRun();
}

/// Only a thread itself makes itself the favorite, so that the one found here is another one.
void FavoringLock::EndFavor() noexcept {
    const Seat* const seat = m_favorite.load(std::memory_order_relaxed);
    if (!seat)
        return;
    m_favorite.store(nullptr, std::memory_order_relaxed);
    FenceAllThreads();
    while (seat->isTaken.load(std::memory_order_acquire))
        std::this_thread::yield();
}

void FavoringLock::CountRun() noexcept {
    void* const thread = ThisThread();
    if (m_lastThread != thread) {
        m_lastThread = thread;
        m_run = 0;
    }
    if (++m_run % s_longRun == 0)
        m_favorite.store(FindSeat(thread), std::memory_order_release);
}

/// The seat of a thread, a new one where it has none, or null where there is none left or favors cannot be ended.
FavoringLock::Seat* FavoringLock::FindSeat(void* thread) noexcept {
    for (Seat& seat : m_seats) {
        if (seat.thread == thread)
            return &seat;
        if (seat.thread)
            continue;
        if (!CanFenceAllThreads())
            return nullptr; // unreachable: takes a Linux before 4.14
        seat.thread = thread;
        return &seat;
    }
    return nullptr;
}

} // namespace ImportDame::detail
