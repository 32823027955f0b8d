#include "platform/directories.h"

#include "platform/files.h"
#include "platform/posix/directory_stream.h"
#include "platform/posix/path.h"
#include "platform/posix/wildcard.h"
#include "platform/utf8.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <mntent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu::platform {
namespace {

struct MountTableCloser
{
    void operator()(std::FILE* table) const { ::endmntent(table); }
};

zu_wchar folded(zu_wchar unit)
{
    return unit >= ZU_W('a') && unit <= ZU_W('z') ? static_cast<zu_wchar>(unit - 0x20) : unit;
}

// The order of a listing: without case, and by case among names that are otherwise equal.
bool comesBefore(const WideString& a, const WideString& b)
{
    const auto [first, second] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                               [](zu_wchar x, zu_wchar y) { return folded(x) == folded(y); });
    if (first != a.end() && second != b.end())
        return folded(*first) < folded(*second);
    return first == a.end() && second == b.end() ? a < b : first == a.end();
}

// Whether callers can write the name behind a directory: a backslash would make two names of it, a colon a drive.
bool canBeWritten(WideView name)
{
    return name.find(ZU_W('\\')) == WideView::npos && !posix::hasDrive(name);
}

std::size_t directoryLength(WideView pattern)
{
    const std::size_t separator = pattern.find_last_of(ZU_W("\\/"));
    if (separator != WideView::npos)
        return separator + 1;
    return posix::hasDrive(pattern) ? 2 : 0;
}

// A name without wildcards stands for one entry, found as all paths are found.
void addEntry(HookVector<WideString>& names, WideView path)
{
    struct stat status;
    const auto native = posix::nativePath(path);
    if (native && ::lstat(native->c_str(), &status) == 0)
        names.push_back(utf8::decode(std::string_view(*native).substr(native->rfind('/') + 1)));
}

void addEntries(HookVector<WideString>& names, const ByteString& directory, const posix::Wildcard& wildcard)
{
    const posix::DirectoryStream stream(::opendir(directory.c_str()));
    if (stream == nullptr)
        return;
    while (const dirent* const entry = ::readdir(stream.get())) {
        WideString name = utf8::decode(entry->d_name);
        if (canBeWritten(name) && wildcard.matches(name))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(), comesBefore);
    const auto isDots = [](const WideString& name) {
        return name == ZU_W(".") || name == ZU_W("..");
    };
    std::stable_partition(names.begin(), names.end(), isDots);
}

// The network's name for a device of the mount table: "//server/share" and "server:/path" both become
// "\\server\...". None for a device of this machine.
std::optional<ByteString> networkName(std::string_view device)
{
    ByteString name;
    const std::size_t colon = device.find(":/");
    if (device.starts_with("//"))
        name = device;
    else if (!device.starts_with('/') && colon != std::string_view::npos)
        name = ByteString("//") += ByteString(device.substr(0, colon)) += device.substr(colon + 1);
    else
        return std::nullopt;
    while (name.ends_with('/'))
        name.pop_back();
    return name;
}

bool covers(std::string_view directory, std::string_view path)
{
    return path.starts_with(directory) &&
           (directory.ends_with('/') || path.size() == directory.size() || path[directory.size()] == '/');
}

// The entry itself: with a separator behind it a link would be followed.
std::optional<ByteString> nativeEntry(WideView path)
{
    auto native = posix::nativePath(path);
    while (native && native->size() > 1 && native->back() == '/')
        native->pop_back();
    return native;
}

bool isNativeLink(const ByteString& path)
{
    struct stat status;
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

} // namespace

Matches matchingEntries(WideView pattern)
{
    const std::size_t length = directoryLength(pattern);
    const WideView last = pattern.substr(length);
    Matches matches{WideString(pattern.substr(0, length)), {}};
    if (last.empty())
        return matches;
    if (!posix::hasWildcard(last)) {
        addEntry(matches.names, pattern);
    } else {
        // The current directory, of the drive too, is behind a name that stays in it.
        const auto native = posix::nativePath(matches.directory + ZU_W('.'));
        if (native)
            addEntries(matches.names, *native, posix::Wildcard(last));
    }
    return matches;
}

bool isLink(WideView path)
{
    const auto native = nativeEntry(path);
    return native && isNativeLink(*native);
}

bool removeDirectory(WideView path)
{
    const auto native = nativeEntry(path);
    if (!native)
        return false;
    // A link to a directory is removed in its place.
    if (isNativeLink(*native))
        return isDirectory(path) && ::unlink(native->c_str()) == 0;
    return ::rmdir(native->c_str()) == 0;
}

bool changeDirectory(WideView path)
{
    const auto native = posix::nativePath(path);
    return native && ::chdir(native->c_str()) == 0;
}

void changeDrive(std::int32_t number)
{
    if (number < 1 || number > 26)
        return;
    const zu_wchar root[] = {static_cast<zu_wchar>(ZU_W('A') + number - 1), ZU_W(':'), ZU_W('\\'), 0};
    // A drive has no current directory but the one that lies on it: elsewhere it is the drive's root.
    const std::optional<WideString> current = posix::absolutePath({});
    if (current && !current->empty() && current->front() == root[0])
        return;
    changeDirectory(root);
}

std::optional<WideString> remoteName(WideView drive)
{
    if (drive.size() != 2 || !posix::hasDrive(drive))
        return std::nullopt;
    // The mount table knows no links.
    const auto native = posix::nativePath(WideString(drive) += ZU_W('\\'));
    char root[PATH_MAX];
    if (!native || ::realpath(native->c_str(), root) == nullptr)
        return std::nullopt;
    const std::unique_ptr<std::FILE, MountTableCloser> table(::setmntent("/proc/self/mounts", "re"));
    if (table == nullptr)
        return std::nullopt;
    // The mount that covers the root most closely counts, and of several at one place the last.
    std::size_t closest = 0;
    std::optional<ByteString> name;
    mntent entry;
    char texts[4096];
    while (::getmntent_r(table.get(), &entry, texts, sizeof texts) != nullptr) {
        const std::string_view place(entry.mnt_dir);
        if (place.size() < closest || !covers(place, root))
            continue;
        closest = place.size();
        name = networkName(entry.mnt_fsname);
        if (name && place != root)
            *name += std::string_view(root).substr(place == "/" ? 0 : place.size());
    }
    if (!name)
        return std::nullopt;
    WideString wide = utf8::decode(*name);
    std::replace(wide.begin(), wide.end(), ZU_W('/'), ZU_W('\\'));
    return wide;
}

} // namespace zu::platform
