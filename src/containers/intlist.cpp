#include "zu_IntList.h"

#include "zu_Memory.h"

#include <cstdarg>

namespace {

int32_t destroyNode(void* data)
{
    zu_IntListNode_destroy(static_cast<IntListNode*>(data));
    return 1;
}

bool append(IntList* list, int32_t value)
{
    IntListNode* const node = zu_IntListNode_create(value);
    if (node == nullptr)
        return false;
    if (zu_LnkList_insEnd(list, node) == 1)
        return true;
    zu_IntListNode_destroy(node);
    return false;
}

// The list when it is complete; otherwise nothing is left of it.
IntList* onlyComplete(IntList* list, bool complete)
{
    if (complete)
        return list;
    zu_IntList_destroy(list);
    return nullptr;
}

} // namespace

IntList* zu_IntList_create(const int32_t* value, ...)
{
    IntList* const list = zu_LnkList_create(nullptr);
    if (list == nullptr)
        return nullptr;
    va_list arguments;
    va_start(arguments, value);
    bool complete = true;
    for (const int32_t* item = value; item != nullptr && complete; item = va_arg(arguments, const int32_t*))
        complete = append(list, *item);
    va_end(arguments);
    zu_LnkList_start(list);
    return onlyComplete(list, complete);
}

void zu_IntList_destroy(IntList* list)
{
    zu_LnkList_destroy(list, destroyNode);
}

void zu_IntList_insEnd(IntList* list, int32_t value)
{
    if (list != nullptr)
        append(list, value);
}

IntList* zu_IntList_copy(IntList* list)
{
    IntList* const copy = zu_LnkList_create(nullptr);
    if (copy == nullptr || list == nullptr)
        return copy;
    bool complete = true;
    for (const LnkNode* node = list->first; node != nullptr && complete; node = node->next) {
        // Null elements, which only the generic list operations insert, have no value to copy.
        if (const auto* const element = static_cast<const IntListNode*>(node->data))
            complete = append(copy, element->value);
    }
    return onlyComplete(copy, complete);
}

int32_t* zu_IntList_getCurr(IntList* list)
{
    auto* const node = static_cast<IntListNode*>(zu_LnkList_getCurr(list));
    return node == nullptr ? nullptr : &node->value;
}

int32_t zu_IntList_start(IntList* list)
{
    return zu_LnkList_start(list);
}

int32_t zu_IntList_next(IntList* list)
{
    return zu_LnkList_next(list);
}

int32_t zu_IntList_eol(IntList* list)
{
    return zu_LnkList_eol(list);
}

uint32_t zu_IntList_length(IntList* list)
{
    return zu_LnkList_length(list);
}

IntListNode* zu_IntListNode_create(int32_t value)
{
    auto* const node = static_cast<IntListNode*>(zu_Malloc(sizeof(IntListNode)));
    if (node != nullptr)
        node->value = value;
    return node;
}

void zu_IntListNode_destroy(IntListNode* node)
{
    zu_Free(node);
}
