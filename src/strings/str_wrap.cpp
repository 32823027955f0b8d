// Line wrapping.
#include "containers/strlist.h"
#include "frame/text.h"
#include "zu_Str.h"

namespace {

using namespace zu;

constexpr zu_wchar space = ZU_W(' ');

std::size_t closestWordBoundary(WideView text, std::size_t width)
{
    const WideView line = text.substr(0, width);
    const std::size_t last = line.rfind(space);
    return last == WideView::npos ? 0 : line.size() - last;
}

} // namespace

StrList* zu_Str_wrapText(const zu_wchar* text, uint32_t width)
{
    if (text == nullptr)
        return nullptr;
    StrList* const lines = zu_StrList_create(nullptr);
    bool complete = lines != nullptr;
    WideView rest(text);
    while (complete && rest.size() > width && width > 0) {
        if (rest.front() == space) {
            rest.remove_prefix(1);
            continue;
        }
        // A space just behind a full line ends it; else the last space within does, or nothing.
        const std::size_t tooMuch = rest[width] == space ? 0 : closestWordBoundary(rest, width);
        complete = appendString(lines, rest.substr(0, width - tooMuch));
        rest.remove_prefix(width - tooMuch);
    }
    if (complete && appendString(lines, rest))
        return lines;
    zu_StrList_destroy(lines);
    return nullptr;
}

int32_t zu_Str_findClosestWordBoundary(const zu_wchar* string, uint32_t width)
{
    return static_cast<int32_t>(closestWordBoundary(text::view(string, width), width));
}
