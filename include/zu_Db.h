/** @file zu_Db.h
 *  @ingroup tables
 *  Tables, record by record: open a table file, walk its rows, read and write fields by name. Carried out over ODBC.
 *
 *      int32_t pipes = zu_Db_openDb(ZU_W("C:\\plant\\pipes.db3"));
 *      for (int32_t at = zu_Db_topRec(pipes, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(pipes, 0))
 *          use(zu_Db_getFldStr(pipes, ZU_W("TAG")));
 *      zu_Db_closeDb(pipes);
 *
 *  A handle is one table and one result set of it. The table is named like the file without its extension; the
 *  extension chooses the connection: ".db3", ".mdb" and ".accdb" one of the file's own, ".dbf" the shared data source
 *  "dBase for Kelvane". Rows are lists of text fields (zu_DbFldList.h), one for each column.
 *
 *  Navigation is forward-only underneath: going back and wrapping round read again from the top. Writing composes an
 *  INSERT or UPDATE text; a row is found again by the values of its fields that did not change, because tables need no
 *  key, so rows that are alike are changed together. Values are not escaped, and only those of the type C are quoted.
 *
 *  Failures are told by the result alone; failed connections and statements also write a line to standard output.
 *  Operations on handles are not for several threads at a time.
 *
 *  @par Example
 *  @include db.c
 */
#ifndef ZU_DB_H
#define ZU_DB_H

#include "zu_DbRef.h"

ZU_EXTERN_C_BEGIN

/* Statuses of the navigation. */
#define ZU_DB_DONE 0   /**< done */
#define ZU_DB_FAILED 1 /**< failed */
#define ZU_DB_NO_ROW 3 /**< the end was passed, there is no row before, or the handle is unknown */

/** An entry of a field-information array. */
typedef struct DbFldInfo
{
    zu_wchar* name;   /**< owned */
    uint64_t rest[2]; /**< the caller's */
} DbFldInfo;

/* Tables ----------------------------------------------------------------------------------------------------------- */

/** Sets the table interface up: both registries, the ODBC environment and the shared connection to the data source
 *  "dBase for Kelvane". Opening a ".dbf" table does it. Only the first call has an effect; a connection that failed is
 *  not tried again. */
ZU_API void zu_Db_init(void);

/** Opens a table.
 *
 *  @param path  of an existing file; ".db3" is added when there is no "." in it.
 *  @return a handle, closed with zu_Db_closeDb; -1 for null, a file that does not exist, an extension that is none of
 *          those above, a path that no connection string can hold (";" in it, "{" in front), a failed connection (which
 *          leaves a record of the table in the registry) and without memory. No row is current yet. */
ZU_API int32_t zu_Db_openDb(const zu_wchar* path);

/** The same as zu_Db_openDb. @param mode  not used. */
ZU_API int32_t zu_Db_openDbEx(const zu_wchar* path, uint32_t mode);

/** Not supported. @return -1. */
ZU_API int32_t zu_Db_createDb(const zu_wchar* path, DbFldList* fields, int32_t flag);

/** Closes a table and its result set. The connection stays open: a table of the same file that is opened later takes it
 *  over.
 *  @return 1, whether or not there is such a handle. */
ZU_API int32_t zu_Db_closeDb(int32_t handle);

/** Forgets all tables and tags; numbers start anew. Result sets that are still open are not closed, so close tables one
 *  by one where it matters.
 *  @return 0: the handles are gone before they could be closed and counted, and that order is meant. */
ZU_API int32_t zu_Db_closeAll(void);

/** The structure of a table. A result set that was open is executed anew, so the current row is lost.
 *  @return a new list with a field for each column, its value blanks of the field's width, released with
 *          zu_DbFldList_destroy; null for an unknown handle and on any failure. */
ZU_API DbFldList* zu_Db_struct(int32_t handle);

/** @return the number of rows; 0 for an unknown handle, on any failure, and for a number of more than seven digits. */
ZU_API int32_t zu_Db_getRecordCount(int32_t handle);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_readTable(int32_t handle, void* first, void* second);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_query(int32_t handle, void* first, void* second, void* third);

/** Frees an array of field information from zu_Malloc: the names of its first count entries, then the array. Null is
 *  ignored. */
ZU_API void zu_Db_freeFldInfo(DbFldInfo* entries, int32_t count);

/* Index tags ------------------------------------------------------------------------------------------------------- */

/** Registers an index tag for a table: it tells zu_Db_seekStr which fields to look at, and orders nothing.
 *  @param name, expression  kept, not copied; the expression is a list of field names with commas and no blanks.
 *  @return the number of the tag, -1 for an unknown handle and without memory. */
ZU_API int32_t zu_Db_createNdx(int32_t handle, const zu_wchar* name, const zu_wchar* expression);

/** @return the number of a table's tag by its name, ignoring case; -1 when the handle or the tag is unknown. */
ZU_API int32_t zu_Db_openNdx(int32_t handle, const zu_wchar* name);

/** Removes a tag; 100 to 199 all name tag 100. @return 1, whether or not there is such a tag. */
ZU_API int32_t zu_Db_closeNdx(int32_t tag);

/** Not supported. @return -1. */
ZU_API int32_t zu_Db_rendx(int32_t handle, int32_t tag);

/* Navigation ------------------------------------------------------------------------------------------------------- */

/** Reads the table anew and moves to its first row. Rows come in the driver's order, those of a table file named
 *  "settings.db3" in the order of the column TYP.
 *  @param tag  not used.
 *  @return ZU_DB_DONE; ZU_DB_FAILED when it cannot be read or has no row (no result set is open then). ZU_DB_DONE also
 *          for an unknown handle, which is meant. */
ZU_API int32_t zu_Db_topRec(int32_t handle, int32_t tag);

/** Moves to the next row. A row that the driver delivers with a warning, such as a text that is longer than its column
 *  says, ends the table like its end.
 *  @param tag  not used.
 *  @return ZU_DB_DONE, or ZU_DB_NO_ROW: the result set is then closed, and the next reading begins at the first row.
 *  The record number stays. */
ZU_API int32_t zu_Db_nextRec(int32_t handle, int32_t tag);

/** Moves to the row before, by reading the table anew up to there.
 *  @param tag  not used.
 *  @return ZU_DB_DONE, or ZU_DB_NO_ROW; on the first row that leaves the row as it is. */
ZU_API int32_t zu_Db_prevRec(int32_t handle, int32_t tag);

/** Moves to the last row.
 *  @param tag  not used.
 *  @return ZU_DB_DONE, also when no result set is open, which changes nothing; ZU_DB_NO_ROW for an unknown handle. */
ZU_API int32_t zu_Db_botRec(int32_t handle, int32_t tag);

/** @return 0. */
ZU_API int32_t zu_Db_bof(int32_t handle);

/** @return 1 when there is no row to read: for an unknown handle, before the first zu_Db_topRec and after the end was
 *          passed; else 0. */
ZU_API int32_t zu_Db_eof(int32_t handle);

/* Reading ---------------------------------------------------------------------------------------------------------- */

/** Copies the current row, opening the result set when none is open; the handle counts as read (ZU_DB_READ). In append
 *  mode the result is that of zu_Db_struct, a blank row.
 *
 *  In fields of type N without decimals, a value such as 12.000 becomes 12; one such as 12.500 stays and its field gets
 *  the number of decimals that count, 1.
 *  @return a new list, released with zu_DbFldList_destroy; null for an unknown handle, without a row, on failure and
 *          without memory. */
ZU_API DbFldList* zu_Db_readRec(int32_t handle, int32_t ignored);

/** The same for a handle's record (zu_DbRef_sel); null gives null. */
ZU_API DbFldList* zu_Db_readCurrRec(DbRefNode* record, int32_t ignored);

/** The value of a field of the current row as the driver gave it; opens the result set when none is open, as
 *  zu_Db_readRec does. The name is compared ignoring case.
 *  @return a static text of at most 512 units, valid until the next call; null for an unknown handle, without a row and
 *          for an unknown name. */
ZU_API zu_wchar* zu_Db_getFldStr(int32_t handle, const zu_wchar* name);

/** Looks for a row in which a field equals text exactly: from the current row to the end, then from the first row up to
 *  where the search began. A search that began on the first row, or without a row, does not start over.
 *
 *  @param tag  a tag chooses the fields by its expression; any other number looks at all of them. Values are those of
 *              zu_Db_readRec.
 *  @return ZU_DB_DONE: the row is current, and the handle counts as read. ZU_DB_FAILED when there is none, for an
 *  unknown handle, a null text, and in append mode. */
ZU_API int32_t zu_Db_seekStr(const zu_wchar* text, int32_t handle, int32_t tag);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_seekDouble(double number, int32_t handle, int32_t tag);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_getFldInt(int32_t handle, const zu_wchar* field);

/** Not supported. @return 0.0. */
ZU_API double zu_Db_getFldDouble(int32_t handle, const zu_wchar* field);

/* Writing ---------------------------------------------------------------------------------------------------------- */

/** Switches a table to append mode: closes its result set, and the next zu_Db_modRec inserts a row.
 *  @return ZU_DB_DONE, or ZU_DB_FAILED for an unknown handle. */
ZU_API int32_t zu_Db_appRec(int32_t handle);

/** Writes a row: a new one in append mode, else the current one.
 *
 *  An insert names the fields that have a value. An update sets the fields whose values differ from the current row,
 *  wherever all its other fields that have a value are found unchanged; without a change nothing is executed, and an
 *  update that meets no row is no failure. Empty values of type N and F are written as 0.0, of type L as 0. A result
 *  set that is open stays open, so read, write, next works.
 *  @param fields  the new values by name; not changed. On success the current row has them too, cut to the columns'
 *                 widths.
 *  @return ZU_DB_DONE; ZU_DB_FAILED for an unknown handle, for null, when nothing was read and no append asked for,
 *  when there is no current row, when the statement fails (the current row is then as before) and without memory. */
ZU_API int32_t zu_Db_modRec(int32_t handle, DbFldList* fields);

/** Assigns a field of a data file, converted by its type.
 *  @return 0 when it was assigned; 1 when there is no such field, which is always so while the library has no data-file
 *          layer (zu_Cb.h). */
ZU_API int32_t zu_Db_updFld(struct CbDataFile* file, const DbFldNode* field);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_assignFldInt(struct CbField* field, int32_t value);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_assignFldDouble(struct CbField* field, double value);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_cpyFldN(struct CbField* field, const zu_wchar* text, int32_t count);

/** Not supported. @return 0. */
ZU_API int32_t zu_Db_padVal(zu_wchar* text, int32_t width);

ZU_EXTERN_C_END

#endif
