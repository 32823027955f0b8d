// Numbers on a stream, for the printing operations.
#pragma once

#include "frame/console.h"
#include "frame/text.h"

#include <cstdint>

namespace zu::geometry {

// The longest number has a sign, 309 digits, the point and six decimals.
inline void writeNumber(std::FILE* stream, WideView pattern, double value)
{
    text::Buffer<340> number;
    formatInto(number.units, pattern, value);
    writeText(stream, number.view());
}

// Answers with the number of characters.
inline std::int32_t writeLineEnd(std::FILE* stream)
{
    writeText(stream, ZU_W("\n"));
    return 1;
}

} // namespace zu::geometry
