// Words of delimited lists, and tokens.
#include "frame/text.h"
#include "zu_Str.h"

#include <algorithm>
#include <functional>

namespace {

using namespace zu;

constexpr zu_wchar space = ZU_W(' ');
constexpr zu_wchar semicolon = ZU_W(';');

// Whether a position lies in the list or on its end.
bool isInside(const zu_wchar* list, const int32_t* position)
{
    if (list == nullptr || position == nullptr || *position < 0)
        return false;
    const auto wanted = static_cast<std::size_t>(*position);
    return text::view(list, wanted).size() == wanted;
}

// Copies from the position to the delimiter or the end, and moves the position there.
void takeWord(zu_wchar* word, const zu_wchar* list, int32_t* position, zu_wchar delimiter)
{
    int32_t index = *position;
    for (; list[index] != 0 && list[index] != delimiter; ++index)
        *word++ = list[index];
    *word = 0;
    *position = index;
}

// A token of the text in a buffer, cut off in place.
template <std::size_t Capacity>
struct Token
{
    text::Buffer<Capacity> buffer;
    text::Buffer<Capacity> ownDelimiters;

    // Copies the string; false when it is too long. The delimiters, null for none, may be an earlier token in the
    // buffer.
    bool hold(const zu_wchar* string, const zu_wchar** delimiters)
    {
        const WideView whole = text::view(string, Capacity + 1);
        if (whole.size() > Capacity)
            return false;
        if (std::greater_equal<>()(*delimiters, buffer.units) &&
            std::less_equal<>()(*delimiters, buffer.units + Capacity)) {
            ownDelimiters.set(text::view(*delimiters));
            *delimiters = ownDelimiters.units;
        }
        buffer.set(whole);
        return true;
    }
    zu_wchar* cut(std::size_t start, std::size_t end, int32_t* position)
    {
        buffer.units[end] = 0;
        if (position != nullptr)
            *position = static_cast<int32_t>(start);
        return buffer.units + start;
    }
};

constexpr std::size_t longestString = 512;

} // namespace

void zu_Str_nextSDLWord(zu_wchar* word, const zu_wchar* list, int32_t* position)
{
    if (word == nullptr)
        return;
    if (!isInside(list, position)) {
        *word = 0;
        return;
    }
    while (list[*position] == space)
        ++*position;
    takeWord(word, list, position, space);
}

zu_wchar* zu_Str_nextCDLWord(zu_wchar* word, const zu_wchar* list, int32_t* position)
{
    if (word == nullptr)
        return nullptr;
    if (!isInside(list, position)) {
        *word = 0;
        return word;
    }
    // The delimiter that the call before stopped on, and only that one: two in a row hold an empty item.
    if (list[*position] == semicolon)
        ++*position;
    takeWord(word, list, position, semicolon);
    return word;
}

zu_wchar* zu_Str_getNthToken(const zu_wchar* string, const zu_wchar* delimiters, int32_t index, int32_t* position)
{
    static Token<longestString> token;
    if (position != nullptr)
        *position = -1;
    if (string == nullptr || delimiters == nullptr || index < 0 || !token.hold(string, &delimiters))
        return nullptr;
    const WideView held = token.buffer.view();
    const WideView set(delimiters);
    for (std::size_t start = held.find_first_not_of(set); start != WideView::npos; --index) {
        const std::size_t end = std::min(held.find_first_of(set, start), held.size());
        if (index == 0)
            return token.cut(start, end, position);
        start = held.find_first_not_of(set, end);
    }
    return nullptr;
}

zu_wchar* zu_Str_getRightNthToken(const zu_wchar* string, const zu_wchar* delimiters, int32_t index, int32_t* position)
{
    static Token<longestString> token;
    if (position != nullptr)
        *position = -1;
    if (string == nullptr || index < 0 || !token.hold(string, &delimiters))
        return nullptr;
    WideView held = token.buffer.view();
    const WideView set = text::view(delimiters);
    for (std::size_t last = held.find_last_not_of(set); last != WideView::npos; --index) {
        const std::size_t start = held.find_last_of(set, last) + 1; // none gives 0
        if (index == 0)
            return token.cut(start, last + 1, position);
        held = held.substr(0, start);
        last = held.find_last_not_of(set);
    }
    return nullptr;
}
