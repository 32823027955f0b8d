#include "platform/binary_file.h"

#include "platform/posix/copy.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/path.h"

#include <fcntl.h>
#include <limits>
#include <sys/stat.h>

namespace zu::platform {
namespace {

using posix::Descriptor;

constexpr std::int64_t everything = std::numeric_limits<std::int64_t>::max();

int descriptorOf(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

// Opens without waiting for whoever is at the other end of a pipe.
Descriptor openWithoutWaiting(WideView path, int flags, struct stat* status)
{
    const auto native = posix::nativePath(path);
    Descriptor file(native ? ::open(native->c_str(), flags | O_NONBLOCK | O_CLOEXEC, 0666) : -1);
    if (file && ::fstat(file.get(), status) != 0)
        file.close();
    return file;
}

Descriptor openSource(WideView path, struct stat* status)
{
    Descriptor file = openWithoutWaiting(path, O_RDONLY, status);
    return file && S_ISREG(status->st_mode) ? std::move(file) : Descriptor();
}

// A file that is not marked read-only (the superuser could write that too), or a device.
bool takesBytes(const struct stat& status)
{
    return S_ISREG(status.st_mode) ? (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 : S_ISCHR(status.st_mode);
}

Descriptor openTarget(WideView path, int source)
{
    // Not emptied while opening: it must first be known not to be the source.
    struct stat status;
    Descriptor file = openWithoutWaiting(path, O_WRONLY | O_CREAT, &status);
    if (!file || !takesBytes(status) || posix::isSameFile(file.get(), source))
        return Descriptor();
    if (status.st_size > 0 && ::ftruncate(file.get(), 0) != 0)
        return Descriptor();
    if (S_ISCHR(status.st_mode))
        ::fcntl(file.get(), F_SETFL, 0);
    return file;
}

bool copyThroughStreams(std::FILE* to, std::FILE* from, std::span<unsigned char> spare)
{
    std::size_t count;
    while ((count = std::fread(spare.data(), 1, spare.size(), from)) > 0) {
        if (std::fwrite(spare.data(), 1, count, to) != count)
            return false;
    }
    return std::ferror(from) == 0 && std::fflush(to) == 0;
}

} // namespace

BinaryFile BinaryFile::toRead(WideView path)
{
    struct stat status;
    return BinaryFile(openSource(path, &status).release());
}

BinaryFile BinaryFile::toWrite(WideView path, const BinaryFile& source)
{
    return BinaryFile(openTarget(path, descriptorOf(source.handle)).release());
}

BinaryFile::BinaryFile(BinaryFile&& other) noexcept : handle(std::exchange(other.handle, -1)) {}

BinaryFile& BinaryFile::operator=(BinaryFile&& other) noexcept
{
    std::swap(handle, other.handle);
    return *this;
}

BinaryFile::~BinaryFile()
{
    close();
}

BinaryFile::operator bool() const
{
    return handle >= 0;
}

bool BinaryFile::isSameAs(const BinaryFile& other) const
{
    return posix::isSameFile(descriptorOf(handle), descriptorOf(other.handle));
}

std::int64_t BinaryFile::size() const
{
    struct stat status;
    return ::fstat(descriptorOf(handle), &status) == 0 ? status.st_size : -1;
}

std::int64_t BinaryFile::read(std::span<unsigned char> bytes)
{
    std::size_t used = 0;
    while (used < bytes.size()) {
        const ssize_t count = ::read(descriptorOf(handle), bytes.data() + used, bytes.size() - used);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        used += static_cast<std::size_t>(count);
    }
    return static_cast<std::int64_t>(used);
}

bool BinaryFile::write(std::span<const unsigned char> bytes)
{
    const auto* const start = reinterpret_cast<const char*>(bytes.data());
    return posix::writeAll(descriptorOf(handle), std::string_view(start, bytes.size()));
}

std::int64_t BinaryFile::copyFrom(BinaryFile& source, std::int64_t count, std::span<unsigned char> spare)
{
    return posix::copyBytes(descriptorOf(handle), descriptorOf(source.handle), count, spare);
}

bool BinaryFile::close()
{
    return handle < 0 || ::close(descriptorOf(std::exchange(handle, -1))) == 0;
}

bool copyFile(WideView from, WideView to, std::span<unsigned char> spare)
{
    struct stat status;
    const Descriptor source = openSource(from, &status);
    Descriptor target = source ? openTarget(to, source.get()) : Descriptor();
    if (!target || posix::copyBytes(target.get(), source.get(), everything, spare) < 0)
        return false;
    const timespec times[] = {status.st_mtim, status.st_mtim};
    ::futimens(target.get(), times);
    return target.close();
}

bool copyRest(std::FILE* to, std::FILE* from, std::span<unsigned char> spare)
{
    const int target = ::fileno(to);
    const int source = ::fileno(from);
    // From here on the descriptors stand where the streams do, and the streams hold nothing of their own.
    if (posix::isSameFile(target, source) || std::fflush(to) != 0 || std::fflush(from) != 0)
        return false;
    // What the stream of a pipe has read ahead cannot be put back.
    if (::ftello(from) < 0)
        return copyThroughStreams(to, from, spare);
    // A target open for appending is written block by block: the system's own copies refuse it, because only a write
    // keeps apart what several processes append at a time.
    const bool done = posix::copyBytes(target, source, everything, spare) >= 0;
    ::fseeko(from, ::lseek(source, 0, SEEK_CUR), SEEK_SET);
    const off_t position = ::lseek(target, 0, SEEK_CUR);
    if (position >= 0)
        ::fseeko(to, position, SEEK_SET);
    return done;
}

std::int64_t streamLength(std::FILE* stream)
{
    struct stat status;
    return ::fstat(::fileno(stream), &status) == 0 && S_ISREG(status.st_mode) ? status.st_size : -1;
}

} // namespace zu::platform
