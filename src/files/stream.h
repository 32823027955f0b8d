// A stream of the runtime that closes itself.
#pragma once

#include "platform/files.h"

#include <memory>

namespace zu {

struct StreamCloser
{
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, StreamCloser>;

inline Stream openStream(WideView path, const char* mode)
{
    return Stream(platform::openFile(path, mode));
}

// Closes a stream that was written. False when something written to it did not arrive.
inline bool closeWritten(Stream& stream)
{
    return std::fclose(stream.release()) == 0;
}

} // namespace zu
