#include "platform/files.h"

#include "platform/posix/path.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu::platform {
namespace {

std::optional<struct stat> statusOf(WideView path)
{
    const auto native = posix::nativePath(path);
    struct stat status;
    if (!native || ::stat(native->c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

bool hasWriteBit(const struct stat& status)
{
    return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
}

} // namespace

bool hasAccess(WideView path, Access wanted)
{
    const auto native = posix::nativePath(path);
    if (!native)
        return false;
    const int mode = wanted == Access::exists  ? F_OK
                     : wanted == Access::write ? W_OK
                     : wanted == Access::read  ? R_OK
                                               : R_OK | W_OK;
    if (::access(native->c_str(), mode) != 0)
        return false;
    if ((mode & W_OK) == 0)
        return true;
    // The superuser may write anything, but a file marked read-only counts as such for everybody.
    struct stat status;
    return ::stat(native->c_str(), &status) == 0 && hasWriteBit(status);
}

bool isFile(WideView path)
{
    const auto status = statusOf(path);
    return status && !S_ISDIR(status->st_mode);
}

bool isDirectory(WideView path)
{
    const auto status = statusOf(path);
    return status && S_ISDIR(status->st_mode);
}

std::optional<WideString> fullPath(WideView path)
{
    return posix::absolutePath(path);
}

std::FILE* openFile(WideView path, const char* mode)
{
    const auto native = posix::nativePath(path);
    if (!native) {
        errno = ENOENT;
        return nullptr;
    }
    const bool writes = std::strpbrk(mode, "wa+") != nullptr;
    struct stat status;
    if (::stat(native->c_str(), &status) == 0) {
        int refusal = S_ISDIR(status.st_mode) ? EISDIR : writes && !hasWriteBit(status) ? EACCES : 0;
        // Opening a pipe would wait for somebody at its other end.
        if (S_ISFIFO(status.st_mode))
            refusal = ENXIO;
        if (refusal != 0) {
            errno = refusal;
            return nullptr;
        }
    }
    // Children of the host must not hold the file; text mode needs nothing here.
    char nativeMode[8] = {};
    std::size_t length = 0;
    for (; *mode != '\0' && length + 2 < sizeof nativeMode; ++mode) {
        if (*mode != 't')
            nativeMode[length++] = *mode;
    }
    nativeMode[length] = 'e';
    return std::fopen(native->c_str(), nativeMode);
}

bool removeFile(WideView path)
{
    const auto native = posix::nativePath(path);
    return native && ::unlink(native->c_str()) == 0;
}

bool makeDirectory(WideView path)
{
    const auto native = posix::nativePath(path);
    return native && ::mkdir(native->c_str(), 0777) == 0;
}

bool setWritable(WideView path, bool writable)
{
    const auto native = posix::nativePath(path);
    struct stat status;
    if (!native || ::stat(native->c_str(), &status) != 0)
        return false;
    const mode_t others = status.st_mode & 07777 & ~mode_t{S_IWUSR | S_IWGRP | S_IWOTH};
    return ::chmod(native->c_str(), writable ? (status.st_mode & 07777) | S_IWUSR : others) == 0;
}

std::optional<std::int64_t> modificationTime(WideView path)
{
    const auto status = statusOf(path);
    return status ? std::optional<std::int64_t>(status->st_mtim.tv_sec) : std::nullopt;
}

bool setModificationTime(WideView path, std::int64_t seconds)
{
    const auto native = posix::nativePath(path);
    const timespec times[] = {{seconds, 0}, {seconds, 0}};
    return native && ::utimensat(AT_FDCWD, native->c_str(), times, 0) == 0;
}

std::optional<FileStamp> fileStamp(WideView path)
{
    const auto status = statusOf(path);
    if (!status)
        return std::nullopt;
    constexpr std::int64_t second = 1'000'000'000;
    timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::int64_t modified = status->st_mtim.tv_sec * second + status->st_mtim.tv_nsec;
    return FileStamp{modified, status->st_size, status->st_ino,
                     now.tv_sec * second + now.tv_nsec > modified + 2 * second};
}

} // namespace zu::platform
