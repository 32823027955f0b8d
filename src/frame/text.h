// The text kit: what the library does with wide text apart from formatting (format.h) and converting (utf8.h).
// Case folding is that of the runtime's default locale, the ASCII letters, whatever the process locale is.
#pragma once

#include "platform/wide.h"

#include <cstdint>

namespace zu::text {

// A view of a terminated text; null gives the empty view.
inline WideView view(const zu_wchar* text)
{
    return text == nullptr ? WideView() : WideView(text);
}

// At most limit units of a text, which need not be terminated when it has as many; null gives the empty view.
inline WideView view(const zu_wchar* text, std::size_t limit)
{
    std::size_t length = 0;
    while (text != nullptr && length < limit && text[length] != 0)
        ++length;
    return WideView(text, length);
}

constexpr zu_wchar upper(zu_wchar unit)
{
    return unit >= ZU_W('a') && unit <= ZU_W('z') ? static_cast<zu_wchar>(unit - 0x20) : unit;
}

constexpr zu_wchar lower(zu_wchar unit)
{
    return unit >= ZU_W('A') && unit <= ZU_W('Z') ? static_cast<zu_wchar>(unit + 0x20) : unit;
}

constexpr bool isDigit(zu_wchar unit)
{
    return unit >= ZU_W('0') && unit <= ZU_W('9');
}

// White space as the Windows runtime sees it: the ASCII controls and blanks, and the spaces of Unicode.
constexpr bool isSpace(zu_wchar unit)
{
    return unit == 0x20 || (unit >= 0x09 && unit <= 0x0D) || unit == 0x85 || unit == 0xA0 || unit == 0x1680 ||
           (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 || unit == 0x2029 || unit == 0x202F || unit == 0x205F ||
           unit == 0x3000;
}

WideView trimmed(WideView text);

// Ordinal comparison of the 16-bit units: negative, 0 or positive.
int compare(WideView a, WideView b);

// The same with both sides folded; orders by the upper-cased units.
int compareIgnoringCase(WideView a, WideView b);
inline bool equalIgnoringCase(WideView a, WideView b)
{
    return a.size() == b.size() && compareIgnoringCase(a, b) == 0;
}

// A hash that agrees with equalIgnoringCase (or with equality, when ignoreCase is false).
std::size_t hash(WideView text, bool ignoreCase);

void makeUpper(zu_wchar* text);
void makeLower(zu_wchar* text);

// Copies at most capacity units and terminates: out needs room for capacity + 1. Returns the units copied.
std::size_t copyCut(zu_wchar* out, std::size_t capacity, WideView text);

// A buffer of the library's own for Capacity units and a terminator; what does not fit is cut.
template <std::size_t Capacity>
struct Buffer
{
    static constexpr std::size_t capacity = Capacity;
    zu_wchar units[Capacity + 1] = {};

    zu_wchar* set(WideView text)
    {
        copyCut(units, Capacity, text);
        return units;
    }
    zu_wchar* clear()
    {
        units[0] = 0;
        return units;
    }
    WideView view() const { return WideView(units); }
};

// A buffer as it fills, piece by piece; what does not fit is dropped.
template <std::size_t Capacity>
class Filling
{
public:
    void add(WideView text) { length += copyCut(buffer.units + length, Capacity - length, text); }
    void add(zu_wchar unit, std::size_t count = 1)
    {
        for (; count > 0 && length < Capacity; --count)
            buffer.units[length++] = unit;
        buffer.units[length] = 0;
    }
    bool isFull() const { return length == Capacity; }
    WideView view() const { return WideView(buffer.units, length); }

private:
    Buffer<Capacity> buffer;
    std::size_t length = 0;
};

// A terminated copy from zu_Malloc; null when there is no memory.
zu_wchar* duplicate(WideView text);

// The number at the front of text, after white space, as the runtime's conversions read it in the "C" locale; 0 when
// there is none. Integers beyond the range give its nearest end, reals beyond it an infinity.
std::int32_t toInt(WideView text);
double toDouble(WideView text);

// ASCII text as wide text.
WideString widen(std::string_view ascii);

} // namespace zu::text
