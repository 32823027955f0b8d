#include "zu_LnkList.h"

#include "containers/lnklist_sort.h"
#include "frame/trace.h"

#include <cstdarg>
#include <cstddef>
#include <utility>

// Hosts and the other families read the records directly.
static_assert(offsetof(LnkList, count) == 0 && offsetof(LnkList, first) == 8 && offsetof(LnkList, last) == 16 &&
              offsetof(LnkList, current) == 24);
static_assert(offsetof(LnkNode, data) == 0 && offsetof(LnkNode, next) == 8 && offsetof(LnkNode, prev) == 16);

namespace {

LnkNode* newNode(void* data)
{
    auto* const node = static_cast<LnkNode*>(zu_Malloc(sizeof(LnkNode)));
    if (node != nullptr)
        *node = {data, nullptr, nullptr};
    return node;
}

// Links a node between two neighbours, either of which may be missing.
void link(LnkList* list, LnkNode* before, LnkNode* node, LnkNode* after)
{
    node->prev = before;
    node->next = after;
    (before == nullptr ? list->first : before->next) = node;
    (after == nullptr ? list->last : after->prev) = node;
}

void unlink(LnkList* list, LnkNode* node)
{
    (node->prev == nullptr ? list->first : node->prev->next) = node->next;
    (node->next == nullptr ? list->last : node->next->prev) = node->prev;
}

int32_t insert(LnkList* list, LnkNode* before, void* data, LnkNode* after)
{
    LnkNode* const node = newNode(data);
    if (node == nullptr)
        return 0;
    link(list, before, node, after);
    ++list->count;
    return 1;
}

} // namespace

LnkList* zu_LnkList_create(void* data, ...)
{
    ZU_TRACE(lnkList);
    auto* const list = static_cast<LnkList*>(zu_Calloc(1, sizeof(LnkList)));
    if (list == nullptr)
        return nullptr;
    va_list arguments;
    va_start(arguments, data);
    bool complete = true;
    for (void* item = data; item != nullptr && complete; item = va_arg(arguments, void*))
        complete = zu_LnkList_insEnd(list, item) == 1;
    va_end(arguments);
    if (!complete) {
        zu_LnkList_destroy(list, nullptr);
        return nullptr;
    }
    list->current = list->first;
    return list;
}

int32_t zu_LnkList_destroy(LnkList* list, zu_LnkListFreeCallback freeData)
{
    ZU_TRACE(lnkList);
    if (zu_LnkList_delAll(list, freeData) == 0)
        return 0;
    zu_Free(list);
    return 1;
}

int32_t zu_LnkList_delAll(LnkList* list, zu_LnkListFreeCallback freeData)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    LnkNode* node = list->first;
    *list = {};
    while (node != nullptr) {
        LnkNode* const next = node->next;
        if (freeData != nullptr && node->data != nullptr)
            freeData(node->data);
        zu_Free(node);
        node = next;
    }
    return 1;
}

int32_t zu_LnkList_insStart(LnkList* list, void* data)
{
    ZU_TRACE(lnkList);
    return list == nullptr ? 0 : insert(list, nullptr, data, list->first);
}

int32_t zu_LnkList_insEnd(LnkList* list, void* data)
{
    ZU_TRACE(lnkList);
    return list == nullptr ? 0 : insert(list, list->last, data, nullptr);
}

int32_t zu_LnkList_insBefore(LnkList* list, void* data)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    LnkNode* const after = list->current == nullptr ? list->first : list->current;
    if (insert(list, after == nullptr ? nullptr : after->prev, data, after) == 0)
        return 0;
    list->current = after == nullptr ? list->first : after;
    return 1;
}

int32_t zu_LnkList_insAfter(LnkList* list, void* data)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    LnkNode* const before = list->current == nullptr ? list->last : list->current;
    if (insert(list, before, data, before == nullptr ? nullptr : before->next) == 0)
        return 0;
    list->current = before == nullptr ? list->first : before;
    return 1;
}

int32_t zu_LnkList_insNth(LnkList* list, int32_t index, void* data)
{
    ZU_TRACE(lnkList);
    return zu_LnkList_getNth(list, index) != nullptr ? zu_LnkList_insBefore(list, data)
                                                     : zu_LnkList_insAfter(list, data);
}

int32_t zu_LnkList_delCurr(LnkList* list, zu_LnkListFreeCallback freeData)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || list->current == nullptr)
        return 0;
    LnkNode* const node = list->current;
    unlink(list, node);
    --list->count;
    list->current = node->next != nullptr ? node->next : node->prev;
    if (freeData != nullptr && node->data != nullptr)
        freeData(node->data);
    zu_Free(node);
    return 1;
}

int32_t zu_LnkList_delNth(LnkList* list, int32_t index, zu_LnkListFreeCallback freeData)
{
    ZU_TRACE(lnkList);
    return zu_LnkList_getNth(list, index) == nullptr ? 0 : zu_LnkList_delCurr(list, freeData);
}

int32_t zu_LnkList_start(LnkList* list)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    list->current = list->first;
    return list->current != nullptr;
}

int32_t zu_LnkList_end(LnkList* list)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    list->current = list->last;
    return list->current != nullptr;
}

int32_t zu_LnkList_skip(LnkList* list, int32_t steps)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    for (; steps > 0 && list->current != nullptr; --steps)
        list->current = list->current->next;
    for (; steps < 0 && list->current != nullptr; ++steps)
        list->current = list->current->prev;
    return list->current != nullptr;
}

int32_t zu_LnkList_next(LnkList* list)
{
    ZU_TRACE(lnkList);
    return zu_LnkList_skip(list, 1);
}

int32_t zu_LnkList_prev(LnkList* list)
{
    ZU_TRACE(lnkList);
    return zu_LnkList_skip(list, -1);
}

int32_t zu_LnkList_eol(LnkList* list)
{
    ZU_TRACE(lnkList);
    return list == nullptr || list->current == nullptr;
}

int32_t zu_LnkList_isLast(LnkList* list)
{
    ZU_TRACE(lnkList);
    return list != nullptr && list->current == list->last;
}

uint32_t zu_LnkList_length(LnkList* list)
{
    ZU_TRACE(lnkList);
    return list == nullptr ? 0 : static_cast<uint32_t>(list->count);
}

void* zu_LnkList_getCurr(LnkList* list)
{
    ZU_TRACE(lnkList);
    return list == nullptr || list->current == nullptr ? nullptr : list->current->data;
}

int32_t zu_LnkList_modCurr(LnkList* list, void* data, zu_LnkListFreeCallback freeData)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || list->current == nullptr)
        return 0;
    LnkNode* const node = list->current;
    if (freeData != nullptr && node->data != nullptr)
        freeData(node->data);
    node->data = data;
    return 1;
}

int32_t zu_LnkList_modNth(LnkList* list, int32_t index, void* data, zu_LnkListFreeCallback freeData)
{
    ZU_TRACE(lnkList);
    return zu_LnkList_getNth(list, index) == nullptr ? 0 : zu_LnkList_modCurr(list, data, freeData);
}

void* zu_LnkList_getNth(LnkList* list, int32_t index)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || index < 0)
        return nullptr;
    LnkNode* node = list->first;
    for (; node != nullptr && index > 0; --index)
        node = node->next;
    list->current = node;
    return node == nullptr ? nullptr : node->data;
}

int32_t zu_LnkList_getPos(LnkList* list)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || list->current == nullptr)
        return -1;
    int32_t index = 0;
    for (const LnkNode* node = list->current->prev; node != nullptr; node = node->prev)
        ++index;
    zu_LnkList_setPos(list, index);
    return index;
}

int32_t zu_LnkList_setPos(LnkList* list, int32_t index)
{
    ZU_TRACE(lnkList);
    if (list == nullptr)
        return 0;
    list->current = list->first;
    for (int32_t step = 0; step < index && list->current != nullptr; ++step)
        list->current = list->current->next;
    return 1;
}

void* zu_LnkList_getNthSavePos(LnkList* list, int32_t index)
{
    ZU_TRACE(lnkList);
    const int32_t saved = zu_LnkList_getPos(list);
    void* const data = zu_LnkList_getNth(list, index);
    // No current gives -1, and -1 puts the cursor on the head: meant.
    zu_LnkList_setPos(list, saved);
    return data;
}

void* zu_LnkList_search(LnkList* list, const void* key, zu_LnkListSearchCallback matches)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || matches == nullptr)
        return nullptr;
    for (list->current = list->first; list->current != nullptr; list->current = list->current->next) {
        void* const data = list->current->data;
        if (data != nullptr && matches(data, key) == 0)
            return data;
    }
    return nullptr;
}

void zu_LnkList_sort(LnkList* list, zu_LnkListCompareCallback compare)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || compare == nullptr)
        return;
    for (LnkNode* node = list->first; node != nullptr; node = node->next) {
        if (node->data == nullptr)
            continue;
        LnkNode* smallest = node;
        for (LnkNode* candidate = node->next; candidate != nullptr; candidate = candidate->next) {
            if (candidate->data != nullptr && compare(candidate->data, smallest->data) < 0)
                smallest = candidate;
        }
        if (smallest != node)
            std::swap(node->data, smallest->data);
    }
}

void zu_LnkList_qSort(LnkList* list, zu_LnkListCompareCallback compare)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || compare == nullptr || zu_LnkList_findPivot(list, compare) == nullptr)
        return;
    if (zu::holdsNull(*list))
        zu::sortByFirstPivots(*list, compare);
    else if (!zu::sortGathered(*list, compare))
        zu::sortInPlace(*list, compare);
    list->current = nullptr;
}

void* zu_LnkList_findPivot(LnkList* list, zu_LnkListCompareCallback compare)
{
    ZU_TRACE(lnkList);
    return list == nullptr || compare == nullptr ? nullptr : zu::pivotOf(list->first, compare);
}

void zu_LnkList_partition(LnkList* list, LnkList* left, LnkList* right, void* pivot, zu_LnkListCompareCallback compare)
{
    ZU_TRACE(lnkList);
    if (list == nullptr || left == nullptr || right == nullptr || compare == nullptr)
        return;
    if (left == right || left == list || right == list)
        return;
    zu::partitionChain(*list, *left, *right, pivot, compare);
    list->current = nullptr;
}

int32_t zu_LnkList_join(LnkList* a, LnkList* b)
{
    ZU_TRACE(lnkList);
    if (a == nullptr || b == nullptr || a == b)
        return 0;
    if (b->first != nullptr && b->last != nullptr) {
        (a->last == nullptr ? a->first : a->last->next) = b->first;
        b->first->prev = a->last;
        a->last = b->last;
        a->count += b->count;
    }
    zu_LnkList_start(a);
    *b = {};
    zu_LnkList_destroy(b, nullptr);
    return 1;
}

int32_t zu_LnkList_move(LnkList* list, int32_t from, int32_t to)
{
    ZU_TRACE(lnkList);
    const auto length = static_cast<int64_t>(zu_LnkList_length(list));
    if (from < 0 || to < 0 || from >= length || to >= length)
        return 0;
    if (from == to)
        return 1;
    zu_LnkList_getNth(list, to);
    LnkNode* const target = list->current;
    zu_LnkList_getNth(list, from);
    LnkNode* const node = list->current;
    unlink(list, node);
    if (from > to)
        link(list, target->prev, node, target);
    else
        link(list, target, node, target->next);
    return 1;
}
