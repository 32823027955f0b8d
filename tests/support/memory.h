// Hooks under the tests' control. They are installed once, before the first test: the library's replacement of hooks is
// one-way.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

namespace zutest {

void installHooks();

// Blocks of the library that are not released yet.
std::int64_t liveBlocks();

// The block that was obtained last.
void* lastBlock();

// While it lives, allocations fail once `allowed` of them have succeeded.
class AllocationLimit
{
public:
    explicit AllocationLimit(std::int64_t allowed);
    ~AllocationLimit();
    AllocationLimit(const AllocationLimit&) = delete;
    AllocationLimit& operator=(const AllocationLimit&) = delete;
    // Whether an allocation has failed since.
    bool reached() const;
};

// Runs attempt with 0, 1, 2, ... allocations allowed until it runs without a failure. After each failing run `check`
// tells whether the failure was reported as it should be; blocks that an attempt leaves behind are leaks.
void sweepAllocations(const std::function<void()>& attempt, const std::function<void()>& check);

// The same for a call that makes something: it gives null when memory is short.
template <class Make, class Destroy>
void sweepMaking(const Make& make, const Destroy& destroy)
{
    decltype(make()) made = nullptr;
    sweepAllocations(
        [&] {
            if ((made = make()) != nullptr)
                destroy(made);
        },
        [&] { EXPECT_EQ(made, nullptr); });
}

} // namespace zutest
