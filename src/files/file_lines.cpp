#include "zu_File.h"

#include "files/lists.h"
#include "files/stream.h"
#include "frame/guard.h"

namespace {

using namespace zu;

constexpr int32_t lineSize = 512;

// Opens a text file with a buffer of the library's own, so that one such stream may be open at a time.
Stream openText(const zu_wchar* path)
{
    static char buffer[65536];
    Stream stream = openStream(text::view(path), "rt");
    if (stream != nullptr)
        std::setvbuf(stream.get(), buffer, _IOFBF, sizeof buffer);
    return stream;
}

// Makes a list of what append makes of each line. Null when there is no first line, and without memory.
template <class Append>
StrList* listOfLines(std::FILE* stream, Append append)
{
    zu_wchar line[lineSize + 1];
    if (zu_File_readLine(stream, line, lineSize) == 0)
        return nullptr;
    ListOwner list(zu_StrList_create(nullptr));
    if (list == nullptr)
        return nullptr;
    do {
        // Only a line feed ends a line: what the end of the file cuts off is lost. Meant.
        if (std::feof(stream) != 0)
            break;
        if (!append(list.get(), line))
            return nullptr;
    } while (zu_File_readLine(stream, line, lineSize) == 1);
    return list.release();
}

bool appendContent(StrList* list, zu_wchar* line)
{
    for (zu_wchar* unit = line; *unit != 0; ++unit) {
        if (*unit == ZU_W('\t'))
            *unit = ZU_W(' ');
    }
    return *line == 0 || appendString(list, line);
}

bool appendWithLineFeed(StrList* list, const zu_wchar* line)
{
    text::Buffer<lineSize + 1> whole;
    whole.set(line);
    const std::size_t length = whole.view().size();
    whole.units[length] = ZU_W('\n');
    whole.units[length + 1] = 0;
    return appendString(list, whole.view());
}

} // namespace

int32_t zu_File_readLine(FILE* stream, zu_wchar* buffer, int32_t maximum)
{
    if (buffer == nullptr || maximum < 0)
        return 0;
    *buffer = 0;
    if (stream == nullptr || std::feof(stream) != 0)
        return 0;
    return platform::readLine(stream, {buffer, static_cast<std::size_t>(maximum) + 1}) ? 1 : 0;
}

StrList* zu_File_readFile(const zu_wchar* path)
{
    return guarded<StrList*>(nullptr, [&] {
        const Stream stream = openText(path);
        return listOfLines(stream.get(), appendContent);
    });
}

StrList* zu_File_readFileExactly(const zu_wchar* path)
{
    return guarded<StrList*>(nullptr, [&]() -> StrList* {
        const Stream stream = openText(path);
        ListOwner list(listOfLines(stream.get(), appendWithLineFeed));
        // The list begins with the first whole line: without one there is none.
        return list == nullptr || list->count == 0 ? nullptr : list.release();
    });
}
