#include "containers/strlist.h"

#include "frame/guard.h"
#include "frame/trace.h"
#include "zu_Str.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <unordered_set>

static_assert(sizeof(StrListNode) == 8 && offsetof(StrListNode, string) == 0);

namespace {

using namespace zu;

constexpr std::size_t itemSize = 512;

StrListNode* createNode(WideView string)
{
    ZU_TRACE_AS(strList, "zu_StrListNode_create");
    HookPtr<StrListNode> node(static_cast<StrListNode*>(zu_Malloc(sizeof(StrListNode))));
    if (node == nullptr)
        return nullptr;
    node->string = text::duplicate(string);
    return node->string == nullptr ? nullptr : node.release();
}

int32_t destroyNode(void* data)
{
    // Its exit line says "Entering" as well: that is how it is meant.
    ZU_TRACE_EXIT_AS(strList, "zu_StrListNode_destroy", "Entering", "zu_StrListNode_destroy");
    auto* const node = static_cast<StrListNode*>(data);
    if (node == nullptr)
        return 0;
    zu_Free(node->string);
    zu_Free(node);
    return 1;
}

// Inserts a copy of string with one of the list's insertions.
template <class Insertion>
int32_t insertCopy(StrList* list, WideView string, Insertion insertion)
{
    StrListNode* const node = createNode(string);
    if (node == nullptr)
        return 0;
    if (insertion(list, node) == 1)
        return 1;
    destroyNode(node);
    return 0;
}

template <class Insertion>
int32_t insertCopy(StrList* list, const zu_wchar* string, Insertion insertion)
{
    return list == nullptr || string == nullptr ? 0 : insertCopy(list, WideView(string), insertion);
}

int32_t compareNodes(const void* a, const void* b)
{
    // Elements that the list's own insertions did not make may be null.
    const auto stringOfData = [](const void* data) {
        return data == nullptr ? WideView() : text::view(static_cast<const StrListNode*>(data)->string);
    };
    return text::compare(stringOfData(a), stringOfData(b));
}

bool areEqual(WideView a, WideView b, bool ignoreCase)
{
    return ignoreCase ? text::equalIgnoringCase(a, b) : a == b;
}

// Sets of strings under either equality.
struct StringHash
{
    bool ignoreCase;
    std::size_t operator()(WideView string) const { return text::hash(string, ignoreCase); }
};
struct StringEqual
{
    bool ignoreCase;
    bool operator()(WideView a, WideView b) const { return areEqual(a, b, ignoreCase); }
};
using StringSet = std::unordered_set<WideView, StringHash, StringEqual, HookAllocator<WideView>>;

// Appends copies of b's elements to a; false when memory runs out.
bool appendAll(StrList* a, const StrList* b)
{
    // Counted first: a list appended to itself must not chase its own end.
    const LnkNode* node = b->first;
    for (uint64_t left = b->count; left > 0; --left, node = node->next) {
        if (!appendString(a, stringOf(node)))
            return false;
    }
    return true;
}

// Joins count elements from node on; null without memory.
zu_wchar* join(const LnkNode* node, std::size_t count, WideView delimiter, bool quote)
{
    WideString joined;
    for (std::size_t index = 0; index < count; ++index, node = node->next) {
        if (index > 0)
            joined += delimiter;
        if (quote)
            joined += ZU_W('\'');
        joined += stringOf(node);
        if (quote)
            joined += ZU_W('\'');
    }
    return text::duplicate(joined);
}

} // namespace

bool zu::appendString(StrList* list, WideView text)
{
    return insertCopy(list, text, zu_LnkList_insEnd) == 1;
}

StrList* zu_StrList_create(const zu_wchar* string, ...)
{
    StrList* const list = zu_LnkList_create(nullptr);
    if (list == nullptr)
        return nullptr;
    va_list arguments;
    va_start(arguments, string);
    bool complete = true;
    for (const zu_wchar* item = string; item != nullptr && complete; item = va_arg(arguments, const zu_wchar*))
        complete = zu_StrList_insEnd(list, item) == 1;
    va_end(arguments);
    if (!complete) {
        zu_StrList_destroy(list);
        return nullptr;
    }
    zu_LnkList_start(list);
    return list;
}

int32_t zu_StrList_destroy(StrList* list)
{
    return zu_LnkList_destroy(list, destroyNode);
}

int32_t zu_StrList_delAll(StrList* list)
{
    return zu_LnkList_delAll(list, destroyNode);
}

int32_t zu_StrList_insStart(StrList* list, const zu_wchar* string)
{
    return insertCopy(list, string, zu_LnkList_insStart);
}

int32_t zu_StrList_insEnd(StrList* list, const zu_wchar* string)
{
    return insertCopy(list, string, zu_LnkList_insEnd);
}

int32_t zu_StrList_insBefore(StrList* list, const zu_wchar* string)
{
    return insertCopy(list, string, zu_LnkList_insBefore);
}

int32_t zu_StrList_insAfter(StrList* list, const zu_wchar* string)
{
    ZU_TRACE(strList);
    return insertCopy(list, string, zu_LnkList_insAfter);
}

int32_t zu_StrList_insNth(StrList* list, int32_t index, const zu_wchar* string)
{
    ZU_TRACE(strList);
    return insertCopy(list, string,
                      [index](LnkList* into, void* node) { return zu_LnkList_insNth(into, index, node); });
}

int32_t zu_StrList_insSorted(StrList* list, const zu_wchar* string)
{
    ZU_TRACE(strList);
    if (list == nullptr || string == nullptr)
        return 0;
    const WideView wanted(string);
    for (zu_LnkList_start(list); list->current != nullptr; zu_LnkList_next(list)) {
        if (text::compare(stringOf(list->current), wanted) > 0)
            return insertCopy(list, wanted, zu_LnkList_insBefore);
    }
    return insertCopy(list, wanted, zu_LnkList_insEnd);
}

int32_t zu_StrList_delCurr(StrList* list)
{
    return zu_LnkList_delCurr(list, destroyNode);
}

int32_t zu_StrList_delNth(StrList* list, int32_t index)
{
    return zu_LnkList_delNth(list, index, destroyNode);
}

int32_t zu_StrList_modCurr(StrList* list, const zu_wchar* string)
{
    ZU_TRACE(strList);
    if (zu_LnkList_eol(list) == 1)
        return 0;
    return insertCopy(list, string, [](LnkList* in, void* node) { return zu_LnkList_modCurr(in, node, destroyNode); });
}

int32_t zu_StrList_modNth(StrList* list, int32_t index, const zu_wchar* string)
{
    ZU_TRACE(strList);
    // Not through zu_StrList_getNth: the string may lie in the static buffer.
    return zu_LnkList_getNth(list, index) == nullptr ? 0 : zu_StrList_modCurr(list, string);
}

zu_wchar* zu_StrList_getCurr(StrList* list)
{
    static text::Buffer<itemSize> item;
    static zu_wchar* last = nullptr;
    const LnkNode* const node = list == nullptr ? nullptr : list->current;
    // Without a current element the result of the call before is given again: callers test eol.
    if (node != nullptr)
        last = item.set(stringOf(node));
    return last;
}

zu_wchar* zu_StrList_getCurrPtr(StrList* list)
{
    static zu_wchar* last = nullptr;
    const LnkNode* const node = list == nullptr ? nullptr : list->current;
    if (node != nullptr)
        last = text::duplicate(stringOf(node));
    return last;
}

zu_wchar* zu_StrList_getNth(StrList* list, int32_t index)
{
    return zu_LnkList_getNth(list, index) == nullptr ? nullptr : zu_StrList_getCurr(list);
}

uint32_t zu_StrList_count(StrList* list)
{
    return zu_LnkList_length(list);
}

uint32_t zu_StrList_length(StrList* list)
{
    return zu_LnkList_length(list);
}

int32_t zu_StrList_start(StrList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_StrList_end(StrList* list)
{
    return zu_LnkList_end(list);
}

int32_t zu_StrList_next(StrList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_StrList_prev(StrList* list)
{
    return zu_LnkList_prev(list);
}

int32_t zu_StrList_skip(StrList* list, int32_t steps)
{
    return zu_LnkList_skip(list, steps);
}

int32_t zu_StrList_eol(StrList* list)
{
    return zu_LnkList_eol(list);
}

void zu_StrList_sort(StrList* list)
{
    zu_LnkList_qSort(list, compareNodes);
}

int32_t zu_StrList_search(StrList* list, const zu_wchar* string, int32_t ignoreCase)
{
    ZU_TRACE(strList);
    if (list == nullptr || string == nullptr)
        return -1;
    const WideView wanted(string);
    int32_t index = 0;
    for (zu_LnkList_start(list); list->current != nullptr; zu_LnkList_next(list), ++index) {
        if (areEqual(stringOf(list->current), wanted, ignoreCase != 0))
            return index;
    }
    return -1;
}

zu_wchar* zu_StrList_searchForString(StrList* list, const zu_wchar* part, int32_t ignoreCase)
{
    ZU_TRACE(strList);
    static text::Buffer<itemSize> found;
    if (list == nullptr || part == nullptr)
        return nullptr;
    for (zu_LnkList_start(list); list->current != nullptr; zu_LnkList_next(list)) {
        const WideView string = stringOf(list->current);
        if (zu_Str_index(string.data(), part, ignoreCase) >= 0)
            return found.set(string);
    }
    return nullptr;
}

StrList* zu_StrList_copy(StrList* list)
{
    ZU_TRACE(strList);
    StrList* const copy = zu_StrList_create(nullptr);
    if (copy == nullptr || list == nullptr)
        return copy;
    list->current = nullptr;
    if (appendAll(copy, list))
        return copy;
    zu_StrList_destroy(copy);
    return nullptr;
}

int32_t zu_StrList_concatenate(StrList* a, StrList* b)
{
    ZU_TRACE(strList);
    if (a == nullptr || b == nullptr)
        return 0;
    b->current = nullptr;
    return appendAll(a, b);
}

StrList* zu_StrList_removeDuplicates(StrList* list, uint8_t ignoreCase)
{
    if (list == nullptr || list->count <= 1)
        return list;
    StrList* const kept = zu_StrList_create(nullptr);
    const bool complete = kept != nullptr && guarded(false, [&] {
                              const bool folded = ignoreCase != 0;
                              StringSet seen(list->count, StringHash{folded}, StringEqual{folded});
                              for (const LnkNode* node = list->first; node != nullptr; node = node->next) {
                                  if (seen.insert(stringOf(node)).second && !appendString(kept, stringOf(node)))
                                      return false;
                              }
                              return true;
                          });
    // The copy goes when it is not whole, the original otherwise.
    zu_StrList_destroy(complete ? list : kept);
    return complete ? kept : list;
}

StrList* zu_StrList_fromDelimitedString(const zu_wchar* string, const zu_wchar* delimiters)
{
    if (string == nullptr || delimiters == nullptr)
        return nullptr;
    const WideView text(string);
    const WideView set(delimiters);
    StrList* const list = zu_StrList_create(nullptr);
    bool complete = list != nullptr;
    for (std::size_t start = text.find_first_not_of(set); complete && start < text.size();) {
        const std::size_t end = std::min(text.find_first_of(set, start), text.size());
        complete = appendString(list, text::trimmed(text.substr(start, end - start)));
        start = text.find_first_not_of(set, end);
    }
    if (!complete || list->count == 0) {
        zu_StrList_destroy(list);
        return nullptr;
    }
    return list;
}

zu_wchar* zu_StrList_toDelimitedString(StrList* list, const zu_wchar* delimiter)
{
    if (list == nullptr || list->count == 0)
        return nullptr;
    list->current = nullptr;
    return guarded<zu_wchar*>(nullptr, [&] { return join(list->first, list->count, text::view(delimiter), false); });
}

StrList* zu_StrList_toDelimitedStringList(StrList* list, const zu_wchar* delimiter, int32_t groupSize, int32_t quote)
{
    if (list == nullptr || list->count == 0)
        return nullptr;
    list->current = nullptr;
    StrList* const groups = zu_StrList_create(nullptr);
    const std::size_t size = groupSize > 0 ? static_cast<std::size_t>(groupSize) : list->count;
    const bool complete = groups != nullptr && guarded(false, [&] {
                              const LnkNode* node = list->first;
                              for (std::size_t left = list->count; left > 0;) {
                                  const std::size_t count = std::min(size, left);
                                  const WidePtr joined(join(node, count, text::view(delimiter), quote != 0));
                                  if (joined == nullptr || zu_StrList_insEnd(groups, joined.get()) == 0)
                                      return false;
                                  for (std::size_t step = 0; step < count; ++step)
                                      node = node->next;
                                  left -= count;
                              }
                              return true;
                          });
    if (!complete) {
        zu_StrList_destroy(groups);
        return nullptr;
    }
    return groups;
}
