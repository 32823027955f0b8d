// Captures the trace lines of operations.
#pragma once

#include "support/sandbox.h"

#include <vector>

namespace zutest {

// While it lives, the operations of the modules in mask write their lines into a log of its own.
class TraceCapture
{
public:
    explicit TraceCapture(std::uint32_t mask, std::int16_t level = 3);
    ~TraceCapture();

    // The lines since the beginning or the last call, without their line numbers: "lnklist Entering zu_LnkList_end."
    std::vector<std::string> lines();

private:
    Sandbox sandbox;
};

} // namespace zutest
