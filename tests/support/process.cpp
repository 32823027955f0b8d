#include "support/process.h"

#include <map>

#if defined(_WIN32)
#    include <windows.h>
#else
#    include <csignal>
#    include <filesystem>
#    include <spawn.h>
#    include <sys/wait.h>
#    include <unistd.h>
#endif

namespace zutest {
namespace {

const WideView marker = W("--helper-role");

std::map<Wide, HelperRole::Main>& roles()
{
    static std::map<Wide, HelperRole::Main> all;
    return all;
}

#if defined(_WIN32)
// The arguments that the tests use hold neither quotes nor backslashes at their ends.
std::intptr_t start(const std::vector<Wide>& arguments)
{
    wchar_t program[1024];
    ::GetModuleFileNameW(nullptr, program, 1024);
    Wide line = L"\"" + Wide(program) + L"\"";
    for (const Wide& argument : arguments)
        line += L" \"" + argument + L"\"";
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION information = {};
    if (!::CreateProcessW(program, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &information))
        return 0;
    ::CloseHandle(information.hThread);
    return reinterpret_cast<std::intptr_t>(information.hProcess);
}
#else
std::intptr_t start(const std::vector<Wide>& arguments)
{
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    std::vector<std::string> texts = {program};
    for (const Wide& argument : arguments)
        texts.push_back(std::filesystem::path(argument).string());
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    pid_t process = 0;
    return ::posix_spawn(&process, program.c_str(), nullptr, nullptr, pointers.data(), environ) == 0 ? process : 0;
}
#endif

} // namespace

HelperRole::HelperRole(const char* name, Main main)
{
    roles()[widen(name)] = main;
}

std::optional<int> runHelper(const std::vector<Wide>& commandLine)
{
    if (commandLine.size() < 3 || commandLine[1] != marker)
        return std::nullopt;
    const auto role = roles().find(commandLine[2]);
    return role == roles().end() ? 99 : role->second({commandLine.begin() + 3, commandLine.end()});
}

HelperProcess::HelperProcess(const std::string& role, const std::vector<Wide>& arguments)
{
    std::vector<Wide> all = {Wide(marker), widen(role)};
    all.insert(all.end(), arguments.begin(), arguments.end());
    process = start(all);
    EXPECT_NE(process, 0) << "cannot start " << role;
}

HelperProcess::~HelperProcess()
{
    if (process != 0)
        kill();
}

#if defined(_WIN32)
int HelperProcess::wait()
{
    constexpr DWORD killed = 0xDEAD;
    const HANDLE handle = reinterpret_cast<HANDLE>(std::exchange(process, 0));
    DWORD code = killed;
    ::WaitForSingleObject(handle, INFINITE);
    ::GetExitCodeProcess(handle, &code);
    ::CloseHandle(handle);
    return code == killed ? -1 : static_cast<int>(code);
}

void HelperProcess::kill()
{
    ::TerminateProcess(reinterpret_cast<HANDLE>(process), 0xDEAD);
    wait();
}
#else
int HelperProcess::wait()
{
    int status = 0;
    ::waitpid(static_cast<pid_t>(std::exchange(process, 0)), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void HelperProcess::kill()
{
    ::kill(static_cast<pid_t>(process), SIGKILL);
    wait();
}
#endif

} // namespace zutest
