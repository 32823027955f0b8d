#include "zu_File.h"

#include "files/file_find.h"
#include "files/stream.h"
#include "frame/guard.h"
#include "frame/text.h"

#include <new>

namespace {

using namespace zu;

constexpr std::size_t lineSize = 512;

// The enumeration of the process, and the name that comes next.
struct Enumeration
{
    platform::Matches matches;
    std::size_t next = 0;
};
Enumeration* current = nullptr;

// Not destroyed at the end of the process: the hooks that its memory goes back to may be gone by then.
void close()
{
    if (current != nullptr) {
        current->~Enumeration();
        zu_Free(std::exchange(current, nullptr));
    }
}

int32_t deleteMatches(WideView pattern)
{
    int32_t deleted = 0;
    const platform::Matches matches = enumerate(pattern);
    for (const WideString& name : matches.names)
        deleted += zu_File_deleteSingle((matches.directory + name).c_str());
    return deleted;
}

int32_t deleteListed(WideView path)
{
    const Stream list = openStream(path, "rt");
    if (list == nullptr)
        return 0;
    platform::skipByteOrderMark(list.get());
    int32_t deleted = 0;
    zu_wchar line[lineSize + 2];
    // One unit more than a line may have: a longer one is cut, and what is left of it names another file.
    while (zu_File_readLine(list.get(), line, lineSize + 1) == 1) {
        if (WideView(line).size() <= lineSize)
            deleted += zu_File_deleteSingle(line);
    }
    return deleted;
}

} // namespace

platform::Matches zu::enumerate(WideView pattern)
{
    close();
    return platform::matchingEntries(pattern);
}

int32_t zu_File_findFirst(const zu_wchar* pattern, zu_wchar* name)
{
    if (name == nullptr)
        return -1;
    *name = 0;
    return guarded(-1, [&] {
        platform::Matches matches = enumerate(text::view(pattern));
        if (matches.names.empty())
            return -1;
        void* const block = zu_Malloc(sizeof(Enumeration));
        if (block == nullptr)
            return -1;
        current = new (block) Enumeration{std::move(matches)};
        return zu_File_findNext(name);
    });
}

int32_t zu_File_findNext(zu_wchar* name)
{
    if (name == nullptr)
        return -1;
    *name = 0;
    if (current == nullptr)
        return -1;
    if (current->next == current->matches.names.size()) {
        close();
        return -1;
    }
    const WideString& found = current->matches.names[current->next++];
    text::copyCut(name, found.size(), found);
    return 0;
}

int32_t zu_File_delete(const zu_wchar* path, int32_t fromList)
{
    if (path == nullptr)
        return 0;
    return guarded(0, [&] { return fromList != 0 ? deleteListed(path) : deleteMatches(path); });
}
