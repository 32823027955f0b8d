#include "platform/posix/copy.h"

#include "platform/posix/descriptor.h"

#include <algorithm>
#include <sys/sendfile.h>
#include <sys/stat.h>

namespace zu::posix {
namespace {

// One way of copying: the number of bytes copied, 0 at the end, negative with errno set.
using Step = ssize_t (*)(int to, int from, std::size_t count);

ssize_t stepInsideFileSystem(int to, int from, std::size_t count)
{
    return ::copy_file_range(from, nullptr, to, nullptr, count, 0);
}

ssize_t stepInsideKernel(int to, int from, std::size_t count)
{
    return ::sendfile(to, from, nullptr, count);
}

// Whether the way is not open to these files, as against a failure that another way would meet as well.
bool isNotOffered(int error)
{
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EBADF ||
           error == EPERM;
}

enum class Outcome
{
    done,
    failed,
    notOffered
};

// Copies one way as far as it goes; *copied counts what it took.
Outcome copyBy(Step step, int to, int from, std::int64_t count, std::int64_t* copied)
{
    constexpr std::int64_t most = std::int64_t{1} << 30;
    while (*copied < count) {
        const ssize_t taken = step(to, from, static_cast<std::size_t>(std::min(count - *copied, most)));
        if (taken > 0)
            *copied += taken;
        else if (taken < 0 && errno != EINTR)
            return isNotOffered(errno) ? Outcome::notOffered : Outcome::failed;
        else if (taken == 0)
            // Files whose length the system makes up (those of /proc) look empty. Only reading tells.
            return *copied > 0 ? Outcome::done : Outcome::notOffered;
    }
    return Outcome::done;
}

Outcome copyThrough(std::span<unsigned char> spare, int to, int from, std::int64_t count, std::int64_t* copied)
{
    while (*copied < count) {
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(count - *copied, std::ssize(spare)));
        const ssize_t taken = ::read(from, spare.data(), wanted);
        if (taken < 0 && errno == EINTR)
            continue;
        if (taken <= 0)
            return taken == 0 ? Outcome::done : Outcome::failed;
        const auto* const bytes = reinterpret_cast<const char*>(spare.data());
        if (!writeAll(to, std::string_view(bytes, static_cast<std::size_t>(taken))))
            return Outcome::failed;
        *copied += taken;
    }
    return Outcome::done;
}

} // namespace

std::int64_t copyBytes(int to, int from, std::int64_t count, std::span<unsigned char> spare)
{
    std::int64_t copied = 0;
    Outcome outcome = copyBy(stepInsideFileSystem, to, from, count, &copied);
    if (outcome == Outcome::notOffered)
        outcome = copyBy(stepInsideKernel, to, from, count, &copied);
    if (outcome == Outcome::notOffered)
        outcome = copyThrough(spare, to, from, count, &copied);
    return outcome == Outcome::done ? copied : -1;
}

bool isSameFile(int a, int b)
{
    struct stat first;
    struct stat second;
    return ::fstat(a, &first) == 0 && ::fstat(b, &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

} // namespace zu::posix
