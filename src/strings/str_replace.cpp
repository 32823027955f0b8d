// Replacing texts and keywords.
#include "frame/guard.h"
#include "frame/text.h"
#include "zu_Str.h"

namespace {

using namespace zu;

// The text with the first delimiter + name + delimiter replaced by the value.
WideString withValue(WideView text, WideView name, WideView delimiter, WideView value)
{
    WideString token;
    token.reserve(name.size() + 2 * delimiter.size());
    token.append(delimiter).append(name).append(delimiter);
    WideString result;
    const std::size_t found = text.find(token);
    if (found == WideView::npos)
        return result.append(text);
    result.reserve(text.size() - token.size() + value.size());
    return result.append(text.substr(0, found)).append(value).append(text.substr(found + token.size()));
}

} // namespace

zu_wchar* zu_Str_replaceChar(const zu_wchar* string, const zu_wchar* find, const zu_wchar* replacement)
{
    constexpr std::size_t resultSize = 511;
    static text::Buffer<resultSize> result;
    const WideView wanted = text::view(find);
    WideView rest = text::view(string);
    // Built aside: an argument may be the result of the call before.
    text::Filling<resultSize> made;
    while (!rest.empty() && !made.isFull()) {
        const std::size_t found = wanted.empty() ? WideView::npos : rest.find(wanted);
        made.add(rest.substr(0, found));
        if (found == WideView::npos)
            break;
        made.add(text::view(replacement));
        rest.remove_prefix(found + wanted.size());
    }
    return result.set(made.view());
}

zu_wchar* zu_Str_locateKeyword(const zu_wchar* text, const zu_wchar* keyword)
{
    static text::Buffer<256> result;
    const WideView where = text::view(text);
    const WideView wanted = text::view(keyword);
    const std::size_t first = wanted.empty() ? WideView::npos : where.find(wanted);
    if (first == WideView::npos)
        return nullptr;
    const std::size_t start = first + wanted.size();
    const std::size_t second = where.find(wanted, start);
    return second == WideView::npos ? nullptr : result.set(where.substr(start, second - start));
}

zu_wchar* zu_Str_replaceKeyword(zu_wchar* text, const zu_wchar* name, const zu_wchar* delimiter, const zu_wchar* value,
                                int32_t maximum)
{
    if (text == nullptr || name == nullptr || delimiter == nullptr || value == nullptr)
        return nullptr;
    return guarded<zu_wchar*>(nullptr, [&] {
        zu_Str_ncpy(text, withValue(text, name, delimiter, value).c_str(), maximum);
        return text;
    });
}

zu_wchar* zu_Str_replaceKeywordDynamic(const zu_wchar* text, const zu_wchar* name, const zu_wchar* delimiter,
                                       const zu_wchar* value)
{
    if (text == nullptr || name == nullptr || delimiter == nullptr || value == nullptr)
        return nullptr;
    return guarded<zu_wchar*>(nullptr, [&] { return text::duplicate(withValue(text, name, delimiter, value)); });
}
