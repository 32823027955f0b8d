// The line that stands for a message box.
#pragma once

#include "platform/utf8.h"

#include <cstdio>

namespace zu::platform {

inline void writeMessageLine(WideView caption, WideView text)
{
    ByteString line = utf8::encode(caption);
    line += ": ";
    utf8::append(line, text);
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace zu::platform
