// Comparing, searching, wildcards, versions.
#include "frame/text.h"
#include "zu_Str.h"

#include <algorithm>

namespace {

using namespace zu;

int32_t compareIgnoringCase(const zu_wchar* a, WideView textOfA, const zu_wchar* b, WideView textOfB)
{
    // Null after every text that is not empty: meant.
    if (a == nullptr)
        return textOfB.empty() ? 0 : 1;
    if (b == nullptr)
        return textOfA.empty() ? 0 : -1;
    return text::compareIgnoringCase(textOfA, textOfB);
}

zu_wchar asWritten(zu_wchar unit)
{
    return unit;
}

// Walks pattern and string once, without going back: the first place where "*" can end is the one taken.
template <class Fold>
bool matches(WideView string, WideView pattern, Fold fold)
{
    std::size_t at = 0; // may pass the end, which then counts as the end
    for (std::size_t index = 0; index < pattern.size(); ++index) {
        if (pattern[index] == ZU_W('?')) {
            ++at;
            continue;
        }
        if (pattern[index] == ZU_W('*')) {
            index = pattern.find_first_not_of(ZU_W('*'), index);
            if (index == WideView::npos)
                return true;
            // What follows "*" is literal, even a "?".
            while (at < string.size() && fold(string[at]) != fold(pattern[index]))
                ++at;
        }
        if (at >= string.size() || fold(string[at]) != fold(pattern[index]))
            return false;
        ++at;
    }
    return at >= string.size();
}

template <std::size_t Count>
int32_t isOneOf(const zu_wchar* string, const WideView (&words)[Count])
{
    const WideView wanted = text::view(string);
    return std::any_of(std::begin(words), std::end(words),
                       [=](WideView word) { return text::equalIgnoringCase(word, wanted); });
}

// Takes the next component off a version: between dots, of which several count as one. False when there is none left.
bool takeComponent(WideView& version, WideView& component)
{
    const std::size_t start = version.find_first_not_of(ZU_W('.'));
    if (start == WideView::npos)
        return false;
    const std::size_t end = std::min(version.find(ZU_W('.'), start), version.size());
    component = version.substr(start, end - start);
    version.remove_prefix(end);
    return true;
}

} // namespace

int32_t zu_Str_cmpi(const zu_wchar* a, const zu_wchar* b)
{
    return compareIgnoringCase(a, text::view(a), b, text::view(b));
}

int32_t zu_Str_ncmpi(const zu_wchar* a, const zu_wchar* b, uint32_t count)
{
    return compareIgnoringCase(a, text::view(a, count), b, text::view(b, count));
}

int32_t zu_Str_index(const zu_wchar* string, const zu_wchar* part, int32_t ignoreCase)
{
    if (string == nullptr || part == nullptr)
        return -1;
    const WideView where(string);
    const WideView wanted(part);
    if (ignoreCase == 0) {
        const std::size_t found = where.find(wanted);
        return found == WideView::npos ? -1 : static_cast<int32_t>(found);
    }
    const auto found = std::search(where.begin(), where.end(), wanted.begin(), wanted.end(),
                                   [](zu_wchar a, zu_wchar b) { return text::upper(a) == text::upper(b); });
    return found == where.end() && !wanted.empty() ? -1 : static_cast<int32_t>(found - where.begin());
}

int32_t zu_Str_matchWildcard(const zu_wchar* string, const zu_wchar* pattern)
{
    return string != nullptr && pattern != nullptr && matches(string, pattern, asWritten);
}

int32_t zu_Str_matchWildcardi(const zu_wchar* string, const zu_wchar* pattern)
{
    return string != nullptr && pattern != nullptr && matches(string, pattern, text::upper);
}

int32_t zu_Str_isAffirmative(const zu_wchar* string)
{
    static constexpr WideView words[] = {ZU_W("1"), ZU_W("TRUE"), ZU_W("YES"), ZU_W("ON")};
    return isOneOf(string, words);
}

int32_t zu_Str_isNegative(const zu_wchar* string)
{
    static constexpr WideView words[] = {ZU_W("0"), ZU_W("FALSE"), ZU_W("NO"), ZU_W("OFF")};
    return isOneOf(string, words);
}

int32_t zu_Str_compareVersion(const zu_wchar* a, const zu_wchar* b)
{
    if (a == nullptr || b == nullptr)
        return (b == nullptr) - (a == nullptr);
    WideView restOfA(a);
    WideView restOfB(b);
    if (text::equalIgnoringCase(restOfA, restOfB))
        return 0;
    // The components of a decide; what b has beyond them is not looked at: "1.2" equals "1.2.1".
    for (WideView component; takeComponent(restOfA, component);) {
        const double valueOfA = text::toDouble(component);
        const double valueOfB = takeComponent(restOfB, component) ? text::toDouble(component) : 0.0;
        // Not a number is neither, so that what follows decides.
        if (valueOfA > valueOfB)
            return 1;
        if (valueOfA < valueOfB)
            return -1;
    }
    return 0;
}
