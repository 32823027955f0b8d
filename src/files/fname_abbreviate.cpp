// Shortening paths for display.
#include "frame/text.h"
#include "zu_Fname.h"

#include <algorithm>

namespace {

using namespace zu;

constexpr zu_wchar backslash = ZU_W('\\');
constexpr WideView gap = ZU_W("...");
constexpr std::size_t longest = 512;

using Result = text::Filling<longest>;

// A part of the path between backslashes; runs of them count as one.
struct Token
{
    std::size_t start;
    std::size_t end;
    bool found;
};

// A path as its head and its tail, with the tokens between them left out. Both grow token by token; in what is shown
// their tokens are joined by single backslashes. Works on positions: nothing is copied before the result is known.
class Abbreviation
{
public:
    explicit Abbreviation(WideView whole) : path(whole)
    {
        const Token first = tokenFrom(0);
        const Token last = tokenBefore(path.size());
        if (!first.found || first.start == last.start)
            return;
        usable = true;
        leading = first.start;
        trailing = path.size() - last.end;
        headEnd = first.end;
        headLength = first.end;
        tailStart = last.start;
        tailLength = path.size() - last.start;
    }

    // False when head and tail would be the same token.
    bool isUsable() const { return usable; }
    std::size_t length() const { return headLength + 1 + gap.size() + 1 + tailLength; }
    std::size_t lengthWithoutHead() const { return gap.size() + 1 + tailLength; }

    // Takes one more token into the tail, or into the head; false when the other side has it already.
    bool growTail()
    {
        const Token token = tokenBefore(tailStart);
        if (token.start < headEnd)
            return false;
        tailStart = token.start;
        tailLength += token.end - token.start + 1;
        return true;
    }
    bool growHead()
    {
        const Token token = tokenFrom(headEnd);
        if (token.start >= tailStart)
            return false;
        headEnd = token.end;
        headLength += token.end - token.start + 1;
        return true;
    }

    void showHead(Result& out) const
    {
        out.add(backslash, leading);
        showTokens(out, 0, headEnd);
        out.add(backslash);
    }
    void showGap(Result& out) const
    {
        out.add(gap);
        out.add(backslash);
    }
    void showTail(Result& out) const
    {
        showTokens(out, tailStart, path.size());
        out.add(backslash, trailing);
    }

private:
    Token tokenFrom(std::size_t position) const
    {
        const std::size_t start = path.find_first_not_of(backslash, position);
        if (start == WideView::npos)
            return {path.size(), path.size(), false};
        return {start, std::min(path.find(backslash, start), path.size()), true};
    }
    Token tokenBefore(std::size_t position) const
    {
        const WideView front = path.substr(0, position);
        const std::size_t last = front.find_last_not_of(backslash);
        if (last == WideView::npos)
            return {0, 0, false};
        return {front.rfind(backslash, last) + 1, last + 1, true}; // no backslash before it gives 0
    }
    void showTokens(Result& out, std::size_t from, std::size_t to) const
    {
        bool isFirst = true;
        for (Token token = tokenFrom(from); token.found && token.end <= to; token = tokenFrom(token.end)) {
            if (!isFirst)
                out.add(backslash);
            out.add(path.substr(token.start, token.end - token.start));
            isFirst = false;
        }
    }

    WideView path;
    bool usable = false;
    std::size_t leading = 0;  // backslashes in front of the path
    std::size_t trailing = 0; // and at its end
    std::size_t headEnd = 0;
    std::size_t headLength = 0;
    std::size_t tailStart = 0;
    std::size_t tailLength = 0;
};

// Grows tail and head in turn, the tail first, and gives the last form that fits. A side whose next token does not fit
// is closed; a side that meets the other one ends it all.
Abbreviation grown(Abbreviation best, std::size_t width)
{
    bool tailOpen = true;
    bool headOpen = true;
    for (bool atTail = true; (tailOpen || headOpen) && best.length() != width; atTail = !atTail) {
        bool& open = atTail ? tailOpen : headOpen;
        if (!open)
            continue;
        Abbreviation candidate = best;
        if (!(atTail ? candidate.growTail() : candidate.growHead()))
            break;
        open = candidate.length() <= width;
        if (open)
            best = candidate;
    }
    return best;
}

void abbreviate(Result& out, WideView path, std::size_t width)
{
    if (path.size() <= width) {
        out.add(path);
        return;
    }
    if (path.find(backslash) == WideView::npos) {
        out.add(path.substr(0, width));
        return;
    }
    const WideView name = path.substr(path.find_last_of(ZU_W("\\:")) + 1);
    if (name.size() > width) {
        out.add(name.substr(0, width));
        return;
    }
    const Abbreviation shortest(path);
    if (!shortest.isUsable()) {
        // One less than would fit: a name of exactly the width loses its last unit, which is meant.
        out.add(name.substr(0, width - std::min<std::size_t>(width, 1)));
        return;
    }
    if (shortest.length() <= width) {
        const Abbreviation best = grown(shortest, width);
        best.showHead(out);
        best.showGap(out);
        best.showTail(out);
        return;
    }
    // The tail alone may be longer than the width: meant.
    if (shortest.lengthWithoutHead() <= width)
        shortest.showGap(out);
    shortest.showTail(out);
}

} // namespace

zu_wchar* zu_Fname_abbreviate(const zu_wchar* path, int32_t width)
{
    static text::Buffer<longest> result;
    // Built aside: the path may be the result of the call before.
    Result made;
    if (path != nullptr && width >= 0 && width <= static_cast<int32_t>(longest))
        abbreviate(made, text::trimmed(path), static_cast<std::size_t>(width));
    return result.set(made.view());
}
