/** @file zu_DbCursor.h
 *  @ingroup tables
 *  A list of rows, each a table name with a field list (zu_DbFldList.h).
 *
 *      DbCursor* rows = zu_DbCursor_create();
 *      zu_DbCursor_insEnd(rows, ZU_W("pipes"), zu_Db_readRec(handle, 0));
 *      zu_DbCursor_destroy(rows);
 *
 *  Rows own their field list: it is taken over, not copied. A cursor is a generic list (zu_LnkList.h) of DbCursorNode:
 *  its current position is the one there, and every operation of that header may be used on it.
 *
 *  @par Example
 *  @include dbcursor.c
 */
#ifndef ZU_DBCURSOR_H
#define ZU_DBCURSOR_H

#include "zu_DbFldList.h"

ZU_EXTERN_C_BEGIN

/** A row. */
typedef struct DbCursorNode
{
    DbFldList* fields;   /**< owned; may be null */
    zu_wchar* tableName; /**< owned; may be null */
} DbCursorNode;

/** A generic list whose data are rows. */
typedef LnkList DbCursor;

/** @return a new empty cursor, released with zu_DbCursor_destroy; null without memory. */
ZU_API DbCursor* zu_DbCursor_create(void);

/** Copies the rows that have both a table name and a field list.
 *  @return a new cursor without a current row, released with zu_DbCursor_destroy; null when there is no such row, for
 *          null and without memory. Current of the source: unchanged. */
ZU_API DbCursor* zu_DbCursor_copy(DbCursor* cursor);

/** Destroys the cursor with its rows, their names and field lists. @return 1, or 0 for null. */
ZU_API int32_t zu_DbCursor_destroy(DbCursor* cursor);

/** Inserts a new row as the first one.
 *  @param tableName  copied; may be null.
 *  @param fields     taken over; may be null. Still the caller's when the result is 0.
 *  @return 1, or 0 for a null cursor and without memory. Current: as zu_LnkList_insStart. */
ZU_API int32_t zu_DbCursor_insStart(DbCursor* cursor, const zu_wchar* tableName, DbFldList* fields);

/** Inserts a new row as the last one; arguments and result as for zu_DbCursor_insStart. */
ZU_API int32_t zu_DbCursor_insEnd(DbCursor* cursor, const zu_wchar* tableName, DbFldList* fields);

/** Replaces the current row by a new one; the old one is freed, but not its field list if that is the one passed.
 *  @return 1; 0 without a current row and without memory (fields is then still the caller's). */
ZU_API int32_t zu_DbCursor_modCurr(DbCursor* cursor, const zu_wchar* tableName, DbFldList* fields);

/** Deletes the current row. @return and current as for zu_LnkList_delCurr. */
ZU_API int32_t zu_DbCursor_delCurr(DbCursor* cursor);

/** Moves to row index and deletes it. @return and current as for zu_LnkList_delNth. */
ZU_API int32_t zu_DbCursor_delNth(DbCursor* cursor, int32_t index);

/** Appends the rows of b to a and frees b's header. @return and current as for zu_LnkList_join. */
ZU_API int32_t zu_DbCursor_join(DbCursor* a, DbCursor* b);

/** Moves to row index. @return the row, owned by the cursor; null when there is none. */
ZU_API DbCursorNode* zu_DbCursor_getNth(DbCursor* cursor, int32_t index);

/** @return the table name of the current row, owned by the row. Without a current row it is the pointer returned the
 *          time before (which may have been freed by then), null if there was none: test zu_DbCursor_eol. */
ZU_API zu_wchar* zu_DbCursor_getCurrTblName(DbCursor* cursor);

/** @return the field list of the current row, still owned by the row; null without one. */
ZU_API DbFldList* zu_DbCursor_getCurrFldList(DbCursor* cursor);

/** Moves to row index. @return its table name as zu_DbCursor_getCurrTblName, remembered apart. */
ZU_API zu_wchar* zu_DbCursor_getNthTblName(DbCursor* cursor, int32_t index);

/** Moves to row index. @return its field list, still owned by the row; null without one. */
ZU_API DbFldList* zu_DbCursor_getNthFldList(DbCursor* cursor, int32_t index);

/** See zu_LnkList_start. */
ZU_API int32_t zu_DbCursor_start(DbCursor* cursor);
/** See zu_LnkList_next. */
ZU_API int32_t zu_DbCursor_next(DbCursor* cursor);
/** See zu_LnkList_eol. */
ZU_API int32_t zu_DbCursor_eol(DbCursor* cursor);
/** See zu_LnkList_length. */
ZU_API uint32_t zu_DbCursor_length(DbCursor* cursor);

/** Makes a row that is in no cursor yet.
 *  @param tableName  copied; may be null.
 *  @param fields     taken over; may be null. Still the caller's when the result is null.
 *  @return a new row, released with zu_DbCursorNode_destroy; null without memory. */
ZU_API DbCursorNode* zu_DbCursorNode_create(const zu_wchar* tableName, DbFldList* fields);

/** Destroys a row that is in no cursor, with its name and field list; null is ignored. @return null always. */
ZU_API DbCursorNode* zu_DbCursorNode_destroy(DbCursorNode* node);

ZU_EXTERN_C_END

#endif
