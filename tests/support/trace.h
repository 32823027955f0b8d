// Captures what operations write: their trace lines, and what they print.
#pragma once

#include "support/sandbox.h"

#include <cstdio>
#include <functional>
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

// What an action writes to standard output or standard error, with \n for the line ends.
std::string printedBy(const std::function<void()>& action, std::FILE* stream = stdout);

} // namespace zutest
