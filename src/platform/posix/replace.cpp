// Replacing files in one step, and the lock that makes read, change and replace one step among several processes.
#include "platform/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/path.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu::platform {
namespace {

using posix::Descriptor;

ByteString directoryOf(const ByteString& path)
{
    const std::size_t separator = path.rfind('/');
    if (separator == ByteString::npos)
        return ".";
    return separator == 0 ? ByteString("/") : path.substr(0, separator);
}

// The file that a link leads to; the path itself when there is none. None for a link that leads nowhere.
std::optional<ByteString> behindLinks(const ByteString& path)
{
    char resolved[PATH_MAX];
    if (::realpath(path.c_str(), resolved) != nullptr)
        return ByteString(resolved);
    struct stat status;
    if (::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode))
        return std::nullopt;
    return path;
}

void syncDirectory(const ByteString& directory)
{
    const Descriptor handle(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle)
        ::fsync(handle.get());
}

// A new file beside target, with target's owner and permissions as far as possible, removed unless it is kept.
class TemporaryFile
{
public:
    explicit TemporaryFile(const ByteString& target) : name(besides(target))
    {
        file = Descriptor(::mkostemp(name.data(), O_CLOEXEC));
        if (!file)
            return;
        struct stat status;
        if (::stat(target.c_str(), &status) == 0) {
            // Another owner cannot always be given; the file then belongs to whoever writes it.
            if (::fchown(file.get(), status.st_uid, status.st_gid) != 0)
                errno = 0;
            ::fchmod(file.get(), status.st_mode & 07777);
        } else {
            const mode_t mask = ::umask(0);
            ::umask(mask);
            ::fchmod(file.get(), 0666 & ~mask);
        }
    }
    ~TemporaryFile()
    {
        if (!kept && file)
            ::unlink(name.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    explicit operator bool() const { return static_cast<bool>(file); }
    int get() const { return file.get(); }

    // A name for mkostemp, not longer than names may be.
    static ByteString besides(const ByteString& target)
    {
        constexpr std::string_view tail = ".zu-XXXXXX";
        const std::size_t start = target.rfind('/') + 1; // none gives 0
        return target.substr(0, std::min(target.size(), start + NAME_MAX - tail.size())).append(tail);
    }

    // Puts the file in the place of target once it is safely on disk.
    bool moveTo(const ByteString& target)
    {
        // Nothing may fail once it is there.
        const ByteString directory = directoryOf(target);
        if (::fsync(file.get()) != 0 || ::rename(name.c_str(), target.c_str()) != 0)
            return false;
        kept = true;
        syncDirectory(directory);
        return true;
    }

private:
    ByteString name;
    Descriptor file;
    bool kept = false;
};

bool copyContent(int to, int from)
{
    char block[65536];
    for (;;) {
        const ssize_t count = ::read(from, block, sizeof block);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (!posix::writeAll(to, std::string_view(block, static_cast<std::size_t>(count))))
            return false;
    }
}

bool copyAcrossVolumes(const ByteString& from, const ByteString& to)
{
    // A pipe must not be waited for.
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!source || ::fstat(source.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    // What cannot be removed afterwards is not moved.
    if (::access(directoryOf(from).c_str(), W_OK | X_OK) != 0)
        return false;
    TemporaryFile copy(to);
    if (!copy || !copyContent(copy.get(), source.get()))
        return false;
    ::fchmod(copy.get(), status.st_mode & 07777);
    const timespec times[] = {status.st_atim, status.st_mtim};
    ::futimens(copy.get(), times);
    if (!copy.moveTo(to))
        return false;
    // The file has arrived: a source that stays behind all the same is no failure, as on other systems.
    ::unlink(from.c_str());
    return true;
}

// The path with the last component as the caller wrote it.
ByteString asWritten(const ByteString& resolved, WideView path)
{
    const std::size_t separator = path.find_last_of(ZU_W("\\/"));
    const std::size_t start = separator != WideView::npos ? separator + 1 : posix::hasDrive(path) ? 2 : 0;
    return resolved.substr(0, resolved.rfind('/') + 1) + utf8::encode(path.substr(start));
}

bool isSameFile(const ByteString& a, const ByteString& b)
{
    struct stat first;
    struct stat second;
    return ::lstat(a.c_str(), &first) == 0 && ::lstat(b.c_str(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

int lockDirectory(const ByteString& directory)
{
    Descriptor handle(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    while (handle && ::flock(handle.get(), LOCK_EX) != 0) {
        if (errno == EINTR)
            continue;
        // Some network file systems lock only files that are open for writing.
        handle = Descriptor(::open((directory + "/.zu.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
        while (handle && ::flock(handle.get(), LOCK_EX) != 0) {
            if (errno != EINTR)
                return -1;
        }
        break;
    }
    return handle.release();
}

} // namespace

std::optional<ByteString> readContent(WideView path)
{
    const auto native = posix::nativePath(path);
    if (!native)
        return std::nullopt;
    // A pipe in the place of a file must not be waited for.
    const Descriptor file(::open(native->c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    ByteString content;
    std::size_t used = 0;
    content.resize(static_cast<std::size_t>(status.st_size) + 1);
    for (;;) {
        const ssize_t count = ::read(file.get(), content.data() + used, content.size() - used);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        used += static_cast<std::size_t>(count);
        if (count == 0)
            break;
        if (used == content.size())
            content.resize(content.size() * 2);
    }
    content.resize(used);
    return content;
}

bool replaceContent(WideView path, std::string_view content)
{
    const auto native = posix::nativePath(path);
    if (!native || isDirectory(path) || (hasAccess(path, Access::exists) && !hasAccess(path, Access::write)))
        return false;
    const std::optional<ByteString> target = behindLinks(*native);
    if (!target)
        return false;
    TemporaryFile file(*target);
    return file && posix::writeAll(file.get(), content) && file.moveTo(*target);
}

bool replaceFile(WideView from, WideView to)
{
    const auto source = posix::nativePath(from);
    auto target = posix::nativePath(to);
    if (!source || !target)
        return false;
    // A file that is moved onto itself, as far as lookups can tell, may get its name in another case.
    if (*source == *target)
        target = asWritten(*target, to);
    if (::rename(source->c_str(), target->c_str()) == 0) {
        // Between two links to one file the system does nothing, and calls it success.
        if (*source != *target && isSameFile(*source, *target))
            ::unlink(source->c_str());
        return true;
    }
    return errno == EXDEV && copyAcrossVolumes(*source, *target);
}

void copyPermissions(WideView from, WideView to)
{
    const auto source = posix::nativePath(from);
    const auto target = posix::nativePath(to);
    struct stat status;
    if (!source || !target || ::stat(source->c_str(), &status) != 0)
        return;
    // Another owner cannot always be given; the file then belongs to whoever writes it.
    if (::chown(target->c_str(), status.st_uid, status.st_gid) != 0)
        errno = 0;
    ::chmod(target->c_str(), status.st_mode & 07777);
}

DirectoryLock::DirectoryLock(WideView pathOfFile)
    : handle([&] {
          const auto native = posix::nativePath(pathOfFile);
          return native ? lockDirectory(directoryOf(behindLinks(*native).value_or(*native))) : -1;
      }())
{
}

DirectoryLock::~DirectoryLock()
{
    if (handle >= 0)
        ::close(static_cast<int>(handle));
}

bool DirectoryLock::held() const
{
    return handle >= 0;
}

} // namespace zu::platform
