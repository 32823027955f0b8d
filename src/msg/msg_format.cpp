#include "frame/format.h"
#include "frame/text.h"
#include "zu_Msg.h"
#include "zu_Str.h"

#include <algorithm>
#include <bit>

namespace {

using namespace zu;

constexpr std::size_t textSize = 512;

// The unit for the character behind a backslash; 0 for those that give none.
zu_wchar simpleEscape(zu_wchar letter)
{
    switch (letter) {
    case ZU_W('"'):
    case ZU_W('\''):
    case ZU_W('\\'): return letter;
    case ZU_W('a'): return 7;
    case ZU_W('f'): return 12;
    case ZU_W('n'): return 10;
    case ZU_W('r'): return 13;
    case ZU_W('t'): return 9;
    default: return 0;
    }
}

} // namespace

zu_wchar* zu_Msg_scanEsc(zu_wchar* text)
{
    if (text == nullptr)
        return nullptr;
    text::Buffer<textSize> expanded;
    std::size_t length = 0;
    const auto put = [&](zu_wchar unit) {
        if (length < textSize)
            expanded.units[length++] = unit;
    };
    // Not cleared between two numbers of a text: their bits carry over, as documented.
    uint32_t accumulator = 0;
    for (WideView rest(text); !rest.empty();) {
        const zu_wchar unit = rest.front();
        rest.remove_prefix(1);
        if (unit != ZU_W('\\')) {
            put(unit);
        } else if (!rest.empty() && text::isDigit(rest.front())) {
            for (int digits = 0; digits < 3 && !rest.empty() && text::isDigit(rest.front()); ++digits) {
                accumulator = std::rotl(accumulator, 3) + static_cast<uint32_t>(rest.front() - ZU_W('0'));
                rest.remove_prefix(1);
            }
            put(static_cast<zu_wchar>(accumulator & 0xFFFF));
        } else if (!rest.empty()) {
            const zu_wchar escaped = simpleEscape(rest.front());
            rest.remove_prefix(1);
            if (escaped != 0)
                put(escaped);
        }
    }
    // An escape can give a zero, which ends the text.
    text::copyCut(text, textSize, expanded.view());
    return text;
}

zu_wchar* zu_Msg_format(const zu_wchar* text, int32_t mode)
{
    static text::Buffer<textSize> result;
    static constexpr const zu_wchar* layouts[] = {ZU_W("%s "),   ZU_W("\n%s"),   ZU_W("\n%s "),  ZU_W("%s\n"),
                                                  ZU_W("%s \n"), ZU_W("\n%s\n"), ZU_W("\n%s \n")};
    text::Buffer<textSize> expanded;
    expanded.set(text::view(text));
    zu_Msg_scanEsc(expanded.units);
    if (mode >= 2 && mode <= 8)
        formatInto(result.units, layouts[mode - 2], expanded.view());
    else
        result.set(expanded.view());
    return result.units;
}

int32_t zu_Msg_setFormat(int32_t number)
{
    return number >= 1 && number <= 7 ? number + 1 : 1;
}

int32_t zu_Msg_breakStr(const zu_wchar* text, zu_wchar* first, zu_wchar* second)
{
    const WideView whole = text::view(text).substr(0, textSize);
    const WideView separators = ZU_W(" _");
    const auto wordFrom = [&](std::size_t from) {
        const std::size_t start = std::min(whole.find_first_not_of(separators, from), whole.size());
        return whole.substr(start, whole.find_first_of(separators, start) - start);
    };
    const WideView one = wordFrom(0);
    if (one.empty())
        return 0;
    const WideView two = wordFrom(static_cast<std::size_t>(one.data() - whole.data()) + one.size());
    // Both are found before either is written: a buffer may be the text itself.
    text::Buffer<textSize> words[2];
    words[0].set(one);
    words[1].set(two);
    for (text::Buffer<textSize>& word : words)
        zu_Str_delBlks(word.units);
    if (first != nullptr)
        text::copyCut(first, textSize, words[0].view());
    if (words[0].view().empty() || two.empty())
        return 0;
    if (second != nullptr)
        text::copyCut(second, textSize, words[1].view());
    return words[1].view().empty() ? 0 : 1;
}
