// Tables and their index tags.
#include "db/registry.h"
#include "db/resultset.h"
#include "db/sqltext.h"
#include "frame/guard.h"
#include "platform/files.h"

#include <algorithm>
#include <iterator>

using namespace zu;
using namespace zu::db;

namespace {

constexpr WideView sharedExtension = ZU_W(".dbf");
constexpr WideView ownExtensions[] = {ZU_W(".db3"), ZU_W(".mdb"), ZU_W(".accdb")};
constexpr std::size_t countSize = 8;

bool hasExtension(WideView path, WideView extension)
{
    return text::equalIgnoringCase(extensionOf(path), extension);
}

bool hasOwnConnection(WideView path)
{
    return std::any_of(std::begin(ownExtensions), std::end(ownExtensions),
                       [&](WideView extension) { return hasExtension(path, extension); });
}

// Registers a table that has no current row yet; null without memory.
DbRefNode* registerTable(const WideString& path)
{
    DbRefNode* const record = zu_DbRef_sel(zu_DbRef_add(path.c_str()));
    if (record != nullptr)
        record->recordNumber = -1;
    return record;
}

int32_t openTable(WideView givenPath)
{
    WideString path(givenPath);
    if (path.find(ZU_W('.')) == WideString::npos)
        path += ownExtensions[0];
    if (!platform::hasAccess(path, platform::Access::exists))
        return -1;
    if (hasExtension(path, sharedExtension)) {
        zu_Db_init();
        DbRefNode* const record = registerTable(path);
        if (record == nullptr)
            return -1;
        record->connection = sharedConnection();
        return record->number;
    }
    if (!hasOwnConnection(path) || !fitsConnectionString(path))
        return -1;
    DbRefNode* const record = registerTable(path);
    if (record == nullptr)
        return -1;
    // The record stays when this fails, so that its number is not given out again.
    const Connection connection = connectTo(path);
    record->connection = connection.handle;
    return connection.failed ? -1 : record->number;
}

int32_t countRows(const DbRefNode& record)
{
    Statement statement(record.connection);
    if (!statement.isAllocated())
        return 0;
    // Where the number does not fit, the driver says so, and there is no result.
    zu_wchar digits[countSize] = {};
    SQLLEN length = 0;
    if (!SQL_SUCCEEDED(platform::odbc::execute(statement.get(), countText(record.path))) ||
        !SQL_SUCCEEDED(::SQLBindCol(statement.get(), 1, SQL_C_WCHAR, digits, sizeof digits, &length)) ||
        ::SQLFetch(statement.get()) != SQL_SUCCESS)
        return 0;
    return text::toInt(digits);
}

} // namespace

void zu_Db_init(void)
{
    createRegistries();
    sharedConnection();
}

int32_t zu_Db_openDb(const zu_wchar* path)
{
    return zu_Db_openDbEx(path, 0);
}

int32_t zu_Db_openDbEx(const zu_wchar* path, uint32_t)
{
    return path == nullptr ? -1 : guarded(-1, [&] { return openTable(path); });
}

int32_t zu_Db_createDb(const zu_wchar*, DbFldList*, int32_t)
{
    return -1;
}

int32_t zu_Db_closeDb(int32_t handle)
{
    if (DbRefNode* const record = zu_DbRef_sel(handle))
        endResultSet(*record);
    zu_DbRef_del(handle);
    return 1;
}

int32_t zu_Db_closeAll(void)
{
    // The registry goes before its handles could be closed one by one, so none is and the result says so. Callers know
    // this order: statements that are open now stay open.
    destroyRegistries();
    createRegistries();
    return 0;
}

DbFldList* zu_Db_struct(int32_t handle)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    const DbFldList* const fields = record == nullptr ? nullptr : openUnfetched(*record);
    return fields == nullptr ? nullptr : zu_DbFldList_copy(record->fields);
}

int32_t zu_Db_getRecordCount(int32_t handle)
{
    const DbRefNode* const record = zu_DbRef_sel(handle);
    return record == nullptr ? 0 : guarded(0, [&] { return countRows(*record); });
}

int32_t zu_Db_readTable(int32_t, void*, void*)
{
    return 0;
}

int32_t zu_Db_query(int32_t, void*, void*, void*)
{
    return 0;
}

void zu_Db_freeFldInfo(DbFldInfo* entries, int32_t count)
{
    for (int32_t index = 0; entries != nullptr && index < count; ++index)
        zu_Free(entries[index].name);
    zu_Free(entries);
}

int32_t zu_Db_createNdx(int32_t handle, const zu_wchar* name, const zu_wchar* expression)
{
    return zu_DbRef_sel(handle) == nullptr ? -1 : zu_DbTagRef_add(handle, name, expression);
}

int32_t zu_Db_openNdx(int32_t handle, const zu_wchar* name)
{
    if (zu_DbRef_sel(handle) == nullptr)
        return -1;
    for (const LnkNode* node = firstTag(); node != nullptr; node = node->next) {
        const auto& tag = *static_cast<const DbTagRefNode*>(node->data);
        if (tag.handle == handle && text::equalIgnoringCase(text::view(tag.name), text::view(name)))
            return tag.number;
    }
    return -1;
}

int32_t zu_Db_closeNdx(int32_t tag)
{
    zu_DbTagRef_del(tag);
    return 1;
}

int32_t zu_Db_rendx(int32_t, int32_t)
{
    return -1;
}
