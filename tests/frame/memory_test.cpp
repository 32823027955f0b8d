#include "support/memory.h"
#include "zu_Memory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace {

using namespace zutest;

TEST(Memory, goesThroughTheHooks)
{
    const int64_t before = liveBlocks();
    void* block = zu_Malloc(10);
    EXPECT_EQ(liveBlocks(), before + 1);
    std::memset(block, 1, 10);
    block = zu_Realloc(block, 1000);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(static_cast<char*>(block)[9], 1);
    zu_Free(block);
    zu_Free(nullptr);
    EXPECT_EQ(liveBlocks(), before);
    auto* const zeros = static_cast<unsigned char*>(zu_Calloc(10, 8));
    EXPECT_TRUE(std::all_of(zeros, zeros + 80, [](unsigned char byte) { return byte == 0; }));
    zu_Free(zeros);
}

TEST(Memory, theRuntimesRoutinesNeverReplaceAHook)
{
    const int64_t before = liveBlocks();
    EXPECT_EQ(zu_MemoryManager_set(std::malloc, std::realloc, std::calloc, std::free), &std::free);
    void* const block = zu_Malloc(1);
    EXPECT_EQ(liveBlocks(), before + 1) << "the counting hooks must still be there";
    zu_Free(block);
}

TEST(Memory, failuresGiveNullAndLeaveTheOldBlock)
{
    auto* const block = static_cast<char*>(zu_Malloc(4));
    std::memcpy(block, "abc", 4);
    {
        const AllocationLimit limit(0);
        EXPECT_EQ(zu_Malloc(1), nullptr);
        EXPECT_EQ(zu_Calloc(10, 8), nullptr);
        EXPECT_EQ(zu_Realloc(nullptr, 8), nullptr);
        EXPECT_EQ(zu_Realloc(block, 8), nullptr);
    }
    EXPECT_STREQ(block, "abc");
    auto* const small = static_cast<char*>(zu_Realloc(block, 0));
    ASSERT_NE(small, nullptr) << "null would mean that the block is still there";
    zu_Free(small);
    EXPECT_EQ(zu_Malloc(UINT64_MAX / 2), nullptr);
    zu_Memory_statistics(nullptr);
    zu_Memory_clear();
}

} // namespace
