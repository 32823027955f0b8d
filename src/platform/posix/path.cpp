#include "platform/posix/path.h"

#include "platform/posix/directory_stream.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cstdlib>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zu::posix {
namespace {

char driveLetter(zu_wchar unit)
{
    return static_cast<char>(unit & ~0x20);
}

// The directory of a drive without a separator at its end, so that the root is the empty text.
std::optional<ByteString> driveRoot(char letter)
{
    if (letter == 'C')
        return ByteString();
    const char variable[] = {'Z', 'U', '_', 'D', 'R', 'I', 'V', 'E', '_', letter, '\0'};
    const char* const directory = std::getenv(variable);
    if (directory == nullptr || directory[0] != '/')
        return std::nullopt;
    ByteString root(directory);
    while (!root.empty() && root.back() == '/')
        root.pop_back();
    return root;
}

std::optional<ByteString> currentDirectory()
{
    char buffer[PATH_MAX];
    if (::getcwd(buffer, sizeof buffer) == nullptr)
        return std::nullopt;
    return ByteString(buffer);
}

bool exists(const ByteString& path)
{
    struct stat status;
    return ::lstat(path.c_str(), &status) == 0;
}

bool isLetter(char unit)
{
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z');
}

// Ignores the case of ASCII letters, whatever the locale.
bool equalsIgnoringCase(const char* entry, const ByteString& name)
{
    for (const char unit : name) {
        const char other = *entry++;
        if (unit != other && (!isLetter(unit) || (unit ^ 0x20) != other))
            return false;
    }
    return *entry == '\0';
}

// The entry of a directory that equals name ignoring case: the first in order when there are several. For a name that
// is not there the whole directory is read, so a name without letters is not looked for.
ByteString findEntry(const ByteString& directory, const ByteString& name)
{
    ByteString found;
    if (std::none_of(name.begin(), name.end(), isLetter))
        return found;
    const DirectoryStream stream(::opendir(directory.empty() ? "." : directory.c_str()));
    if (stream == nullptr)
        return found;
    while (const dirent* const entry = ::readdir(stream.get())) {
        if (equalsIgnoringCase(entry->d_name, name) && (found.empty() || found > entry->d_name))
            found = entry->d_name;
    }
    return found;
}

// Replaces, component by component, what does not exist as written by what exists ignoring case.
ByteString inExistingCase(ByteString path)
{
    if (exists(path))
        return path;
    ByteString resolved;
    std::size_t start = 0;
    while (start < path.size()) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const ByteString name = path.substr(start, end - start);
        const ByteString written = resolved + name;
        if (name.empty() || exists(written)) {
            resolved = written;
        } else {
            const ByteString entry = findEntry(resolved, name);
            if (entry.empty())
                return resolved + path.substr(start); // nothing below it can exist either
            resolved += entry;
        }
        if (end < path.size())
            resolved += '/';
        start = end + 1;
    }
    return resolved;
}

ByteString withSlashes(WideView path)
{
    ByteString native = utf8::encode(path);
    for (char& unit : native) {
        if (unit == '\\')
            unit = '/';
    }
    return native;
}

// Removes empty components, "." and ".." from an absolute path; a separator at the end stays.
WideString normalised(WideView path)
{
    WideString result;
    std::size_t start = 0;
    while (start < path.size()) {
        while (start < path.size() && isSeparator(path[start]))
            ++start;
        std::size_t end = start;
        while (end < path.size() && !isSeparator(path[end]))
            ++end;
        const WideView name = path.substr(start, end - start);
        if (name == ZU_W("..")) {
            const std::size_t parent = result.rfind(ZU_W('\\'));
            result.resize(parent == WideString::npos ? 0 : parent);
        } else if (!name.empty() && name != ZU_W(".")) {
            result += ZU_W('\\');
            result += name;
        }
        start = end;
    }
    if (result.empty() || (!path.empty() && isSeparator(path.back())))
        result += ZU_W('\\');
    return result;
}

// The root of the drive that a drive-relative path ("D:file") starts from: the current directory when it lies there.
WideString driveRelativeBase(zu_wchar letter)
{
    const std::optional<ByteString> current = currentDirectory();
    if (current) {
        const WideString place = withDrive(*current);
        if (driveLetter(place[0]) == driveLetter(letter))
            return place.substr(2);
    }
    return WideString();
}

} // namespace

bool isSeparator(zu_wchar unit)
{
    return unit == ZU_W('\\') || unit == ZU_W('/');
}

bool hasDrive(WideView path)
{
    return path.size() >= 2 && path[1] == ZU_W(':') && driveLetter(path[0]) >= 'A' && driveLetter(path[0]) <= 'Z' &&
           path[0] < 0x7F;
}

std::optional<ByteString> nativePath(WideView path)
{
    if (path.empty() || path.find(zu_wchar(0)) != WideView::npos)
        return std::nullopt;
    if (!hasDrive(path))
        return inExistingCase(withSlashes(path));
    const std::optional<ByteString> root = driveRoot(driveLetter(path[0]));
    if (!root)
        return std::nullopt;
    const WideView rest = path.substr(2);
    if (!rest.empty() && isSeparator(rest[0]))
        return inExistingCase(*root + withSlashes(rest));
    return inExistingCase(*root + withSlashes(driveRelativeBase(path[0])) + '/' + withSlashes(rest));
}

WideString withDrive(std::string_view native)
{
    WideString result = ZU_W("C:");
    std::size_t covered = 0;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::optional<ByteString> root = driveRoot(letter);
        if (root && root->size() > covered && native.starts_with(*root) &&
            (native.size() == root->size() || native[root->size()] == '/')) {
            covered = root->size();
            result[0] = static_cast<zu_wchar>(letter);
        }
    }
    WideString rest = utf8::decode(native.substr(covered));
    for (zu_wchar& unit : rest) {
        if (unit == ZU_W('/'))
            unit = ZU_W('\\');
    }
    result += rest.empty() ? WideString(ZU_W("\\")) : rest;
    return result;
}

std::optional<WideString> absolutePath(WideView path)
{
    if (hasDrive(path)) {
        WideString rest(path.substr(2));
        if (rest.empty() || !isSeparator(rest[0]))
            rest = driveRelativeBase(path[0]) + ZU_W('\\') + rest;
        return WideString(path.substr(0, 2)) + normalised(rest);
    }
    if (!path.empty() && isSeparator(path[0]))
        return withDrive(withSlashes(normalised(path)));
    const std::optional<ByteString> current = currentDirectory();
    if (!current)
        return std::nullopt;
    WideString place = withDrive(*current);
    if (path.empty())
        return place;
    place += ZU_W('\\');
    place += path;
    return place.substr(0, 2) + normalised(WideView(place).substr(2));
}

} // namespace zu::posix
