// Whole lists: appending one to another, and merging by name.
#include "fields/fldnode.h"

using namespace zu;

namespace {

// Hands a copy of the nested list to `give`, which takes it over unless there is no memory.
template <class Give>
int32_t withCopyOf(const FldNode& node, Give give)
{
    FldList* const copy = zu_FldList_copy(node.value.list);
    const int32_t result = copy == nullptr ? ZU_FLD_NO_MEMORY : give(copy);
    if (result == ZU_FLD_NO_MEMORY)
        zu_FldList_destroy(copy);
    return result;
}

// Appends a copy of a field. A string list is not carried over: it arrives as an unknown field.
int32_t appendCopy(FldList* target, const FldNode& node)
{
    switch (node.type) {
    case ZU_FLD_CHAR: return zu_FldList_appChar(target, node.name, node.value.text);
    case ZU_FLD_HANDLE: return zu_FldList_appHandle(target, node.name, node.value.text);
    case ZU_FLD_INT: return zu_FldList_appInt(target, node.name, node.value.integer);
    case ZU_FLD_LONG: return zu_FldList_appLong(target, node.name, node.value.integer);
    case ZU_FLD_REAL: return zu_FldList_appReal(target, node.name, node.value.real);
    case ZU_FLD_POINT: return zu_FldList_appPoint(target, node.name, node.value.point);
    case ZU_FLD_MPOINT: return zu_FldList_appMpoint(target, node.name, node.value.point);
    case ZU_FLD_DPOINT: return zu_FldList_appDpoint(target, node.name, node.value.point);
    case ZU_FLD_VECTOR: return zu_FldList_appVector(target, node.name, node.value.point);
    case ZU_FLD_LIST:
        return withCopyOf(node, [&](FldList* copy) { return zu_FldList_appList(target, node.name, copy); });
    default: return zu_FldList_appUnknown(target, node.name);
    }
}

// Sets a copy of a field by name, with the same rule.
int32_t modifyCopy(FldList* target, const FldNode& node)
{
    switch (node.type) {
    case ZU_FLD_CHAR: return zu_FldList_modChar(target, node.name, node.value.text);
    case ZU_FLD_HANDLE: return zu_FldList_modHandle(target, node.name, node.value.text);
    case ZU_FLD_INT: return zu_FldList_modInt(target, node.name, node.value.integer);
    case ZU_FLD_LONG: return zu_FldList_modLong(target, node.name, node.value.integer);
    case ZU_FLD_REAL: return zu_FldList_modReal(target, node.name, node.value.real);
    case ZU_FLD_POINT: return zu_FldList_modPoint(target, node.name, node.value.point);
    case ZU_FLD_MPOINT: return zu_FldList_modMpoint(target, node.name, node.value.point);
    case ZU_FLD_DPOINT: return zu_FldList_modDpoint(target, node.name, node.value.point);
    case ZU_FLD_VECTOR: return zu_FldList_modVector(target, node.name, node.value.point);
    case ZU_FLD_LIST:
        return withCopyOf(node, [&](FldList* copy) { return zu_FldList_modList(target, node.name, copy); });
    default: return zu_FldList_modUnknown(target, node.name);
    }
}

// The same within one list, where the first field of a name has its own value already.
int32_t modifyFirst(FldList* list, const FldNode& node)
{
    return zu_FldList_find(list, node.name) == &node ? ZU_FLD_OK : modifyCopy(list, node);
}

// Applies `take` to every field that source has now: it may be the target as well.
int32_t forEachField(FldList* target, FldList* source, int32_t (*take)(FldList*, const FldNode&))
{
    if (target == nullptr || source == nullptr)
        return 0;
    bool complete = true;
    const LnkNode* node = source->first;
    for (uint64_t left = source->count; left > 0 && complete; --left, node = node->next)
        complete = node->data == nullptr || take(target, *static_cast<const FldNode*>(node->data)) == ZU_FLD_OK;
    source->current = nullptr;
    return complete;
}

} // namespace

int32_t zu_FldList_concatenate(FldList* target, FldList* source)
{
    return forEachField(target, source, appendCopy);
}

int32_t zu_FldList_combine(FldList* target, FldList* source)
{
    return forEachField(target, source, target == source ? modifyFirst : modifyCopy);
}
