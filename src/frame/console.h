// Wide text to the standard streams and to log files: always as UTF-8 bytes, because the runtimes' own wide output
// differs between systems and loses text. Needs no memory.
#pragma once

#include "frame/format.h"

#include <cstdio>

namespace zu {

void writeText(std::FILE* stream, WideView text);

inline void writeConsole(WideView text)
{
    writeText(stdout, text);
}

// Formats and writes to standard output. Returns the number of units printed.
template <class... Args>
std::int32_t printConsole(WideView pattern, const Args&... args)
{
    const WideString text = formatted(pattern, args...);
    writeConsole(text);
    return static_cast<std::int32_t>(text.size());
}

} // namespace zu
