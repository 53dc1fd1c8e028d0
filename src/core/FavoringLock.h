#pragma once

#include "core/Threads.h"

#include <array>
#include <atomic>
#include <cstddef>

namespace ImportDame::detail {

/// A lock for the few instructions that a block takes; costs next to nothing while the process has one thread.
///
/// A thread that has used it alone for a while becomes its favorite: it then takes and leaves the lock without an
/// atomic exchange, which costs more than what is done under the lock. Another thread that wants in ends that, waits
/// until all threads know, and from then on all of them exchange, until one has used the lock alone for a while again.
class FavoringLock {
public:
    constexpr FavoringLock() noexcept = default;
    FavoringLock(const FavoringLock&) = delete;
    FavoringLock& operator=(const FavoringLock&) = delete;

    /// How often in a row a thread has to take the lock to become its favorite.
    static constexpr unsigned int s_longRun = 4096;

    /// So many threads of a process can be favorites; more than that always exchange.
    static constexpr std::size_t s_seatCount = 32;

    class Guard;

private:
    /// Belongs to one thread, once it was its favorite. Nobody else writes `isTaken`.
    struct Seat {
        void* thread = nullptr;
        std::atomic<bool> isTaken = false;
    };

    Seat* Enter() noexcept;
    void Leave(Seat* seat) noexcept;
    [[gnu::noinline]] void EnterAsOneOfMany() noexcept; // so that little is left where the favorite enters
    void EndFavor() noexcept;
    void CountRun() noexcept;
    Seat* FindSeat(void* thread) noexcept;

    std::atomic<Seat*> m_favorite = nullptr;
    std::atomic_flag m_isLocked;
    void* m_lastThread = nullptr;
    unsigned int m_run = 0;
    std::array<Seat, s_seatCount> m_seats{};
};

/// Holds the lock while it lives.
class FavoringLock::Guard {
public:
    explicit Guard(FavoringLock& lock) noexcept : m_lock(lock), m_seat(HasOneThread() ? nullptr : lock.Enter()) {}

    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    ~Guard() { m_lock.Leave(m_seat); }

private:
    FavoringLock& m_lock;
    Seat* m_seat; ///< That of the favorite, null for all others and where there are no others.
};

} // namespace ImportDame::detail
