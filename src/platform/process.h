// What a port must supply to start programs.
#pragma once

#include "platform/wide.h"

#include <cstdint>
#include <memory>

namespace zu::platform {

struct ProcessStart
{
    bool started = false;
    bool released = true;    // false when the system did not let go of a process that was started
    std::uint32_t error = 0; // the system's error code; 0 when it gave none
};

// Starts a program by its command line, whose arguments are separated and quoted as Windows has it, with the caller's
// environment and directory and none of its open files. Waits until it ends when asked to.
ProcessStart startProcess(WideView commandLine, bool wait);

// What the system says about an error code, in the user's language where it can; empty when it knows nothing.
WideString systemErrorText(std::uint32_t error);

// While it lives, a directory stands before all others in PATH, as far as PATH is set and has room for it. Putting the
// old value back needs no memory.
class SearchPathFront
{
public:
    explicit SearchPathFront(WideView directory);

private:
    std::shared_ptr<void> restorer; // the port's
};

} // namespace zu::platform
