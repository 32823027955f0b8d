// The wildcards of file names as Windows understands them.
#pragma once

#include "platform/wide.h"

namespace zu::posix {

bool hasWildcard(WideView pattern);

// Matches names against one pattern, ignoring the case of ASCII letters.
//
//   *     any number of units; in front of the pattern's full stop it stops at the name's last one at the latest
//   ?     one unit, or none at the end of the name and in front of a full stop
//   .     in front of a wildcard also the end of the name: "a.*" matches "a"
//   *.*   everything, and "*." everything without a full stop
class Wildcard
{
public:
    explicit Wildcard(WideView pattern);
    bool matches(WideView name) const;

private:
    enum class Kind
    {
        unit,
        any,        // *
        anyToStop,  // * that leaves the last full stop of the name alone
        one,        // ?
        stopOrNone, // . or the end of the name
    };
    struct Item
    {
        Kind kind;
        zu_wchar unit;
    };
    void reach(std::size_t item, bool atStop, bool atEnd, HookVector<char>& states) const;

    HookVector<Item> items;
    bool matchesAll = false;
};

} // namespace zu::posix
