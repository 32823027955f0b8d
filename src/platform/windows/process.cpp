#include "platform/process.h"

#include "platform/runtime.h"
#include "platform/windows/handle.h"

namespace zu::platform {
namespace {

constexpr WideView pathVariable = L"PATH";
// Units of a variable, its terminator included.
constexpr std::size_t longestVariable = 32767;

class PathRestorer
{
public:
    PathRestorer(WideString oldValue, const WideString& newValue) : previous(std::move(oldValue))
    {
        ::SetEnvironmentVariableW(pathVariable.data(), newValue.c_str());
    }
    ~PathRestorer() { ::SetEnvironmentVariableW(pathVariable.data(), previous.c_str()); }
    PathRestorer(const PathRestorer&) = delete;
    PathRestorer& operator=(const PathRestorer&) = delete;

private:
    WideString previous;
};

} // namespace

ProcessStart startProcess(WideView commandLine, bool wait)
{
    // The system writes into the line.
    WideString line(commandLine);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS, nullptr, nullptr,
                          &startup, &process))
        return {false, true, ::GetLastError()};
    ::CloseHandle(process.hThread);
    if (wait)
        ::WaitForSingleObject(process.hProcess, INFINITE);
    if (!::CloseHandle(process.hProcess))
        return {true, false, ::GetLastError()};
    return {true, true, 0};
}

WideString systemErrorText(std::uint32_t error)
{
    wchar_t text[512];
    const DWORD length =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                         MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), text, static_cast<DWORD>(std::size(text)), nullptr);
    return WideString(text, length);
}

SearchPathFront::SearchPathFront(WideView directory)
{
    auto previous = environmentVariable(pathVariable);
    if (!previous || previous->size() >= longestVariable)
        return;
    WideString extended(directory);
    extended += L';';
    extended += *previous;
    restorer = std::allocate_shared<PathRestorer>(HookAllocator<PathRestorer>(), std::move(*previous), extended);
}

} // namespace zu::platform
