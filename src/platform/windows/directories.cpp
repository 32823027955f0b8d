#include "platform/directories.h"

#include "platform/windows/handle.h"

#include <direct.h>
#include <winnetwk.h>

namespace zu::platform {
namespace {

using windows::isUsable;

struct SearchCloser
{
    using pointer = HANDLE;
    void operator()(HANDLE search) const { ::FindClose(search); }
};

std::size_t directoryLength(WideView pattern)
{
    const std::size_t separator = pattern.find_last_of(L"\\/:");
    return separator == WideView::npos ? 0 : separator + 1;
}

} // namespace

Matches matchingEntries(WideView pattern)
{
    const std::size_t length = directoryLength(pattern);
    Matches matches{WideString(pattern.substr(0, length)), {}};
    if (length == pattern.size() || !isUsable(pattern))
        return matches;
    WIN32_FIND_DATAW entry;
    const HANDLE first =
        ::FindFirstFileExW(WideString(pattern).c_str(), FindExInfoStandard, &entry, FindExSearchNameMatch, nullptr, 0);
    if (first == INVALID_HANDLE_VALUE)
        return matches;
    const std::unique_ptr<HANDLE, SearchCloser> search(first);
    do {
        matches.names.emplace_back(entry.cFileName);
    } while (::FindNextFileW(search.get(), &entry));
    return matches;
}

bool isLink(WideView path)
{
    // Not everything that is stored in a special way is a link: files kept elsewhere are marked too.
    WIN32_FIND_DATAW entry;
    if (!isUsable(path) || path.find_first_of(L"*?") != WideView::npos)
        return false;
    // With a separator at its end the path would not be found; a drive alone is no root any more.
    WideString name(path);
    while (name.size() > 1 && (name.back() == L'\\' || name.back() == L'/') && name[name.size() - 2] != L':')
        name.pop_back();
    const HANDLE search = ::FindFirstFileW(name.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    ::FindClose(search);
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(entry.dwReserved0);
}

bool removeDirectory(WideView path)
{
    return isUsable(path) && ::_wrmdir(WideString(path).c_str()) == 0;
}

bool changeDirectory(WideView path)
{
    return isUsable(path) && ::_wchdir(WideString(path).c_str()) == 0;
}

void changeDrive(std::int32_t number)
{
    ::_chdrive(number);
}

std::optional<WideString> remoteName(WideView drive)
{
    wchar_t name[1024];
    DWORD size = 1024;
    if (!isUsable(drive) || ::WNetGetConnectionW(WideString(drive).c_str(), name, &size) != NO_ERROR)
        return std::nullopt;
    return WideString(name);
}

} // namespace zu::platform
