#include "zu_Alias.h"

#include "config/alias.h"
#include "frame/guard.h"
#include "frame/text.h"

using namespace zu;

namespace {

// Made by the first zu_Alias_put; lives as long as the process.
FldList* store = nullptr;

} // namespace

WideString zu::expandAliases(WideView text)
{
    WideString out;
    while (!text.empty()) {
        const std::size_t open = text.find(ZU_W('%'));
        out += text.substr(0, open);
        if (open == WideView::npos)
            break;
        text.remove_prefix(open + 1);
        const std::size_t close = text.find(ZU_W('%'));
        if (close == WideView::npos)
            break; // a reference without its end is dropped
        const WideString name(text.substr(0, close));
        text.remove_prefix(close + 1);
        if (name.empty())
            continue; // "%%" disappears here, unlike in zu_Env_expandStr: meant
        text::Buffer<256> value;
        if (zu_Alias_get(value.units, name.c_str(), value.capacity) == 1)
            out += value.view();
        else
            out += ZU_W('%') + name + ZU_W('%');
    }
    return out;
}

int32_t zu_Alias_put(const zu_wchar* name, const zu_wchar* value)
{
    if (name == nullptr)
        return 0;
    if (store == nullptr)
        store = zu_FldList_create(nullptr);
    if (store == nullptr)
        return 0;
    return value == nullptr ? zu_FldList_delFld(store, name) : zu_FldList_modChar(store, name, value);
}

int32_t zu_Alias_del(const zu_wchar* name)
{
    return zu_Alias_put(name, nullptr);
}

int32_t zu_Alias_get(zu_wchar* buffer, const zu_wchar* name, int32_t capacity)
{
    if (buffer == nullptr)
        return 0;
    buffer[0] = 0;
    return name == nullptr || store == nullptr ? 0 : zu_FldList_getChar(store, name, buffer, capacity);
}

int32_t zu_Alias_putFromFldList(FldList* list)
{
    if (list == nullptr)
        return 0;
    for (zu_FldList_start(list); zu_FldList_eol(list) == 0; zu_FldList_next(list)) {
        text::Buffer<512> value;
        const int32_t status = zu_FldList_currChar(list, value.units, value.capacity);
        // The text of a number comes with the status "wrong type" and is as good.
        if (status == ZU_FLD_OK || status == ZU_FLD_WRONG_TYPE)
            zu_Alias_put(zu_FldList_curr(list)->name, value.units);
    }
    return 1;
}

int32_t zu_Alias_expandStr(zu_wchar* out, const zu_wchar* text, int32_t)
{
    if (out == nullptr || text == nullptr)
        return 0;
    guarded([&] {
        const WideString expanded = expandAliases(text);
        text::copyCut(out, expanded.size(), expanded);
    });
    return 0;
}
