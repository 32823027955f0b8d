#include "zu_Dir.h"

#include "files/file_find.h"
#include "files/file_service.h"
#include "files/lists.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "platform/files.h"
#include "zu_File.h"

namespace {

using namespace zu;

// The longest path that is worked on. A longer one is refused: cut, it would name another directory.
constexpr std::size_t pathSize = 512;

constexpr zu_wchar separator = ZU_W('\\');

// The path as it is worked on; empty when there is none, or none that can be.
WideView usable(const zu_wchar* path)
{
    const WideView whole = text::view(path);
    return whole.size() > pathSize ? WideView() : whole;
}

WideString lowered(WideView path)
{
    WideString copy(path);
    text::makeLower(copy.data());
    return copy;
}

WideString withSeparator(WideView path)
{
    WideString copy(path);
    if (copy.back() != separator)
        copy += separator;
    return copy;
}

// Without the separator at the end, except where it makes the path a root.
WideView withoutSeparator(WideView path)
{
    const bool isRoot = path.size() < 2 || path[path.size() - 2] == ZU_W(':');
    return path.back() == separator && !isRoot ? path.substr(0, path.size() - 1) : path;
}

bool hasDrive(WideView path)
{
    return path.size() >= 2 && path[1] == ZU_W(':');
}

int32_t deleteDirectory(WideView path)
{
    file_service::revalidate(lowered(path));
    // Removed under the name given: where case counts, its lower-cased form can be another directory.
    return platform::removeDirectory(withoutSeparator(path)) ? 0 : -1;
}

// Links are removed, not followed: what they lead to is no part of the tree.
int32_t deleteTree(WideView directory)
{
    if (!platform::isLink(withoutSeparator(directory))) {
        const WideString pattern = withSeparator(directory) + ZU_W('*');
        zu_File_delete(pattern.c_str(), 0);
        // The names are those of the file system, not lower-cased ones, for the same reason as above.
        const platform::Matches matches = enumerate(pattern);
        for (const WideString& name : matches.names) {
            const WideString entry = matches.directory + name;
            if (name != ZU_W(".") && name != ZU_W("..") && entry.size() <= pathSize)
                deleteTree(entry);
        }
    }
    return deleteDirectory(directory);
}

} // namespace

int32_t zu_Dir_exists(const zu_wchar* path)
{
    return guarded(0, [&] { return path != nullptr && file_service::folderExists(path) ? 1 : 0; });
}

int32_t zu_Dir_create(const zu_wchar* path)
{
    return guarded(-1, [&] {
        const WideView whole = usable(path);
        if (whole.empty())
            return -1;
        const WideString chain = withSeparator(lowered(whole));
        file_service::revalidate(chain);
        // The last creation decides: where every directory was there already, the answer is a failure. Meant.
        int32_t result = -1;
        for (std::size_t end = chain.find(separator); end != WideString::npos; end = chain.find(separator, end + 1)) {
            const WideView prefix = WideView(chain).substr(0, end + 1);
            if (!platform::hasAccess(prefix, platform::Access::exists))
                result = platform::makeDirectory(prefix) ? 0 : -1;
        }
        return result;
    });
}

int32_t zu_Dir_delete(const zu_wchar* path)
{
    return guarded(-1, [&] {
        const WideView whole = usable(path);
        return whole.empty() ? -1 : deleteDirectory(whole);
    });
}

int32_t zu_Dir_deleteTree(const zu_wchar* path)
{
    return guarded(-1, [&] {
        // A bare drive names no directory; its root would be emptied in the place of the directory current on it.
        const WideView whole = usable(path);
        return whole.empty() || (hasDrive(whole) && whole.size() == 2) ? -1 : deleteTree(whole);
    });
}

int32_t zu_Dir_change(const zu_wchar* path)
{
    return guarded(-1, [&] {
        const WideView whole = usable(path);
        if (whole.empty())
            return -1;
        const WideString directory = lowered(withoutSeparator(whole));
        if (hasDrive(directory)) {
            if (zu_Drive_set(zu_Drive_num(directory[0])) != 0)
                return -1;
            if (directory.size() == 2)
                return 0;
        }
        // On failure the drive that was current cannot be put back, because it is never known. Meant.
        return platform::changeDirectory(directory) ? 0 : -1;
    });
}

zu_wchar* zu_Dir_current(void)
{
    static text::Buffer<pathSize> result;
    return guarded<zu_wchar*>(nullptr, [&]() -> zu_wchar* {
        const std::optional<WideString> current = platform::fullPath({});
        return current && current->size() <= pathSize ? result.set(*current) : nullptr;
    });
}

zu_wchar* zu_Dir_getParent(const zu_wchar* path)
{
    static text::Buffer<pathSize> result;
    return guarded<zu_wchar*>(nullptr, [&]() -> zu_wchar* {
        const std::optional<WideString> full = path == nullptr ? std::nullopt : platform::fullPath(path);
        if (!full || full->empty() || full->size() > pathSize)
            return nullptr;
        WideView parent(*full);
        if (parent.back() == separator)
            parent.remove_suffix(1);
        const std::size_t end = parent.find_last_of(ZU_W("\\:"));
        // Only a root has a colon in front of what is left of it.
        if (end == WideView::npos || parent[end] == ZU_W(':'))
            return nullptr;
        return result.set(parent.substr(0, end + 1));
    });
}

StrList* zu_Dir_list(const zu_wchar* pattern)
{
    return guarded<StrList*>(nullptr, [&]() -> StrList* {
        const platform::Matches matches = enumerate(usable(pattern));
        ListOwner list(matches.names.empty() ? nullptr : zu_StrList_create(nullptr));
        for (const WideString& name : matches.names) {
            if (list == nullptr || !appendString(list.get(), lowered(matches.directory + name)))
                return nullptr;
        }
        return list.release();
    });
}

int32_t zu_Drive_num(zu_wchar letter)
{
    return text::upper(letter) - 64;
}

int32_t zu_Drive_set(int32_t drive)
{
    if (drive < 1)
        return -1;
    guarded([&] { platform::changeDrive(drive); });
    return 0;
}

int32_t zu_Drive_get(void)
{
    // The current drive is never told. Meant: zu_Dir_change relies on not being able to go back.
    return -1;
}
