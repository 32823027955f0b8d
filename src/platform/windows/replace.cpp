// Replacing files in one step, and the lock that makes read, change and replace one step among several processes.
#include "platform/files.h"
#include "platform/windows/handle.h"

#include <algorithm>

namespace zu::platform {
namespace {

using windows::Handle;
using windows::isUsable;

bool writeAll(HANDLE file, std::string_view bytes)
{
    constexpr std::size_t most = 1u << 20;
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), most)), &written, nullptr) ||
            written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

bool rename(const WideString& from, const WideString& to)
{
    return ::MoveFileExW(from.c_str(), to.c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH) != 0;
}

// In one step, within a volume. ReplaceFile, made for this, takes two: a process that dies between them leaves no file.
bool renameAtOnce(const WideString& from, const WideString& to)
{
    // Somebody who is just looking at the old file may keep it from being replaced.
    constexpr int attempts = 20;
    for (int attempt = 1;; ++attempt) {
        if (::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = ::GetLastError();
        if (attempt == attempts || (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED))
            return false;
        ::Sleep(10);
    }
}

// The file that a link leads to; the path itself when there is none.
WideString behindLinks(const WideString& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return path;
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(::CreateFileW(path.c_str(), 0, shared, nullptr, OPEN_EXISTING, 0, nullptr));
    WideString resolved(32768, L'\0');
    const DWORD length =
        file ? ::GetFinalPathNameByHandleW(file.get(), resolved.data(), static_cast<DWORD>(resolved.size()), 0) : 0;
    if (length == 0 || length >= resolved.size())
        return path;
    resolved.resize(length);
    return resolved;
}

// Who may do what with a file; empty when that is not known.
HookVector<char> accessListOf(const WideString& path)
{
    DWORD size = 0;
    ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    HookVector<char> descriptor(size);
    if (size != 0 && !::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size))
        descriptor.clear();
    return descriptor;
}

// A name of the same directory that nothing has yet.
WideString temporaryName(const WideString& target)
{
    static DWORD counter = 0;
    WideString name;
    do {
        name = target + L".zu-";
        DWORD number = ::GetCurrentProcessId() * 1000 + ++counter;
        for (; number != 0; number /= 36)
            name += L"0123456789abcdefghijklmnopqrstuvwxyz"[number % 36];
    } while (::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES);
    return name;
}

// The name of the lock of a directory: the same for every way of writing its path, through links and drives as well, as
// far as the file system numbers its directories.
WideString lockName(WideView pathOfFile)
{
    WideString full = fullPath(pathOfFile).value_or(WideString(pathOfFile));
    full.resize(std::min(full.find_last_of(L"\\/"), full.size()));
    const Handle directory(::CreateFileW((full + L'\\').c_str(), 0,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                         FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION identity;
    std::uint64_t hash = 14695981039346656037u;
    const auto add = [&hash](std::uint64_t part) {
        hash = (hash ^ part) * 1099511628211u;
    };
    if (directory && ::GetFileInformationByHandle(directory.get(), &identity)) {
        add(identity.dwVolumeSerialNumber);
        add(identity.nFileIndexHigh);
        add(identity.nFileIndexLow);
    } else {
        ::CharLowerBuffW(full.data(), static_cast<DWORD>(full.size()));
        for (wchar_t unit : full)
            add(unit);
    }
    WideString name = L"Local\\zu-directory-";
    for (int digit = 0; digit < 16; ++digit, hash >>= 4)
        name += L"0123456789abcdef"[hash & 15];
    return name;
}

} // namespace

std::optional<ByteString> readContent(WideView path)
{
    if (!isFile(path))
        return std::nullopt;
    const Handle file(::CreateFileW(WideString(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size;
    if (!file || ::GetFileType(file.get()) != FILE_TYPE_DISK || !::GetFileSizeEx(file.get(), &size))
        return std::nullopt;
    ByteString content;
    content.resize(static_cast<std::size_t>(size.QuadPart) + 1);
    std::size_t used = 0;
    for (;;) {
        constexpr std::size_t most = 1u << 20;
        DWORD count = 0;
        if (!::ReadFile(file.get(), content.data() + used, static_cast<DWORD>(std::min(content.size() - used, most)),
                        &count, nullptr))
            return std::nullopt;
        used += count;
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
    if (!isUsable(path) || isDirectory(path) || (hasAccess(path, Access::exists) && !hasAccess(path, Access::write)))
        return false;
    const WideString target = behindLinks(WideString(path));
    const WideString temporary = temporaryName(target);
    HookVector<char> accessList = accessListOf(target);
    Handle file(
        ::CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return false;
    const bool written = writeAll(file.get(), content) && ::FlushFileBuffers(file.get());
    file.close();
    if (written) {
        if (!accessList.empty())
            ::SetFileSecurityW(temporary.c_str(), DACL_SECURITY_INFORMATION, accessList.data());
        const DWORD attributes = ::GetFileAttributesW(target.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES)
            ::SetFileAttributesW(temporary.c_str(), attributes);
        if (renameAtOnce(temporary, target))
            return true;
    }
    ::DeleteFileW(temporary.c_str());
    return false;
}

bool replaceFile(WideView from, WideView to)
{
    return isUsable(from) && isUsable(to) && rename(WideString(from), WideString(to));
}

void copyPermissions(WideView from, WideView to)
{
    const WideString source(from);
    const WideString target(to);
    HookVector<char> accessList = accessListOf(source);
    if (!accessList.empty())
        ::SetFileSecurityW(target.c_str(), DACL_SECURITY_INFORMATION, accessList.data());
    const DWORD attributes = ::GetFileAttributesW(source.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES)
        ::SetFileAttributesW(target.c_str(), attributes);
}

DirectoryLock::DirectoryLock(WideView pathOfFile) : handle(0)
{
    const HANDLE mutex = ::CreateMutexW(nullptr, FALSE, lockName(pathOfFile).c_str());
    if (mutex == nullptr)
        return;
    // A holder that died leaves the old file or the new one, so its lock can be taken over.
    const DWORD result = ::WaitForSingleObject(mutex, INFINITE);
    if (result == WAIT_OBJECT_0 || result == WAIT_ABANDONED)
        handle = reinterpret_cast<std::intptr_t>(mutex);
    else
        ::CloseHandle(mutex);
}

DirectoryLock::~DirectoryLock()
{
    if (!held())
        return;
    ::ReleaseMutex(reinterpret_cast<HANDLE>(handle));
    ::CloseHandle(reinterpret_cast<HANDLE>(handle));
}

bool DirectoryLock::held() const
{
    return handle != 0;
}

} // namespace zu::platform
