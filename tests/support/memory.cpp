#include "support/memory.h"

#include "zu_Memory.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace zutest {
namespace {

std::int64_t live = 0;
std::int64_t allowance = -1; // negative: no limit
bool failed = false;

bool mayAllocate()
{
    if (allowance < 0)
        return true;
    if (allowance == 0) {
        failed = true;
        return false;
    }
    --allowance;
    return true;
}

void* newest = nullptr;

void* counted(void* block)
{
    live += block != nullptr;
    newest = block;
    return block;
}

void* allocate(std::size_t size)
{
    return mayAllocate() ? counted(std::malloc(size)) : nullptr;
}

void* reallocate(void* block, std::size_t size)
{
    return mayAllocate() ? std::realloc(block, size) : nullptr;
}

void* zeroAllocate(std::size_t count, std::size_t size)
{
    return mayAllocate() ? counted(std::calloc(count, size)) : nullptr;
}

void release(void* block)
{
    live -= block != nullptr;
    std::free(block);
}

} // namespace

void installHooks()
{
    zu_MemoryManager_set(allocate, reallocate, zeroAllocate, release);
}

std::int64_t liveBlocks()
{
    return live;
}

void* lastBlock()
{
    return newest;
}

AllocationLimit::AllocationLimit(std::int64_t allowed)
{
    allowance = allowed;
    failed = false;
}

AllocationLimit::~AllocationLimit()
{
    allowance = -1;
}

bool AllocationLimit::reached() const
{
    return failed;
}

void sweepAllocations(const std::function<void()>& attempt, const std::function<void()>& check)
{
    for (std::int64_t allowed = 0; allowed < 10'000; ++allowed) {
        const std::int64_t before = live;
        bool reached = false;
        {
            const AllocationLimit limit(allowed);
            attempt();
            reached = limit.reached();
        }
        if (!reached)
            return;
        check();
        ASSERT_EQ(live, before) << "leak after " << allowed << " allocations";
    }
    FAIL() << "the attempt never succeeds";
}

} // namespace zutest
