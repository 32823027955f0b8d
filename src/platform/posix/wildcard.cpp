#include "platform/posix/wildcard.h"

#include <algorithm>

namespace zu::posix {
namespace {

constexpr zu_wchar stop = ZU_W('.');

zu_wchar folded(zu_wchar unit)
{
    return unit >= ZU_W('a') && unit <= ZU_W('z') ? static_cast<zu_wchar>(unit - 0x20) : unit;
}

bool isWildcard(zu_wchar unit)
{
    return unit == ZU_W('*') || unit == ZU_W('?');
}

} // namespace

bool hasWildcard(WideView pattern)
{
    return std::any_of(pattern.begin(), pattern.end(), isWildcard);
}

Wildcard::Wildcard(WideView pattern) : matchesAll(pattern == ZU_W("*") || pattern == ZU_W("*.*"))
{
    // A full stop at the end of a pattern with wildcards stands for none at all.
    const bool endsAtStop = pattern.size() > 1 && pattern.back() == stop && hasWildcard(pattern);
    if (endsAtStop)
        pattern.remove_suffix(1);
    for (std::size_t index = 0; index < pattern.size(); ++index) {
        const zu_wchar unit = pattern[index];
        const bool isLast = index + 1 == pattern.size();
        const zu_wchar next = isLast ? zu_wchar(0) : pattern[index + 1];
        Kind kind = Kind::unit;
        if (unit == ZU_W('*'))
            kind = next == stop || (isLast && endsAtStop) ? Kind::anyToStop : Kind::any;
        else if (unit == ZU_W('?'))
            kind = Kind::one;
        else if (unit == stop && isWildcard(next))
            kind = Kind::stopOrNone;
        items.push_back({kind, folded(unit)});
    }
}

// Marks a place of the pattern as reached, and those that follow it without a unit of the name.
void Wildcard::reach(std::size_t item, bool atStop, bool atEnd, HookVector<char>& states) const
{
    for (; states[item] == 0; ++item) {
        states[item] = 1;
        if (item == items.size())
            return;
        const Kind kind = items[item].kind;
        const bool skips = kind == Kind::any || kind == Kind::anyToStop || (kind == Kind::one && (atStop || atEnd)) ||
                           (kind == Kind::stopOrNone && atEnd);
        if (!skips)
            return;
    }
}

bool Wildcard::matches(WideView name) const
{
    if (matchesAll)
        return true;
    const std::size_t lastStop = name.rfind(stop);
    const auto isStop = [&](std::size_t index) {
        return index < name.size() && name[index] == stop;
    };
    // All places of the pattern that the units so far can have led to.
    HookVector<char> states(items.size() + 1);
    HookVector<char> following(items.size() + 1);
    reach(0, isStop(0), name.empty(), states);
    for (std::size_t index = 0; index < name.size(); ++index) {
        std::fill(following.begin(), following.end(), char(0));
        const bool stopsNext = isStop(index + 1);
        const bool endsNext = index + 1 == name.size();
        for (std::size_t item = 0; item < items.size(); ++item) {
            if (states[item] == 0)
                continue;
            const Kind kind = items[item].kind;
            if (kind == Kind::any || (kind == Kind::anyToStop && index != lastStop))
                reach(item, stopsNext, endsNext, following);
            const bool takes = kind == Kind::unit  ? items[item].unit == folded(name[index])
                               : kind == Kind::one ? !isStop(index)
                                                   : kind == Kind::stopOrNone && isStop(index);
            if (takes)
                reach(item + 1, stopsNext, endsNext, following);
        }
        states.swap(following);
    }
    return states.back() != 0;
}

} // namespace zu::posix
