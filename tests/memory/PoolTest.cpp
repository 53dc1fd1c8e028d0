#include "core/Pool.h"

#include "support/AllocationControl.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <new>
#include <random>
#include <thread>
#include <utility>
#include <vector>

using ImportDame::detail::Pool;
using TestSupport::FailAllocation;
using TestSupport::FailureMode;
using TestSupport::LiveBlocks;
using TestSupport::StopFailing;

namespace {

/// Leaves nothing behind.
class EndingPool : public Pool {
public:
    EndingPool() = default;
    EndingPool(const EndingPool&) = delete;
    EndingPool& operator=(const EndingPool&) = delete;

    ~EndingPool() { ReleaseKept(); }
};

using Blocks = std::vector<std::pair<unsigned char*, std::size_t>>;

unsigned char* AllocateFilled(Pool& pool, std::size_t size, unsigned char filling) {
    auto* const block = static_cast<unsigned char*>(pool.Allocate(size));
    std::memset(block, filling, size);
    return block;
}

bool IsFilled(const unsigned char* block, std::size_t size, unsigned char filling) {
    for (std::size_t index = 0; index < size; ++index)
        if (block[index] != filling)
            return false;
    return true;
}

TEST(PoolTest, BlocksOfEverySizeDoNotOverlap) {
    EndingPool pool;
    Blocks blocks;
    for (std::size_t size = 0; size <= 600; ++size)
        blocks.emplace_back(AllocateFilled(pool, size, static_cast<unsigned char>(size)), size);
    for (const auto& [block, size] : blocks)
        EXPECT_TRUE(IsFilled(block, size, static_cast<unsigned char>(size))) << size;
    for (const auto& [block, size] : blocks)
        pool.Free(block, size);
}

TEST(PoolTest, BlocksAreAlignedAsObjectsOfTheirSizeNeedIt) {
    EndingPool pool;
    Blocks blocks;
    for (int round = 0; round < 50; ++round)
        for (std::size_t size = 1; size <= 528; size += 7)
            blocks.emplace_back(static_cast<unsigned char*>(pool.Allocate(size)), size);
    for (std::size_t size = 16; size <= 528; size += 16)
        blocks.emplace_back(static_cast<unsigned char*>(pool.Allocate(size)), size);
    for (const auto& [block, size] : blocks) {
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 8, 0U) << size;
        if (size % 16 == 0) {
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 16, 0U) << size;
        }
        pool.Free(block, size);
    }
}

TEST(PoolTest, AFreedBlockServesTheNextRequestForItsSize) {
    EndingPool pool;
    void* const other = pool.Allocate(40);
    void* const block = pool.Allocate(40);
    pool.Free(block, 40);
    EXPECT_NE(pool.Allocate(48), block);
    EXPECT_EQ(pool.Allocate(33), block);
    pool.Free(other, 40);
    pool.Free(block, 40);
}

/// Allocates that many blocks of 512 bytes; answers how many of the program's own blocks that took.
std::size_t FillAndEmpty(Pool& pool, std::size_t count) {
    std::vector<void*> blocks(count);
    const std::size_t before = LiveBlocks();
    for (void*& block : blocks)
        block = pool.Allocate(512);
    const std::size_t taken = LiveBlocks() - before;
    for (void* block : blocks)
        pool.Free(block, 512);
    return taken;
}

TEST(PoolTest, WhatIsKeptServesTheNextModelAndIsGivenBackOnDemand) {
    const std::size_t before = LiveBlocks();
    static constinit Pool pool;
    EXPECT_EQ(FillAndEmpty(pool, 2000), 8U) << "slabs from 8 to 256 KiB, which is five, and three more of the largest";
    EXPECT_EQ(LiveBlocks(), before + 8);
    for (const std::size_t count : {2000U, 1U, 1000U, 2000U})
        EXPECT_EQ(FillAndEmpty(pool, count), 0U) << count;
    EXPECT_EQ(LiveBlocks(), before + 8);
    pool.ReleaseKept();
    EXPECT_EQ(LiveBlocks(), before);
    EXPECT_EQ(FillAndEmpty(pool, 1), 1U);
    pool.ReleaseKept();
    pool.ReleaseKept();
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(PoolTest, AModelLargerThanWhatIsKeptGoesOnWithNewSlabs) {
    EndingPool pool;
    FillAndEmpty(pool, 2000);
    EXPECT_EQ(FillAndEmpty(pool, 2512), 1U) << "512 blocks fill a slab of 256 KiB";
}

TEST(PoolTest, KeepsThirtyTwoMebibytes) {
    const std::size_t before = LiveBlocks();
    {
        EndingPool pool;
        EXPECT_GT(FillAndEmpty(pool, 100000), 190U) << "49 MiB in slabs of 256 KiB";
        EXPECT_EQ(LiveBlocks(), before + 128);
        EXPECT_GT(FillAndEmpty(pool, 100000), 60U);
        EXPECT_EQ(LiveBlocks(), before + 128);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(PoolTest, SmallUseTakesOneSmallAllocation) {
    EndingPool pool;
    const std::size_t before = LiveBlocks();
    std::array<void*, 100> blocks{};
    for (void*& block : blocks)
        block = pool.Allocate(64);
    EXPECT_EQ(LiveBlocks(), before + 1);
    for (void* block : blocks)
        pool.Free(block, 64);
    EXPECT_EQ(LiveBlocks(), before + 1);
}

TEST(PoolTest, LargeBlocksGoBackAtOnce) {
    EndingPool pool;
    const std::size_t before = LiveBlocks();
    void* const block = pool.Allocate(513);
    EXPECT_EQ(LiveBlocks(), before + 1);
    pool.Free(block, 513);
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(PoolTest, AFailedAllocationChangesNothing) {
    EndingPool pool;
    Blocks blocks;
    blocks.reserve(300);
    const std::size_t before = LiveBlocks();
    FailAllocation(1, FailureMode::once);
    EXPECT_THROW((void)pool.Allocate(32), std::bad_alloc);
    EXPECT_TRUE(StopFailing());
    EXPECT_EQ(LiveBlocks(), before);
    unsigned char* const block = AllocateFilled(pool, 32, 7);
    FailAllocation(1, FailureMode::andLater);
    EXPECT_THROW(
        for (;;) {
            void* const next = pool.Allocate(32);
            StopFailing();
            blocks.emplace_back(static_cast<unsigned char*>(next), 32);
            FailAllocation(1, FailureMode::andLater);
        },
        std::bad_alloc);
    StopFailing();
    EXPECT_GT(blocks.size(), 200U);
    EXPECT_TRUE(IsFilled(block, 32, 7));
    for (const auto& [next, size] : blocks)
        pool.Free(next, size);
    pool.Free(block, 32);
    pool.ReleaseKept();
    EXPECT_EQ(LiveBlocks(), before);
}

/// Allocates and frees blocks of random sizes; answers whether all of them kept their contents.
bool Churn(Pool& pool, unsigned int seed) {
    std::mt19937 random(seed);
    Blocks blocks(200, {nullptr, 0});
    bool isIntact = true;
    for (int step = 0; step < 50000; ++step) {
        auto& [block, size] = blocks[random() % blocks.size()];
        const auto filling = static_cast<unsigned char>(size + seed);
        if (block) {
            isIntact = isIntact && IsFilled(block, size, filling);
            pool.Free(std::exchange(block, nullptr), size);
        } else {
            size = random() % 560;
            block = AllocateFilled(pool, size, static_cast<unsigned char>(size + seed));
        }
    }
    for (const auto& [block, size] : blocks)
        if (block)
            pool.Free(block, size);
    return isIntact;
}

TEST(PoolTest, ThreadsDoNotDisturbEachOther) {
    const std::size_t before = LiveBlocks();
    {
        EndingPool pool;
        std::array<bool, 4> areIntact{};
        std::vector<std::thread> threads;
        for (unsigned int index = 0; index < areIntact.size(); ++index)
            threads.emplace_back([&, index] { areIntact[index] = Churn(pool, index); });
        for (std::thread& thread : threads)
            thread.join();
        for (const bool isIntact : areIntact)
            EXPECT_TRUE(isIntact);
    }
    EXPECT_EQ(LiveBlocks(), before) << "an ended thread keeps nothing";
}

TEST(PoolTest, ThreadsMayEmptyItAndGiveBackWhatIsKeptAtTheSameTime) {
    const std::size_t before = LiveBlocks();
    {
        EndingPool pool;
        std::array<bool, 4> areIntact{};
        const auto run = [&](unsigned int index) {
            areIntact[index] = true;
            for (int round = 0; round < 2000; ++round) {
                unsigned char* const block = AllocateFilled(pool, 40, static_cast<unsigned char>(index));
                if (round % 3 == 0)
                    pool.ReleaseKept();
                areIntact[index] = areIntact[index] && IsFilled(block, 40, static_cast<unsigned char>(index));
                pool.Free(block, 40);
            }
        };
        std::vector<std::thread> threads;
        for (unsigned int index = 0; index < areIntact.size(); ++index)
            threads.emplace_back(run, index);
        for (std::thread& thread : threads)
            thread.join();
        EXPECT_EQ(areIntact, (std::array<bool, 4>{true, true, true, true}));
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(PoolTest, ABlockMayBeFreedByAnotherThread) {
    const std::size_t before = LiveBlocks();
    {
        EndingPool pool;
        Blocks blocks;
        std::thread([&] {
            for (std::size_t size = 1; size < 500; ++size)
                blocks.emplace_back(AllocateFilled(pool, size, 1), size);
        }).join();
        for (const auto& [block, size] : blocks)
            pool.Free(block, size);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

} // namespace
