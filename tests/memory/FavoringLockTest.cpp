#include "core/FavoringLock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

using ImportDame::detail::FavoringLock;

namespace {

/// Counts something that only the lock protects.
class Counter {
public:
    void Count(unsigned int times) {
        for (unsigned int time = 0; time < times; ++time) {
            const FavoringLock::Guard guard(m_lock);
            const unsigned int count = m_count;
            m_isEntered = !m_isEntered;
            m_intact = m_intact && m_isEntered;
            if (time % 1024 == 0)
                Linger();
            m_isEntered = !m_isEntered;
            m_count = count + 1;
        }
    }

    unsigned int GetCount() const { return m_count; }

    /// Whether nobody was inside at the same time as somebody else.
    bool IsIntact() const { return m_intact; }

private:
    /// Stays longer than it takes to end a favor.
    static void Linger() {
        const auto start = std::chrono::steady_clock::now();
        while (std::chrono::steady_clock::now() - start < std::chrono::microseconds(20))
            std::this_thread::yield();
    }

    FavoringLock m_lock;
    unsigned int m_count = 0;
    bool m_isEntered = false;
    bool m_intact = true;
};

constexpr unsigned int g_longEnough = FavoringLock::s_longRun * 2;

TEST(FavoringLockTest, AFavoriteGoesInAndOut) {
    Counter counter;
    std::thread([&] { counter.Count(g_longEnough); }).join(); // a process with one thread takes no lock
    EXPECT_EQ(counter.GetCount(), g_longEnough);
    EXPECT_TRUE(counter.IsIntact());
}

TEST(FavoringLockTest, OneThreadAfterTheOtherBecomesTheFavorite) {
    Counter counter;
    constexpr unsigned int threadCount = FavoringLock::s_seatCount + 8;
    std::atomic<unsigned int> next = 0;
    std::atomic<bool> areAllReady = false;
    std::vector<std::thread> threads; // all live at the same time, so that none has the identity of another one
    threads.reserve(threadCount);
    for (unsigned int index = 0; index < threadCount; ++index)
        threads.emplace_back([&, index] {
            while (next != index)
                std::this_thread::yield();
            counter.Count(g_longEnough);
            ++next;
            while (!areAllReady)
                std::this_thread::yield();
            counter.Count(g_longEnough);
        });
    while (next != threadCount)
        std::this_thread::yield();
    areAllReady = true;
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter.GetCount(), threadCount * 2 * g_longEnough);
    EXPECT_TRUE(counter.IsIntact());
}

TEST(FavoringLockTest, AFavoriteThatHasEndedKeepsNobodyOut) {
    Counter counter;
    for (unsigned int round = 1; round <= 100; ++round) {
        std::thread([&] { counter.Count(g_longEnough); }).join();
        counter.Count(1);
        EXPECT_EQ(counter.GetCount(), round * (g_longEnough + 1));
    }
}

/// The favorite is inside most of the time when the other thread comes.
TEST(FavoringLockTest, AFavorIsEndedWhileTheFavoriteIsAtWork) {
    constexpr unsigned int visits = 500;
    Counter counter;
    std::atomic<unsigned int> rounds = 0;
    std::atomic<bool> isDone = false;
    std::thread favorite([&] {
        for (; !isDone; ++rounds)
            counter.Count(g_longEnough);
    });
    for (unsigned int visit = 0; visit < visits; ++visit) {
        const unsigned int before = rounds; // after another round the favor is granted again
        while (rounds == before)
            std::this_thread::yield();
        counter.Count(1);
    }
    isDone = true;
    favorite.join();
    EXPECT_EQ(counter.GetCount(), rounds * g_longEnough + visits);
    EXPECT_TRUE(counter.IsIntact());
}

} // namespace
