// The open result set of a table: its statement, and the current row that is bound to it.
#pragma once

#include "db/connection.h"
#include "db/dbfld.h"
#include "zu_Db.h"

namespace zu::db {

// A table's record with what hosts do not see of it. All records are made as such.
struct TableRecord : DbRefNode
{
    bool hasDistinctNames; // no two of the bound fields are named alike
};

// Whether the fields are bound to an open statement, which writes into their values at each fetch: they must then be
// neither freed nor replaced. Without a statement they are the caller's last written row.
inline bool isBound(const DbRefNode& record)
{
    return record.statement != nullptr && record.fields != nullptr;
}

// Closes the result set and destroys the current row; mode and record number stay.
void endResultSet(DbRefNode& record);

// Opens the result set anew and moves to its first row. Result as for zu_Db_topRec; no result set is open after a
// failure.
std::int32_t openTop(DbRefNode& record);

// Moves to the next row. Result as for zu_Db_nextRec.
std::int32_t fetchNext(DbRefNode& record);

// Fetches as long as there are rows; the result set stays open on the last one.
void fetchLast(DbRefNode& record);

// The field of the current row with a name, as zu_DbFldList_findFld finds it; faster where a row is read field by
// field.
const DbFldNode* findInRow(DbRefNode& record, const zu_wchar* name);

// Opens the result set without a current row, so that the row's fields are blank. The fields, owned by the record;
// null, without a result set, on any failure.
const DbFldList* openUnfetched(DbRefNode& record);

} // namespace zu::db
