// The vocabulary of the seam and of all internal code: wide text, and containers whose memory comes from the hooks.
#pragma once

#include "zu_Memory.h"

#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace zu {

using WideView = std::basic_string_view<zu_wchar>;

// Adapts the allocation hooks to the standard containers. Running out of memory is std::bad_alloc inside the library;
// the export guard turns it into the failure value of the operation.
template <class T>
struct HookAllocator
{
    using value_type = T;

    HookAllocator() = default;
    template <class U>
    HookAllocator(const HookAllocator<U>&) noexcept
    {
    }

    T* allocate(std::size_t count)
    {
        if (count > static_cast<std::size_t>(-1) / sizeof(T))
            throw std::bad_alloc();
        void* block = zu_Malloc(count * sizeof(T));
        if (block == nullptr)
            throw std::bad_alloc();
        return static_cast<T*>(block);
    }
    void deallocate(T* block, std::size_t) noexcept { zu_Free(block); }

    template <class U>
    bool operator==(const HookAllocator<U>&) const noexcept
    {
        return true;
    }
};

using WideString = std::basic_string<zu_wchar, std::char_traits<zu_wchar>, HookAllocator<zu_wchar>>;
using ByteString = std::basic_string<char, std::char_traits<char>, HookAllocator<char>>;
template <class T>
using HookVector = std::vector<T, HookAllocator<T>>;

struct FreeDeleter
{
    void operator()(void* block) const noexcept { zu_Free(block); }
};

// Owner of a block that came from zu_Malloc.
template <class T>
using HookPtr = std::unique_ptr<T, FreeDeleter>;
using WidePtr = HookPtr<zu_wchar[]>;

} // namespace zu
