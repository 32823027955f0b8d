// Walking the rows of a table and reading them.
#include "db/resultset.h"
#include "frame/guard.h"

#include <limits>
#include <optional>

using namespace zu;
using namespace zu::db;

namespace {

// The fields of the current row, opening the result set when none is open; null without a row.
DbFldList* currentRow(DbRefNode& record)
{
    if (record.statement == nullptr && openTop(record) != ZU_DB_DONE)
        return nullptr;
    record.mode = ZU_DB_READ;
    return record.fields;
}

bool isPlainNumber(const DbFldNode& field)
{
    return field.type == ZU_DBFLD_NUMBER && field.precision == 0;
}

// What a number without decimals is read as: 12.000 is 12, all else stays. Decimals receives the number of those that
// count, where there are any.
WideView readNumber(WideView value, std::uint32_t& decimals)
{
    const std::size_t point = value.find(ZU_W('.'));
    if (point == WideView::npos)
        return value;
    const std::size_t last = value.find_last_not_of(ZU_W('0'));
    if (value[last] == ZU_W('.'))
        return value.substr(0, last);
    decimals = static_cast<std::uint32_t>(last < point ? 0 : last - point);
    return value;
}

WideView readValue(const DbFldNode& field)
{
    std::uint32_t decimals = 0;
    return isPlainNumber(field) ? readNumber(valueOf(field), decimals) : valueOf(field);
}

// A copy of a row with its numbers as they are read.
DbFldList* copyRow(DbFldList* row)
{
    DbFldList* const copy = zu_DbFldList_copy(row);
    for (DbFldNode& field : FieldsOf(copy)) {
        if (isPlainNumber(field) && field.value != nullptr)
            field.value[readNumber(field.value, field.precision).size()] = 0;
    }
    return copy;
}

bool listHolds(WideView list, WideView name)
{
    for (;;) {
        const std::size_t end = list.find(ZU_W(','));
        if (list.substr(0, end) == name)
            return true;
        if (end == WideView::npos)
            return false;
        list.remove_prefix(end + 1);
    }
}

// What zu_Db_seekStr looks for: a value, in the fields that a list names or in all of them.
struct Search
{
    WideView text;
    std::optional<WideView> names;

    bool isIn(const DbFldList* row) const
    {
        for (const DbFldNode& field : FieldsOf(row)) {
            if ((!names || listHolds(*names, field.name)) && readValue(field) == text)
                return true;
        }
        return false;
    }
};

// Looks from the current row on, up to but not including the row of a number.
bool seekForward(DbRefNode& record, const Search& search, std::int32_t end)
{
    for (const DbFldList* row = currentRow(record); row != nullptr && record.recordNumber < end; row = record.fields) {
        if (search.isIn(row))
            return true;
        fetchNext(record);
    }
    return false;
}

} // namespace

int32_t zu_Db_topRec(int32_t handle, int32_t)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    return record == nullptr ? ZU_DB_DONE : openTop(*record);
}

int32_t zu_Db_nextRec(int32_t handle, int32_t)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    return record == nullptr ? ZU_DB_NO_ROW : fetchNext(*record);
}

int32_t zu_Db_prevRec(int32_t handle, int32_t)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    if (record == nullptr || record->recordNumber < 1)
        return ZU_DB_NO_ROW;
    const int32_t wanted = record->recordNumber - 1;
    record->recordNumber = -1;
    if (openTop(*record) != ZU_DB_DONE)
        return ZU_DB_NO_ROW;
    while (record->recordNumber < wanted) {
        if (fetchNext(*record) != ZU_DB_DONE)
            return ZU_DB_NO_ROW;
    }
    return ZU_DB_DONE;
}

int32_t zu_Db_botRec(int32_t handle, int32_t)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    if (record == nullptr)
        return ZU_DB_NO_ROW;
    fetchLast(*record);
    return ZU_DB_DONE;
}

int32_t zu_Db_bof(int32_t)
{
    return 0;
}

int32_t zu_Db_eof(int32_t handle)
{
    const DbRefNode* const record = zu_DbRef_sel(handle);
    return record == nullptr || record->fields == nullptr;
}

DbFldList* zu_Db_readRec(int32_t handle, int32_t ignored)
{
    return zu_Db_readCurrRec(zu_DbRef_sel(handle), ignored);
}

DbFldList* zu_Db_readCurrRec(DbRefNode* record, int32_t)
{
    // A copy of a record is none: what belongs to the rows goes with the original.
    if (record == nullptr || zu_DbRef_sel(record->number) != record)
        return nullptr;
    if (record->mode == ZU_DB_APPEND)
        return openUnfetched(*record) == nullptr ? nullptr : zu_DbFldList_copy(record->fields);
    return copyRow(currentRow(*record));
}

zu_wchar* zu_Db_getFldStr(int32_t handle, const zu_wchar* name)
{
    static text::Buffer<512> result;
    result.clear();
    DbRefNode* const record = zu_DbRef_sel(handle);
    if (record == nullptr)
        return nullptr;
    if (record->statement == nullptr) {
        // The current row is read as zu_Db_readRec reads it: a blank one in append mode.
        if (record->mode == ZU_DB_APPEND)
            openUnfetched(*record);
        else
            currentRow(*record);
    }
    const DbFldNode* const field = findInRow(*record, name);
    return field == nullptr ? nullptr : result.set(valueOf(*field));
}

int32_t zu_Db_seekStr(const zu_wchar* text, int32_t handle, int32_t tag)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    // In append mode every row is read as a blank one, without an end.
    if (record == nullptr || text == nullptr || record->mode == ZU_DB_APPEND)
        return ZU_DB_FAILED;
    const DbTagRefNode* const known = zu_DbTagRef_selNdx(tag);
    Search search{text, std::nullopt};
    if (known != nullptr)
        search.names = text::view(known->expression);
    const int32_t start = record->recordNumber;
    if (seekForward(*record, search, std::numeric_limits<int32_t>::max()))
        return ZU_DB_DONE;
    if (start < 1 || openTop(*record) != ZU_DB_DONE)
        return ZU_DB_FAILED;
    return seekForward(*record, search, start) ? ZU_DB_DONE : ZU_DB_FAILED;
}

int32_t zu_Db_seekDouble(double, int32_t, int32_t)
{
    return 0;
}

int32_t zu_Db_getFldInt(int32_t, const zu_wchar*)
{
    return 0;
}

double zu_Db_getFldDouble(int32_t, const zu_wchar*)
{
    return 0.0;
}
