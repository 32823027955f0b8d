#include "platform/files.h"

#include "platform/windows/handle.h"

#include <cerrno>
#include <cstring>
#include <direct.h>
#include <io.h>
#include <sys/stat.h>

namespace zu::platform {
namespace {

using windows::isUsable;

DWORD attributesOf(WideView path)
{
    return isUsable(path) ? ::GetFileAttributesW(WideString(path).c_str()) : INVALID_FILE_ATTRIBUTES;
}

// The system counts in tenths of a microsecond since 1601.
constexpr std::int64_t ticksPerSecond = 10'000'000;
constexpr std::int64_t secondsFrom1601To1970 = 11'644'473'600;

std::int64_t joined(DWORD high, DWORD low)
{
    return static_cast<std::int64_t>((static_cast<std::uint64_t>(high) << 32) | low);
}

} // namespace

bool hasAccess(WideView path, Access wanted)
{
    return isUsable(path) && ::_waccess(WideString(path).c_str(), static_cast<int>(wanted)) == 0;
}

bool isFile(WideView path)
{
    const DWORD attributes = attributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool isDirectory(WideView path)
{
    const DWORD attributes = attributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::optional<WideString> fullPath(WideView path)
{
    const WideString terminated(path);
    const DWORD size = ::GetFullPathNameW(terminated.empty() ? L"." : terminated.c_str(), 0, nullptr, nullptr);
    if (size == 0)
        return std::nullopt;
    WideString full(size, L'\0');
    const DWORD length = ::GetFullPathNameW(terminated.empty() ? L"." : terminated.c_str(), size, full.data(), nullptr);
    if (length == 0 || length >= size)
        return std::nullopt;
    full.resize(length);
    return full;
}

std::FILE* openFile(WideView path, const char* mode)
{
    if (!isUsable(path)) {
        errno = ENOENT;
        return nullptr;
    }
    // Not every system below keeps a superuser from writing what is marked read-only.
    if (std::strpbrk(mode, "wa+") != nullptr && windows::isReadOnly(path)) {
        errno = EACCES;
        return nullptr;
    }
    // Children of the host must not inherit the file.
    WideString wideMode(mode, mode + std::char_traits<char>::length(mode));
    wideMode += L'N';
    std::FILE* stream = ::_wfopen(WideString(path).c_str(), wideMode.c_str());
    // Old runtimes do not know the mark.
    if (stream == nullptr && errno == EINVAL) {
        wideMode.pop_back();
        stream = ::_wfopen(WideString(path).c_str(), wideMode.c_str());
    }
    return stream;
}

bool removeFile(WideView path)
{
    return isUsable(path) && ::_wremove(WideString(path).c_str()) == 0;
}

bool makeDirectory(WideView path)
{
    return isUsable(path) && ::_wmkdir(WideString(path).c_str()) == 0;
}

bool setWritable(WideView path, bool writable)
{
    return isUsable(path) && ::_wchmod(WideString(path).c_str(), writable ? _S_IWRITE : 4) == 0;
}

std::optional<std::int64_t> modificationTime(WideView path)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!isUsable(path) || !::GetFileAttributesExW(WideString(path).c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    const std::int64_t ticks = joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
    return ticks / ticksPerSecond - secondsFrom1601To1970;
}

bool setModificationTime(WideView path, std::int64_t seconds)
{
    if (!isUsable(path))
        return false;
    const windows::Handle file(::CreateFileW(WideString(path).c_str(), FILE_WRITE_ATTRIBUTES,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    const std::int64_t ticks = (seconds + secondsFrom1601To1970) * ticksPerSecond;
    const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    return file && ::SetFileTime(file.get(), nullptr, &time, &time);
}

std::optional<FileStamp> fileStamp(WideView path)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!isUsable(path) || !::GetFileAttributesExW(WideString(path).c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    FILETIME now;
    ::GetSystemTimeAsFileTime(&now);
    const std::int64_t modified = joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
    return FileStamp{
        modified, joined(data.nFileSizeHigh, data.nFileSizeLow),
        static_cast<std::uint64_t>(joined(data.ftCreationTime.dwHighDateTime, data.ftCreationTime.dwLowDateTime)),
        joined(now.dwHighDateTime, now.dwLowDateTime) > modified + 2 * ticksPerSecond};
}

} // namespace zu::platform
