// A child is started by fork and exec. The parent's side prepares everything that needs memory; between the two calls
// only what is safe in a signal handler happens. How exec went is told through a pipe that a successful exec closes.
//
// A child that nobody waits for is started by a child of its own kind that ends at once, so that the system's first
// process inherits it and no zombie is left to a host that does not know of it.
#include "platform/process.h"

#include "platform/posix/command_line.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/path.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/close_range.h>
#include <optional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

extern char** environ;

namespace zu::platform {
namespace {

using posix::Descriptor;

// Names of programs that stand without quotes are tried up to this length.
constexpr std::size_t longestUnquoted = 1024;

// 0 when a file can be executed, else why not.
int executionError(const ByteString& file)
{
    struct stat status;
    if (::stat(file.c_str(), &status) != 0)
        return errno;
    return !S_ISREG(status.st_mode) || ::access(file.c_str(), X_OK) != 0 ? EACCES : 0;
}

struct Program
{
    ByteString file;
    int error = ENOENT; // 0 when it can be executed
};

Program programAt(ByteString file)
{
    const int error = executionError(file);
    return {std::move(file), error};
}

Program programByPath(WideView path)
{
    const auto native = posix::nativePath(path);
    return native ? programAt(*native) : Program{};
}

Program searchProgram(WideView name, bool ignoringCase)
{
    const char* const variable = std::getenv("PATH");
    std::string_view directories = variable == nullptr ? "/bin:/usr/bin" : variable;
    Program best;
    for (bool isLast = false; !isLast && best.error != 0;) {
        const std::size_t end = std::min(directories.find(':'), directories.size());
        ByteString file(end == 0 ? "." : directories.substr(0, end));
        file += '/';
        utf8::append(file, name);
        const Program found = ignoringCase ? programByPath(utf8::decode(file)) : programAt(std::move(file));
        // A file that must not be executed is worth telling, but another one of the name may do.
        if (found.error == 0 || (found.error == EACCES && best.error == ENOENT))
            best = found;
        isLast = end == directories.size();
        directories.remove_prefix(std::min(end + 1, directories.size()));
    }
    return best;
}

Program findProgram(WideView name)
{
    if (posix::hasDrive(name) || std::ranges::any_of(name, posix::isSeparator))
        return programByPath(name);
    // What is written exactly so goes before everything that only differs in case, wherever it stands.
    const Program exact = searchProgram(name, false);
    return exact.error == 0 ? exact : searchProgram(name, true);
}

// What exec receives; all of it is ready before the fork.
class Invocation
{
public:
    explicit Invocation(WideView commandLine)
    {
        posix::CommandLine command = posix::splitProgram(commandLine);
        program = findProgram(command.program);
        for (posix::CommandLine longer = command;
             program.error != 0 && posix::takeWord(commandLine, longer) && longer.program.size() <= longestUnquoted;) {
            const Program found = findProgram(longer.program);
            if (found.error == 0) {
                program = found;
                command = longer;
            }
        }
        texts.push_back(utf8::encode(command.program));
        for (const WideString& argument : posix::splitArguments(command.rest))
            texts.push_back(utf8::encode(argument));
        for (ByteString& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
    }

    int error() const { return program.error; }
    void exec() const { ::execve(program.file.c_str(), pointers.data(), environ); }

private:
    Program program;
    HookVector<ByteString> texts;
    HookVector<char*> pointers;
};

// Keeps signals away from the moments in which a child still has the host's handlers.
class BlockedSignals
{
public:
    BlockedSignals()
    {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &previous);
    }
    ~BlockedSignals() { ::pthread_sigmask(SIG_SETMASK, &previous, nullptr); }
    BlockedSignals(const BlockedSignals&) = delete;
    BlockedSignals& operator=(const BlockedSignals&) = delete;

    // For the child: the host's handlers are gone, and the signals come through as they did.
    void resetInChild() const
    {
        for (int number = 1; number < NSIG; ++number) {
            struct sigaction action;
            if (::sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_IGN &&
                action.sa_handler != SIG_DFL) {
                action = {};
                action.sa_handler = SIG_DFL;
                ::sigaction(number, &action, nullptr);
            }
        }
        ::pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    }

private:
    sigset_t previous;
};

// Marks all open files but the standard streams to be closed by exec.
void closeFilesOnExec()
{
    if (::syscall(SYS_close_range, STDERR_FILENO + 1, ~0u, CLOSE_RANGE_CLOEXEC) == 0)
        return;
    // Systems that do not know the call.
    const long limit = ::sysconf(_SC_OPEN_MAX);
    for (int number = STDERR_FILENO + 1; number < std::clamp(limit, 256L, 65536L); ++number)
        ::fcntl(number, F_SETFD, FD_CLOEXEC);
}

[[noreturn]] void endChild(int report, int error)
{
    posix::writeAll(report, std::string_view(reinterpret_cast<const char*>(&error), sizeof error));
    ::_exit(127);
}

[[noreturn]] void runChild(const Invocation& invocation, const BlockedSignals& signals, int report)
{
    closeFilesOnExec();
    signals.resetInChild();
    invocation.exec();
    endChild(report, errno);
}

void awaitEnd(pid_t child)
{
    int status;
    // A host that collects all children, or ignores their ends, may have been faster.
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
}

// The error that the child reports; 0 when the pipe was closed by exec.
int readReport(const Descriptor& pipe)
{
    int error = 0;
    for (;;) {
        const ssize_t count = ::read(pipe.get(), &error, sizeof error);
        if (count < 0 && errno == EINTR)
            continue;
        return count == sizeof error ? error : 0;
    }
}

ProcessStart failure(int error)
{
    return {false, true, static_cast<std::uint32_t>(error)};
}

ProcessStart start(const Invocation& invocation, bool wait)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return failure(errno);
    const Descriptor reader(ends[0]);
    Descriptor writer(ends[1]);
    std::optional<BlockedSignals> signals(std::in_place);
    const pid_t child = ::fork();
    if (child == 0) {
        if (wait)
            runChild(invocation, *signals, writer.get());
        const pid_t grandchild = ::fork();
        if (grandchild == 0)
            runChild(invocation, *signals, writer.get());
        if (grandchild < 0)
            endChild(writer.get(), errno);
        ::_exit(0);
    }
    const int forkError = errno;
    signals.reset();
    if (child < 0)
        return failure(forkError);
    writer.close();
    const int error = readReport(reader);
    awaitEnd(child);
    return error != 0 ? failure(error) : ProcessStart{true, true, 0};
}

class PathRestorer
{
public:
    PathRestorer(ByteString oldValue, const ByteString& newValue) : previous(std::move(oldValue))
    {
        ::setenv("PATH", newValue.c_str(), 1);
    }
    ~PathRestorer() { ::setenv("PATH", previous.c_str(), 1); }
    PathRestorer(const PathRestorer&) = delete;
    PathRestorer& operator=(const PathRestorer&) = delete;

private:
    ByteString previous;
};

} // namespace

ProcessStart startProcess(WideView commandLine, bool wait)
{
    const Invocation invocation(commandLine);
    return invocation.error() != 0 ? failure(invocation.error()) : start(invocation, wait);
}

WideString systemErrorText(std::uint32_t error)
{
    char buffer[256];
    return utf8::decode(::strerror_r(static_cast<int>(error), buffer, sizeof buffer));
}

SearchPathFront::SearchPathFront(WideView directory)
{
    const char* const value = std::getenv("PATH");
    const auto native = posix::nativePath(directory);
    if (value == nullptr || !native)
        return;
    const ByteString previous(value);
    restorer = std::allocate_shared<PathRestorer>(HookAllocator<PathRestorer>(), previous, *native + ':' + previous);
}

} // namespace zu::platform
