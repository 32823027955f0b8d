/** @file zu_DbRef.h
 *  @ingroup tables
 *  The two registries of the table interface, both process-wide: the handles of the open tables and the index tags.
 *
 *  Programs use zu_Db.h, which keeps them; these operations are for those that look behind it. Tags keep the pointers
 *  to their texts, not copies: the caller leaves the texts in place as long as the tag is registered.
 *
 *  @par Example
 *  @include dbref.c
 */
#ifndef ZU_DBREF_H
#define ZU_DBREF_H

#include "zu_DbFldList.h"

ZU_EXTERN_C_BEGIN

/* What a handle was used for last; decides what zu_Db_modRec does. */
#define ZU_DB_OPENED 0  /**< nothing yet: nothing can be written */
#define ZU_DB_APPEND 1  /**< zu_Db_appRec: the next write inserts a row */
#define ZU_DB_WRITTEN 2 /**< a row was inserted: the next write updates it */
#define ZU_DB_READ 3    /**< a row was read: the next write updates it */

/** An open table. Read it freely; it is changed by the operations of zu_Db.h alone. */
typedef struct DbRefNode
{
    zu_wchar* path;       /**< of the table's file, owned */
    void* statement;      /**< the ODBC statement of the open result set; null without one */
    void* connection;     /**< the ODBC connection */
    DbFldList* fields;    /**< the current row, owned; null without a result set. While a result set is open its values
                               are bound to the statement, and must be neither freed nor replaced */
    int32_t recordNumber; /**< of the current row in the result set, from 0; -1 before the first */
    int32_t mode;         /**< what the handle was used for last */
    int32_t number;       /**< the handle */
} DbRefNode;

/** An index tag. */
typedef struct DbTagRefNode
{
    const zu_wchar* name;       /**< not owned */
    const zu_wchar* expression; /**< field names separated by commas, not owned */
    int32_t handle;             /**< the table it belongs to */
    int32_t number;             /**< a multiple of 100 */
} DbTagRefNode;

/** A data file and its tags (zu_Cb.h). */
struct CbDataFile;
struct CbTag;

/* Handles ---------------------------------------------------------------------------------------------------------- */

/** Registers a table.
 *  @param path  copied.
 *  @return the new handle: one more than the largest that is registered, 0 for the first; -1 for null and without
 *          memory. */
ZU_API int32_t zu_DbRef_add(const zu_wchar* path);

/** @return the record of a handle, owned by the registry; null when there is none. */
ZU_API DbRefNode* zu_DbRef_sel(int32_t handle);

/** Removes the first record of a handle and frees it with zu_DbRefNode_free. @return 1, or 0 when there is none. */
ZU_API int32_t zu_DbRef_del(int32_t handle);

/** Meant to remove the tags of a handle. It removes nothing: it looks at the expression of each tag where the handle
 *  should be, and callers have come to rely on their tags staying.
 *  @return 0. */
ZU_API int32_t zu_DbRef_delTags(int32_t handle);

/** Makes a record that is not registered: a copy of the path, the number, all else 0 or null.
 *  @return a new record, released with zu_DbRefNode_free; null for a null path and without memory. */
ZU_API DbRefNode* zu_DbRefNode_create(const zu_wchar* path, int32_t number);

/** @return the first registered record with a number, owned by the registry; null when there is none. */
ZU_API DbRefNode* zu_DbRefNode_find(int32_t number);

/** Frees a record that is not registered, with its path and field list. An open statement is not closed; zu_Db_closeDb
 *  does that. Null is ignored. */
ZU_API void zu_DbRefNode_free(DbRefNode* record);

/* Tags ------------------------------------------------------------------------------------------------------------- */

/** Registers a tag; note the order of the arguments, which differs from that of zu_DbTagRefNode_create.
 *  @param name, expression  kept, not copied.
 *  @return the number of the tag: the largest that is registered plus 100, 100 for the first; -1 without memory. */
ZU_API int32_t zu_DbTagRef_add(int32_t handle, const zu_wchar* name, const zu_wchar* expression);

/** @return the first tag with a number, which is first rounded down to its hundreds; null when there is none. Owned by
 *          the registry. */
ZU_API DbTagRefNode* zu_DbTagRef_selNdx(int32_t number);

/** Removes and frees the tag that zu_DbTagRef_selNdx finds. @return 1, or 0 when there is none. */
ZU_API int32_t zu_DbTagRef_del(int32_t number);

/** Meant to rename a tag. It changes nothing, for the reason given at zu_DbRef_delTags. @return 0. */
ZU_API int32_t zu_DbTagRef_update(int32_t number, const zu_wchar* name);

/** Looks in a data file for the tag that a number stands for: "TAG" with the number modulo 100 in three digits, with
 *  the whole number, and with the number modulo 100 in four digits, in this order.
 *  @return the tag, owned by the data file; null when there is none, for a negative number, and always while the
 *  library has no data-file layer. */
ZU_API struct CbTag* zu_DbTagRef_sel(struct CbDataFile* file, int32_t number);

/** Makes a tag that is not registered, with the fields as given.
 *  @return a new tag, released with zu_Free; null without memory. */
ZU_API DbTagRefNode* zu_DbTagRefNode_create(const zu_wchar* name, const zu_wchar* expression, int32_t number,
                                            int32_t handle);

ZU_EXTERN_C_END

#endif
