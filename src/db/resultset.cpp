#include "db/resultset.h"

#include "db/sqltext.h"
#include "frame/console.h"
#include "frame/guard.h"

#include <algorithm>
#include <utility>

namespace zu::db {
namespace {

using platform::odbc::Column;

// The width of long texts, whose drivers report the longest that there can be.
constexpr SQLULEN longTextWidth = 64;
// Wider columns, and those whose size a driver reports as a nonsense, are read through a buffer of this width. A value
// that needs more ends the result set, as in any column that is too narrow.
constexpr SQLULEN widestColumn = 1 << 18;
// What whole numbers get on top of their size: a sign and a blank, and room that their buffers have always had.
constexpr SQLULEN extraWidthOfNumbers = 2 + 25;

zu_wchar fieldType(SQLSMALLINT type)
{
    switch (type) {
    case SQL_WLONGVARCHAR:
    case SQL_LONGVARBINARY:
    case SQL_LONGVARCHAR: return ZU_DBFLD_MEMO;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
    case SQL_INTEGER: return ZU_DBFLD_LONG;
    case SQL_SMALLINT: return ZU_DBFLD_INT;
    case SQL_FLOAT:
    case SQL_REAL:
    case SQL_DOUBLE: return ZU_DBFLD_NUMBER;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP: return ZU_DBFLD_DATETIME;
    default: return ZU_DBFLD_TEXT;
    }
}

std::uint32_t fieldWidth(const Column& column)
{
    const bool isLong = column.type == SQL_LONGVARCHAR || column.type == SQL_WLONGVARCHAR;
    const SQLULEN width = isLong ? longTextWidth : std::min(column.size, widestColumn);
    const SQLULEN extra = fieldType(column.type) == ZU_DBFLD_LONG ? extraWidthOfNumbers : 0;
    return static_cast<std::uint32_t>(width + extra);
}

WidePtr blanks(std::size_t count)
{
    WidePtr text(static_cast<zu_wchar*>(zu_Malloc((count + 1) * sizeof(zu_wchar))));
    if (text == nullptr)
        throw std::bad_alloc();
    std::fill_n(text.get(), count, ZU_W(' '));
    text[count] = 0;
    return text;
}

// Appends the field of a column, blank and of its width. The statement writes into its value from now on.
bool bindColumn(DbRefNode& record, SQLUSMALLINT number, const Column& column)
{
    const std::uint32_t width = fieldWidth(column);
    const auto decimals = static_cast<std::uint32_t>(std::max<SQLSMALLINT>(column.decimals, 0));
    DbFldNode* const field = newField(column.name.view(), blanks(width), width, decimals, fieldType(column.type));
    if (!appendField(record.fields, field))
        throw std::bad_alloc();
    // One length for all columns of all tables, because nothing reads it: values end at their terminator.
    static SQLLEN length;
    const SQLLEN size = (static_cast<SQLLEN>(width) + 1) * static_cast<SQLLEN>(sizeof(zu_wchar));
    return SQL_SUCCEEDED(::SQLBindCol(record.statement, number, SQL_C_WCHAR, field->value, size, &length));
}

bool& hasDistinctNames(DbRefNode& record)
{
    return static_cast<TableRecord&>(record).hasDistinctNames;
}

bool areDistinct(const DbFldList& fields)
{
    for (const LnkNode* node = fields.first; node != nullptr; node = node->next) {
        for (const LnkNode* other = node->next; other != nullptr; other = other->next) {
            if (sameName(static_cast<DbFldNode*>(node->data)->name, static_cast<DbFldNode*>(other->data)->name))
                return false;
        }
    }
    return true;
}

enum class Binding
{
    complete,
    partial, // a column could not be described: those before it are bound
    failed
};

// Makes the fields of the current row, one for each column of the statement.
Binding bindColumns(DbRefNode& record)
{
    record.fields = zu_LnkList_create(nullptr);
    if (record.fields == nullptr)
        return Binding::failed;
    SQLSMALLINT count = 0;
    if (!SQL_SUCCEEDED(::SQLNumResultCols(record.statement, &count)))
        return Binding::failed;
    for (SQLSMALLINT number = 1; number <= count; ++number) {
        Column column;
        const auto position = static_cast<SQLUSMALLINT>(number);
        if (!SQL_SUCCEEDED(platform::odbc::describe(record.statement, position, column)))
            return Binding::partial;
        if (!bindColumn(record, position, column))
            return Binding::failed;
    }
    hasDistinctNames(record) = areDistinct(*record.fields);
    return Binding::complete;
}

SQLRETURN executeSelect(const DbRefNode& record)
{
    return platform::odbc::execute(record.statement, selectText(record.path));
}

bool openFirst(DbRefNode& record)
{
    Statement statement(record.connection);
    if (!statement.isAllocated())
        return false;
    record.statement = statement.release();
    if (executeSelect(record) == SQL_ERROR) {
        keepDiagnostic(SQL_HANDLE_STMT, record.statement);
        writeConsole(ZU_W("SQL query failed."));
        return false;
    }
    if (bindColumns(record) == Binding::failed)
        return false;
    record.recordNumber = -1;
    return fetchNext(record) == ZU_DB_DONE;
}

bool describeAnew(DbRefNode& record)
{
    if (record.statement == nullptr) {
        Statement statement(record.connection);
        record.statement = statement.release();
    } else {
        ::SQLFreeStmt(record.statement, SQL_CLOSE);
        ::SQLFreeStmt(record.statement, SQL_UNBIND);
    }
    zu_DbFldList_destroy(std::exchange(record.fields, nullptr));
    hasDistinctNames(record) = false;
    record.recordNumber = -1;
    return record.statement != nullptr && SQL_SUCCEEDED(executeSelect(record)) &&
           bindColumns(record) == Binding::complete;
}

} // namespace

void endResultSet(DbRefNode& record)
{
    // The statement goes first: it is bound to the fields.
    freeStatement(std::exchange(record.statement, nullptr));
    zu_DbFldList_destroy(std::exchange(record.fields, nullptr));
    hasDistinctNames(record) = false;
}

std::int32_t openTop(DbRefNode& record)
{
    endResultSet(record);
    if (guarded(false, [&] { return openFirst(record); }))
        return ZU_DB_DONE;
    endResultSet(record);
    return ZU_DB_FAILED;
}

std::int32_t fetchNext(DbRefNode& record)
{
    if (record.statement == nullptr)
        return ZU_DB_NO_ROW;
    // A row that comes with information ends the table as well: its texts may be cut.
    if (::SQLFetch(record.statement) != SQL_SUCCESS) {
        keepDiagnostic(SQL_HANDLE_STMT, record.statement);
        endResultSet(record);
        return ZU_DB_NO_ROW;
    }
    ++record.recordNumber;
    return ZU_DB_DONE;
}

void fetchLast(DbRefNode& record)
{
    if (record.statement == nullptr)
        return;
    while (::SQLFetch(record.statement) == SQL_SUCCESS)
        ++record.recordNumber;
}

const DbFldNode* findInRow(DbRefNode& record, const zu_wchar* name)
{
    // Fields are mostly read in their order. Where all names differ, the one behind the last that was found may be
    // tried first.
    if (hasDistinctNames(record) && name != nullptr && record.fields->current != nullptr) {
        LnkNode* const last = record.fields->current;
        LnkNode* const next = last->next != nullptr ? last->next : record.fields->first;
        auto* const field = static_cast<const DbFldNode*>(next->data);
        if (sameName(field->name, name)) {
            record.fields->current = next;
            return field;
        }
    }
    return zu_DbFldList_findFld(record.fields, name);
}

const DbFldList* openUnfetched(DbRefNode& record)
{
    if (guarded(false, [&] { return describeAnew(record); }))
        return record.fields;
    endResultSet(record);
    return nullptr;
}

} // namespace zu::db
