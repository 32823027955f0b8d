#include "zu_File.h"

#include "frame/guard.h"
#include "frame/text.h"
#include "platform/directories.h"

#include <algorithm>

namespace {

using namespace zu;

constexpr std::size_t shortest = 4;
constexpr std::size_t longest = 512;
// Where the text behind a drive and its separator begins.
constexpr std::size_t behindRoot = 3;

using RelativeName = text::Buffer<longest>;

// The way from a base directory up to what both share, and down again; null when it is too long. Either path may be the
// result of the call before.
zu_wchar* upAndDown(RelativeName& result, WideView base, WideView target, std::size_t difference)
{
    std::size_t ups = 1;
    for (std::size_t index = difference; index + 1 < base.size(); ++index)
        ups += base[index] == ZU_W('\\');
    std::size_t shared = std::min(difference, target.size());
    while (shared > behindRoot && target[shared - 1] != ZU_W('\\'))
        --shared;
    const WideView down = target.substr(shared);
    if (3 * ups + down.size() > longest)
        return nullptr;
    RelativeName way;
    zu_wchar* out = way.units;
    for (; ups > 0; --ups)
        out = std::copy_n(ZU_W("..\\"), 3, out);
    text::copyCut(out, longest, down);
    return result.set(way.view());
}

} // namespace

zu_wchar* zu_File_getUNCPathName(const zu_wchar* path)
{
    static text::Buffer<511> result;
    result.clear();
    const WideView whole = text::view(path);
    result.set(whole);
    const std::size_t colon = whole.find(ZU_W(':'));
    if (colon == WideView::npos)
        return result.units;
    return guarded(&result.units[0], [&] {
        std::optional<WideString> name = platform::remoteName(whole.substr(0, colon + 1));
        return name ? result.set(*name += whole.substr(colon + 1)) : result.units;
    });
}

zu_wchar* zu_File_getRelativeFilename(const zu_wchar* base, const zu_wchar* target)
{
    static RelativeName result;
    const WideView from = text::view(base);
    const WideView to = text::view(target);
    if (from.size() < shortest || from.size() > longest || to.size() < shortest || to.size() > longest)
        return nullptr;
    if (text::upper(from[0]) != text::upper(to[0]))
        return result.set(to);
    std::size_t difference = behindRoot;
    while (difference < from.size() && difference < to.size() && from[difference] == to[difference])
        ++difference;
    if (difference == from.size()) {
        if (difference < to.size() && to[difference] == ZU_W('\\'))
            return result.set(to.substr(difference + 1));
        if (from[difference - 1] == ZU_W('\\'))
            return result.set(to.substr(difference));
    }
    return upAndDown(result, from, to, difference);
}
