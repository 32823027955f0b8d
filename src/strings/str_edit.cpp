// Editing in the caller's buffer, and copying.
#include "frame/text.h"
#include "zu_Str.h"

#include <algorithm>

namespace {

using namespace zu;
using Traits = std::char_traits<zu_wchar>;

constexpr zu_wchar space = ZU_W(' ');

// Makes the string width units long; frontShare(gap) of the spaces that it lacks go before it.
template <class FrontShare>
zu_wchar* justify(zu_wchar* string, int32_t width, FrontShare frontShare)
{
    if (string == nullptr)
        return nullptr;
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    const std::size_t length = text::view(string, wanted).size();
    const std::size_t gap = wanted - length;
    const std::size_t front = frontShare(gap);
    Traits::move(string + front, string, length);
    Traits::assign(string, front, space);
    Traits::assign(string + front + length, gap - front, space);
    string[wanted] = 0;
    return string;
}

template <class Condition>
zu_wchar* removeIf(zu_wchar* string, Condition goes)
{
    if (string != nullptr) {
        zu_wchar* const end = string + Traits::length(string);
        *std::remove_if(string, end, goes) = 0;
    }
    return string;
}

template <class Conversion>
zu_wchar* convert(zu_wchar* destination, const zu_wchar* source, Conversion conversion)
{
    if (destination == nullptr)
        return nullptr;
    zu_wchar* out = destination;
    for (; source != nullptr && *source != 0; ++source)
        *out++ = conversion(*source);
    *out = 0;
    return destination;
}

} // namespace

void zu_Str_rlb(zu_wchar* string)
{
    if (string == nullptr)
        return;
    const zu_wchar* front = string;
    while (text::isSpace(*front))
        ++front;
    if (front != string)
        Traits::move(string, front, Traits::length(front) + 1);
}

void zu_Str_rtb(zu_wchar* string)
{
    if (string == nullptr)
        return;
    std::size_t length = Traits::length(string);
    while (length > 0 && text::isSpace(string[length - 1]))
        --length;
    string[length] = 0;
}

void zu_Str_delBlks(zu_wchar* string)
{
    // The back first: what is cut there need not be moved to the front.
    zu_Str_rtb(string);
    zu_Str_rlb(string);
}

void zu_Str_pad(zu_wchar* string, uint32_t width)
{
    if (string == nullptr)
        return;
    const std::size_t length = text::view(string, width).size();
    if (length == width)
        return;
    Traits::assign(string + length, width - length, space);
    string[width] = 0;
}

zu_wchar* zu_Str_lj(zu_wchar* string, int32_t width)
{
    return justify(string, width, [](std::size_t) { return std::size_t{0}; });
}

zu_wchar* zu_Str_rj(zu_wchar* string, int32_t width)
{
    return justify(string, width, [](std::size_t gap) { return gap; });
}

zu_wchar* zu_Str_cj(zu_wchar* string, int32_t width)
{
    return justify(string, width, [](std::size_t gap) { return gap / 2; });
}

void zu_Str_substr(zu_wchar* destination, const zu_wchar* source, int32_t start, int32_t count)
{
    if (destination == nullptr)
        return;
    const auto skipped = static_cast<std::size_t>(std::max(start, 1) - 1);
    const auto wanted = static_cast<std::size_t>(std::max(count, 0));
    // Only as far as needed: the source may be long, or end with the part.
    const WideView known = text::view(source, skipped + wanted);
    text::copyCut(destination, wanted, known.substr(std::min(skipped, known.size())));
}

zu_wchar* zu_Str_cpy(zu_wchar* destination, const zu_wchar* source)
{
    if (destination == nullptr)
        return nullptr;
    const WideView copied = text::view(source);
    text::copyCut(destination, copied.size(), copied);
    if (source == nullptr)
        return nullptr;
    // A second terminator is part of the contract: callers build lists of strings that end with two.
    destination[copied.size() + 1] = 0;
    return destination;
}

zu_wchar* zu_Str_cat(zu_wchar* destination, const zu_wchar* source)
{
    if (destination == nullptr || source == nullptr)
        return nullptr;
    zu_Str_cpy(destination + Traits::length(destination), source);
    return destination;
}

int32_t zu_Str_ncpy(zu_wchar* destination, const zu_wchar* source, int32_t count)
{
    if (destination == nullptr)
        return 0;
    const auto wanted = static_cast<std::size_t>(std::max(count, 0));
    const std::size_t copied = text::copyCut(destination, wanted, text::view(source, wanted));
    return source != nullptr && count >= 0 && copied == wanted;
}

zu_wchar* zu_Str_dup(const zu_wchar* string)
{
    return string == nullptr ? nullptr : text::duplicate(string);
}

zu_wchar* zu_Str_dupW(const zu_wchar* string)
{
    return zu_Str_dup(string);
}

zu_wchar* zu_Str_toLower(zu_wchar* destination, const zu_wchar* source)
{
    return convert(destination, source, text::lower);
}

void zu_Str_toUpper(zu_wchar* destination, const zu_wchar* source)
{
    convert(destination, source, text::upper);
}

zu_wchar* zu_Str_stripChar(zu_wchar* string, zu_wchar character)
{
    return removeIf(string, [=](zu_wchar unit) { return unit == character; });
}

zu_wchar* zu_Str_strip(zu_wchar* string)
{
    return zu_Str_stripChar(string, space);
}

zu_wchar* zu_Str_stripChars(zu_wchar* string, const zu_wchar* set, int32_t leadingOnly)
{
    if (set == nullptr)
        return string;
    const WideView members(set);
    bool atFront = true;
    return removeIf(string, [&, leadingOnly](zu_wchar unit) {
        const bool isMember = members.find(unit) != WideView::npos;
        atFront = atFront && isMember;
        return leadingOnly != 0 ? atFront : isMember;
    });
}
