// Copying from one descriptor to another.
#pragma once

#include <cstdint>
#include <span>

namespace zu::posix {

// Copies up to count bytes from the position of one descriptor to that of another, inside the system where it can,
// through spare otherwise. Returns the number copied, less than asked for at the end; -1 on failure.
std::int64_t copyBytes(int to, int from, std::int64_t count, std::span<unsigned char> spare);

// Whether both are open on one and the same file.
bool isSameFile(int a, int b);

} // namespace zu::posix
