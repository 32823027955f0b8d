#include "platform/binary_file.h"

#include "platform/windows/handle.h"

#include <algorithm>
#include <io.h>
#include <limits>

namespace zu::platform {
namespace {

using windows::isUsable;

constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE;

HANDLE handleOf(std::intptr_t value)
{
    return reinterpret_cast<HANDLE>(value);
}

bool isSameFile(HANDLE a, HANDLE b)
{
    BY_HANDLE_FILE_INFORMATION first;
    BY_HANDLE_FILE_INFORMATION second;
    return ::GetFileInformationByHandle(a, &first) && ::GetFileInformationByHandle(b, &second) &&
           first.dwVolumeSerialNumber == second.dwVolumeSerialNumber && first.nFileIndexHigh == second.nFileIndexHigh &&
           first.nFileIndexLow == second.nFileIndexLow;
}

HANDLE open(WideView path, DWORD access, DWORD disposition)
{
    if (!isUsable(path) || (access == GENERIC_WRITE && windows::isReadOnly(path)))
        return INVALID_HANDLE_VALUE;
    return ::CreateFileW(WideString(path).c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                         nullptr);
}

constexpr DWORD clampedCount(std::size_t count)
{
    constexpr std::size_t most = std::size_t{1} << 20;
    return static_cast<DWORD>(std::min(count, most));
}

// Gives a copy the attributes of a file that was written, not those of its source, and the times it is to have.
void finishCopy(const WideString& path, DWORD attributesBefore, const FILETIME& modified)
{
    ::SetFileAttributesW(path.c_str(), attributesBefore == INVALID_FILE_ATTRIBUTES
                                           ? FILE_ATTRIBUTE_ARCHIVE
                                           : attributesBefore | FILE_ATTRIBUTE_ARCHIVE);
    const windows::Handle file(::CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, sharing | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    if (file)
        ::SetFileTime(file.get(), nullptr, &modified, &modified);
}

} // namespace

BinaryFile BinaryFile::toRead(WideView path)
{
    BinaryFile file(reinterpret_cast<std::intptr_t>(open(path, GENERIC_READ, OPEN_EXISTING)));
    return file && ::GetFileType(handleOf(file.handle)) == FILE_TYPE_DISK ? std::move(file) : BinaryFile();
}

BinaryFile BinaryFile::toWrite(WideView path, const BinaryFile& source)
{
    // Not emptied while opening: it must first be known not to be the source.
    BinaryFile file(reinterpret_cast<std::intptr_t>(open(path, GENERIC_WRITE, OPEN_ALWAYS)));
    if (!file || (source && file.isSameAs(source)))
        return BinaryFile();
    if (::GetFileType(handleOf(file.handle)) == FILE_TYPE_DISK && !::SetEndOfFile(handleOf(file.handle)))
        return BinaryFile();
    return file;
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
    return handle != -1;
}

bool BinaryFile::isSameAs(const BinaryFile& other) const
{
    return isSameFile(handleOf(handle), handleOf(other.handle));
}

std::int64_t BinaryFile::size() const
{
    LARGE_INTEGER length;
    return ::GetFileSizeEx(handleOf(handle), &length) ? length.QuadPart : -1;
}

std::int64_t BinaryFile::read(std::span<unsigned char> bytes)
{
    std::size_t used = 0;
    while (used < bytes.size()) {
        DWORD count = 0;
        if (!::ReadFile(handleOf(handle), bytes.data() + used, clampedCount(bytes.size() - used), &count, nullptr))
            return -1;
        if (count == 0)
            break;
        used += count;
    }
    return static_cast<std::int64_t>(used);
}

bool BinaryFile::write(std::span<const unsigned char> bytes)
{
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(handleOf(handle), bytes.data(), clampedCount(bytes.size()), &written, nullptr) || written == 0)
            return false;
        bytes = bytes.subspan(written);
    }
    return true;
}

std::int64_t BinaryFile::copyFrom(BinaryFile& source, std::int64_t count, std::span<unsigned char> spare)
{
    std::int64_t copied = 0;
    while (copied < count) {
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(count - copied, std::ssize(spare)));
        const std::int64_t got = source.read(spare.first(wanted));
        if (got < 0 || !write(spare.first(static_cast<std::size_t>(got))))
            return -1;
        copied += got;
        if (got < static_cast<std::int64_t>(wanted))
            break;
    }
    return copied;
}

bool BinaryFile::close()
{
    return handle == -1 || ::CloseHandle(handleOf(std::exchange(handle, -1)));
}

bool copyFile(WideView from, WideView to, std::span<unsigned char>)
{
    WIN32_FILE_ATTRIBUTE_DATA before;
    const BinaryFile source = BinaryFile::toRead(from);
    if (!source || !isUsable(to) || windows::isReadOnly(to) ||
        !::GetFileAttributesExW(WideString(from).c_str(), GetFileExInfoStandard, &before) ||
        source.isSameAs(BinaryFile::toRead(to)))
        return false;
    const WideString target(to);
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    if (!::CopyFileExW(WideString(from).c_str(), target.c_str(), nullptr, nullptr, nullptr,
                       COPY_FILE_ALLOW_DECRYPTED_DESTINATION))
        return false;
    finishCopy(target, attributes, before.ftLastWriteTime);
    return true;
}

bool copyRest(std::FILE* to, std::FILE* from, std::span<unsigned char> spare)
{
    if (isSameFile(handleOf(::_get_osfhandle(::_fileno(to))), handleOf(::_get_osfhandle(::_fileno(from)))))
        return false;
    // Through the streams: they know what their modes make of the bytes, and where they stand in the file.
    std::size_t count;
    while ((count = std::fread(spare.data(), 1, spare.size(), from)) > 0) {
        if (std::fwrite(spare.data(), 1, count, to) != count)
            return false;
    }
    return std::ferror(from) == 0 && std::fflush(to) == 0;
}

std::int64_t streamLength(std::FILE* stream)
{
    return ::_filelengthi64(::_fileno(stream));
}

} // namespace zu::platform
