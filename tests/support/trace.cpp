#include "support/trace.h"

#include "zu_Diag.h"

#include <sstream>

namespace zutest {

TraceCapture::TraceCapture(std::uint32_t mask, std::int16_t level)
{
    EXPECT_EQ(zu_Diag_setOutput(ZU_DIAG_TO_FILE, sandbox.path(W("trace.log")).c_str()), 1);
    zu_Diag_setLevel(level);
    zu_Diag_setCondition(mask);
}

TraceCapture::~TraceCapture()
{
    zu_Diag_disable();
    zu_Diag_setOutput(ZU_DIAG_TO_CONSOLE, nullptr);
    zu_Diag_setFileName(nullptr);
}

std::vector<std::string> TraceCapture::lines()
{
    std::istringstream log(sandbox.read(W("trace.log")));
    sandbox.write(W("trace.log"), "");
    std::vector<std::string> result;
    for (std::string line; std::getline(log, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::size_t open = line.find(" (");
        const std::size_t close = line.find(") ", open);
        if (open != std::string::npos && close != std::string::npos)
            line.erase(open, close + 1 - open);
        result.push_back(line);
    }
    return result;
}

std::string printedBy(const std::function<void()>& action, std::FILE* stream)
{
    std::fflush(stream);
    stream == stdout ? testing::internal::CaptureStdout() : testing::internal::CaptureStderr();
    action();
    std::fflush(stream);
    std::string text =
        stream == stdout ? testing::internal::GetCapturedStdout() : testing::internal::GetCapturedStderr();
    std::erase(text, '\r');
    return text;
}

} // namespace zutest
