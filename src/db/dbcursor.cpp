#include "db/dbfld.h"
#include "zu_DbCursor.h"

#include <cstddef>

static_assert(offsetof(DbCursorNode, fields) == 0 && offsetof(DbCursorNode, tableName) == 8);

using namespace zu;
using namespace zu::db;

namespace {

int32_t destroyRow(void* row)
{
    zu_DbCursorNode_destroy(static_cast<DbCursorNode*>(row));
    return 1;
}

struct CursorDeleter
{
    void operator()(DbCursor* cursor) const noexcept { zu_DbCursor_destroy(cursor); }
};

// Frees a row that did not take over its field list.
int32_t discardRow(DbCursorNode* row)
{
    row->fields = nullptr;
    zu_DbCursorNode_destroy(row);
    return 0;
}

int32_t insertRow(DbCursor* cursor, int32_t (*insertion)(LnkList*, void*), const zu_wchar* tableName, DbFldList* fields)
{
    DbCursorNode* const row = cursor == nullptr ? nullptr : zu_DbCursorNode_create(tableName, fields);
    if (row == nullptr)
        return 0;
    return insertion(cursor, row) == 1 ? 1 : discardRow(row);
}

// The table name of a row; without a row the one that was remembered, which may have been freed: callers test for the
// row, not for the name.
zu_wchar* nameOrLast(const DbCursorNode* row, zu_wchar*& last)
{
    if (row != nullptr)
        last = row->tableName;
    return last;
}

DbCursorNode* currentRow(DbCursor* cursor)
{
    return static_cast<DbCursorNode*>(zu_LnkList_getCurr(cursor));
}

} // namespace

DbCursorNode* zu_DbCursorNode_create(const zu_wchar* tableName, DbFldList* fields)
{
    auto* const row = static_cast<DbCursorNode*>(zu_Calloc(1, sizeof(DbCursorNode)));
    if (row == nullptr)
        return nullptr;
    if (tableName != nullptr && (row->tableName = text::duplicate(tableName)) == nullptr) {
        zu_Free(row);
        return nullptr;
    }
    row->fields = fields;
    return row;
}

DbCursorNode* zu_DbCursorNode_destroy(DbCursorNode* node)
{
    if (node != nullptr) {
        zu_DbFldList_destroy(node->fields);
        zu_Free(node->tableName);
        zu_Free(node);
    }
    return nullptr;
}

DbCursor* zu_DbCursor_create(void)
{
    return zu_LnkList_create(nullptr);
}

DbCursor* zu_DbCursor_copy(DbCursor* cursor)
{
    std::unique_ptr<DbCursor, CursorDeleter> copy;
    for (const LnkNode* node = cursor == nullptr ? nullptr : cursor->first; node != nullptr; node = node->next) {
        const auto* const row = static_cast<const DbCursorNode*>(node->data);
        if (row == nullptr || row->tableName == nullptr || row->fields == nullptr)
            continue;
        if (copy == nullptr)
            copy.reset(zu_DbCursor_create());
        FieldsPtr fields(zu_DbFldList_copy(row->fields));
        if (fields == nullptr || zu_DbCursor_insEnd(copy.get(), row->tableName, fields.get()) == 0)
            return nullptr;
        fields.release();
    }
    return copy.release();
}

int32_t zu_DbCursor_destroy(DbCursor* cursor)
{
    return zu_LnkList_destroy(cursor, destroyRow);
}

int32_t zu_DbCursor_insStart(DbCursor* cursor, const zu_wchar* tableName, DbFldList* fields)
{
    return insertRow(cursor, zu_LnkList_insStart, tableName, fields);
}

int32_t zu_DbCursor_insEnd(DbCursor* cursor, const zu_wchar* tableName, DbFldList* fields)
{
    return insertRow(cursor, zu_LnkList_insEnd, tableName, fields);
}

int32_t zu_DbCursor_modCurr(DbCursor* cursor, const zu_wchar* tableName, DbFldList* fields)
{
    DbCursorNode* const old = currentRow(cursor);
    DbCursorNode* const row = old == nullptr ? nullptr : zu_DbCursorNode_create(tableName, fields);
    if (row == nullptr)
        return 0;
    // A row that is only renamed keeps its fields.
    if (old->fields == fields)
        old->fields = nullptr;
    return zu_LnkList_modCurr(cursor, row, destroyRow);
}

int32_t zu_DbCursor_delCurr(DbCursor* cursor)
{
    return zu_LnkList_delCurr(cursor, destroyRow);
}

int32_t zu_DbCursor_delNth(DbCursor* cursor, int32_t index)
{
    return zu_LnkList_delNth(cursor, index, destroyRow);
}

int32_t zu_DbCursor_join(DbCursor* a, DbCursor* b)
{
    return zu_LnkList_join(a, b);
}

DbCursorNode* zu_DbCursor_getNth(DbCursor* cursor, int32_t index)
{
    return static_cast<DbCursorNode*>(zu_LnkList_getNth(cursor, index));
}

zu_wchar* zu_DbCursor_getCurrTblName(DbCursor* cursor)
{
    static zu_wchar* last = nullptr;
    return nameOrLast(currentRow(cursor), last);
}

DbFldList* zu_DbCursor_getCurrFldList(DbCursor* cursor)
{
    const DbCursorNode* const row = currentRow(cursor);
    return row == nullptr ? nullptr : row->fields;
}

zu_wchar* zu_DbCursor_getNthTblName(DbCursor* cursor, int32_t index)
{
    static zu_wchar* last = nullptr;
    return nameOrLast(zu_DbCursor_getNth(cursor, index), last);
}

DbFldList* zu_DbCursor_getNthFldList(DbCursor* cursor, int32_t index)
{
    const DbCursorNode* const row = zu_DbCursor_getNth(cursor, index);
    return row == nullptr ? nullptr : row->fields;
}

int32_t zu_DbCursor_start(DbCursor* cursor)
{
    return zu_LnkList_start(cursor);
}

int32_t zu_DbCursor_next(DbCursor* cursor)
{
    return zu_LnkList_next(cursor);
}

int32_t zu_DbCursor_eol(DbCursor* cursor)
{
    return zu_LnkList_eol(cursor);
}

uint32_t zu_DbCursor_length(DbCursor* cursor)
{
    return zu_LnkList_length(cursor);
}
