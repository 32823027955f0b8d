// The classes of the built-in host that callers make by themselves, for COM to find.
#pragma once

#include "platform/com.h"

#include <array>

namespace zu::host {

// Holds what is registered; empty at first.
class BuiltInClasses
{
public:
    BuiltInClasses() = default;
    BuiltInClasses(BuiltInClasses&& other) noexcept : cookies(std::exchange(other.cookies, {})) {}
    BuiltInClasses& operator=(BuiltInClasses&& other) noexcept
    {
        std::swap(cookies, other.cookies);
        return *this;
    }
    ~BuiltInClasses();

    // All classes, on this thread; without those that COM does not take.
    static BuiltInClasses registered();

    static constexpr std::size_t count = 3;

private:
    std::array<DWORD, count> cookies = {}; // 0 for what is not registered
};

} // namespace zu::host
