// The one block that files are copied and scrambled through.
#pragma once

#include <cstddef>
#include <span>

namespace zu {

constexpr std::size_t copyBufferSize = 131072;

inline std::span<unsigned char> copyBuffer()
{
    alignas(64) static unsigned char block[copyBufferSize];
    return block;
}

} // namespace zu
