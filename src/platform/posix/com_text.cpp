// Counted texts, and memory that passes between modules. Both come from the runtime, not from the hooks: what one
// module makes another may release, and only the system's allocator is known to all of them.
#include "zu_Com.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

namespace {

// What stands in front of a text. Its size keeps the text aligned; the length is directly before the first unit.
struct Prefix
{
    std::uint32_t unused;
    std::uint32_t bytes;
};

Prefix* prefixOf(BSTR text)
{
    return reinterpret_cast<Prefix*>(text) - 1;
}

} // namespace

void* zu_Com_CoTaskMemAlloc(size_t size)
{
    return std::malloc(size == 0 ? 1 : size);
}

void zu_Com_CoTaskMemFree(void* block)
{
    std::free(block);
}

BSTR zu_Com_SysAllocStringByteLen(const char* bytes, UINT length)
{
    // A whole unit of zeros behind the last byte, on a unit's boundary or not.
    constexpr std::size_t tail = 2 * sizeof(OLECHAR);
    if (length > std::numeric_limits<std::uint32_t>::max() - sizeof(Prefix) - tail)
        return nullptr;
    auto* const block = static_cast<Prefix*>(std::malloc(sizeof(Prefix) + length + tail));
    if (block == nullptr)
        return nullptr;
    *block = {0, length};
    auto* const content = reinterpret_cast<char*>(block + 1);
    if (bytes != nullptr)
        std::memcpy(content, bytes, length);
    std::memset(content + length, 0, tail);
    return reinterpret_cast<BSTR>(content);
}

BSTR zu_Com_SysAllocStringLen(LPCOLESTR text, UINT length)
{
    if (length > std::numeric_limits<UINT>::max() / sizeof(OLECHAR))
        return nullptr;
    return zu_Com_SysAllocStringByteLen(reinterpret_cast<const char*>(text),
                                        static_cast<UINT>(length * sizeof(OLECHAR)));
}

BSTR zu_Com_SysAllocString(LPCOLESTR text)
{
    if (text == nullptr)
        return nullptr;
    const std::size_t length = std::char_traits<OLECHAR>::length(text);
    return length > std::numeric_limits<UINT>::max() ? nullptr
                                                     : zu_Com_SysAllocStringLen(text, static_cast<UINT>(length));
}

int zu_Com_SysReAllocString(BSTR* variable, LPCOLESTR text)
{
    if (variable == nullptr)
        return 0;
    // The new text may lie within the old one, so that one goes last.
    const BSTR copy = zu_Com_SysAllocString(text);
    if (copy == nullptr && text != nullptr)
        return 0;
    zu_Com_SysFreeString(*variable);
    *variable = copy;
    return 1;
}

void zu_Com_SysFreeString(BSTR text)
{
    if (text != nullptr)
        std::free(prefixOf(text));
}

UINT zu_Com_SysStringByteLen(BSTR text)
{
    return text == nullptr ? 0 : prefixOf(text)->bytes;
}

UINT zu_Com_SysStringLen(BSTR text)
{
    return static_cast<UINT>(zu_Com_SysStringByteLen(text) / sizeof(OLECHAR));
}
