// The registries of handles and tags.
#include "db/registry.h"
#include "db/resultset.h"
#include "frame/format.h"
#include "zu_Cb.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

static_assert(offsetof(DbRefNode, path) == 0 && offsetof(DbRefNode, statement) == 8 &&
              offsetof(DbRefNode, connection) == 16 && offsetof(DbRefNode, fields) == 24 &&
              offsetof(DbRefNode, recordNumber) == 32 && offsetof(DbRefNode, mode) == 36 &&
              offsetof(DbRefNode, number) == 40);
static_assert(offsetof(DbTagRefNode, name) == 0 && offsetof(DbTagRefNode, expression) == 8 &&
              offsetof(DbTagRefNode, handle) == 16 && offsetof(DbTagRefNode, number) == 20);

using namespace zu;
using namespace zu::db;

namespace {

// Lists of DbRefNode and DbTagRefNode in the order of their making; null before the first use.
LnkList* handles = nullptr;
LnkList* tags = nullptr;

int32_t freeRecord(void* record)
{
    zu_DbRefNode_free(static_cast<DbRefNode*>(record));
    return 1;
}

int32_t freeTag(void* tag)
{
    zu_Free(tag);
    return 1;
}

// The first node with a number, which becomes the current one of the list. By hand, because every operation on a table
// begins with it.
template <class Node>
Node* findNumber(LnkList* list, int32_t number)
{
    for (LnkNode* place = list == nullptr ? nullptr : list->first; place != nullptr; place = place->next) {
        auto* const node = static_cast<Node*>(place->data);
        if (node->number == number) {
            list->current = place;
            return node;
        }
    }
    return nullptr;
}

// The number for a new node: the largest of a list plus step, or first; -1 when there is none left.
template <class Node>
int32_t nextNumber(const LnkList& list, int32_t first, int32_t step)
{
    std::int64_t next = first;
    for (const LnkNode* node = list.first; node != nullptr; node = node->next)
        next = std::max(next, std::int64_t{static_cast<const Node*>(node->data)->number} + step);
    return next > std::numeric_limits<int32_t>::max() ? -1 : static_cast<int32_t>(next);
}

// Tags are numbered in hundreds, and any number of its hundred names a tag.
int32_t tagNumber(int32_t number)
{
    return number / 100 * 100;
}

} // namespace

bool zu::db::createRegistries()
{
    for (LnkList** list : {&handles, &tags}) {
        if (*list == nullptr)
            *list = zu_LnkList_create(nullptr);
    }
    return handles != nullptr && tags != nullptr;
}

void zu::db::destroyRegistries()
{
    zu_LnkList_destroy(std::exchange(handles, nullptr), freeRecord);
    zu_LnkList_destroy(std::exchange(tags, nullptr), freeTag);
}

const LnkNode* zu::db::firstTag()
{
    return tags == nullptr ? nullptr : tags->first;
}

int32_t zu_DbRef_add(const zu_wchar* path)
{
    if (!createRegistries())
        return -1;
    const int32_t number = nextNumber<DbRefNode>(*handles, 0, 1);
    DbRefNode* const record = number < 0 ? nullptr : zu_DbRefNode_create(path, number);
    if (record == nullptr)
        return -1;
    if (zu_LnkList_insEnd(handles, record) == 1)
        return number;
    zu_DbRefNode_free(record);
    return -1;
}

DbRefNode* zu_DbRef_sel(int32_t handle)
{
    return zu_DbRefNode_find(handle);
}

int32_t zu_DbRef_del(int32_t handle)
{
    return zu_DbRefNode_find(handle) == nullptr ? 0 : zu_LnkList_delCurr(handles, freeRecord);
}

int32_t zu_DbRef_delTags(int32_t)
{
    // It has always compared the handle with the address of each tag's expression, which no handle equals: meant to
    // stay.
    return 0;
}

DbRefNode* zu_DbRefNode_create(const zu_wchar* path, int32_t number)
{
    if (path == nullptr)
        return nullptr;
    HookPtr<DbRefNode> record(static_cast<TableRecord*>(zu_Calloc(1, sizeof(TableRecord))));
    if (record == nullptr)
        return nullptr;
    record->path = text::duplicate(path);
    record->number = number;
    return record->path == nullptr ? nullptr : record.release();
}

DbRefNode* zu_DbRefNode_find(int32_t number)
{
    return findNumber<DbRefNode>(handles, number);
}

void zu_DbRefNode_free(DbRefNode* record)
{
    if (record == nullptr)
        return;
    giveBack(record->connection);
    zu_Free(record->path);
    zu_DbFldList_destroy(record->fields);
    zu_Free(record);
}

int32_t zu_DbTagRef_add(int32_t handle, const zu_wchar* name, const zu_wchar* expression)
{
    if (!createRegistries())
        return -1;
    const int32_t number = nextNumber<DbTagRefNode>(*tags, 100, 100);
    DbTagRefNode* const tag = number < 0 ? nullptr : zu_DbTagRefNode_create(name, expression, number, handle);
    if (tag == nullptr)
        return -1;
    if (zu_LnkList_insEnd(tags, tag) == 1)
        return number;
    zu_Free(tag);
    return -1;
}

DbTagRefNode* zu_DbTagRef_selNdx(int32_t number)
{
    return findNumber<DbTagRefNode>(tags, tagNumber(number));
}

int32_t zu_DbTagRef_del(int32_t number)
{
    return zu_DbTagRef_selNdx(number) == nullptr ? 0 : zu_LnkList_delCurr(tags, freeTag);
}

int32_t zu_DbTagRef_update(int32_t, const zu_wchar*)
{
    // As in zu_DbRef_delTags: the comparison never meets, and that stays.
    return 0;
}

CbTag* zu_DbTagRef_sel(CbDataFile* file, int32_t number)
{
    if (number < 0)
        return nullptr;
    const struct
    {
        const zu_wchar* pattern;
        int32_t number;
    } names[] = {{ZU_W("TAG%03d"), number % 100}, {ZU_W("TAG%03d"), number}, {ZU_W("TAG%04d"), number % 100}};
    for (const auto& name : names) {
        zu_wchar text[16];
        formatInto(text, name.pattern, name.number);
        if (CbTag* const tag = zu_Cb_findTag(file, text))
            return tag;
    }
    return nullptr;
}

DbTagRefNode* zu_DbTagRefNode_create(const zu_wchar* name, const zu_wchar* expression, int32_t number, int32_t handle)
{
    auto* const tag = static_cast<DbTagRefNode*>(zu_Malloc(sizeof(DbTagRefNode)));
    if (tag != nullptr)
        *tag = {name, expression, handle, number};
    return tag;
}
