// Writing rows.
#include "db/datafile.h"
#include "db/resultset.h"
#include "db/sqltext.h"
#include "frame/console.h"
#include "frame/guard.h"
#include "zu_Cb.h"

using namespace zu;
using namespace zu::db;

namespace {

// The current row as it is after a write. It is made before the write, so that nothing can fail behind it.
class NextRow
{
public:
    NextRow(DbRefNode& table, DbFldList* newValues) : record(table), values(newValues)
    {
        if (isBound(record))
            return;
        fields.reset(zu_DbFldList_copy(record.fields != nullptr ? record.fields : values));
        if (fields == nullptr)
            throw std::bad_alloc();
        if (record.fields != nullptr)
            replaceValues();
    }

    void publish()
    {
        if (isBound(record)) {
            writeIntoBuffers();
        } else {
            zu_DbFldList_destroy(record.fields);
            record.fields = fields.release();
        }
    }

private:
    void replaceValues()
    {
        for (const DbFldNode& value : FieldsOf(values)) {
            DbFldNode* const field = findField(fields.get(), value.name);
            if (field == nullptr)
                continue;
            WidePtr copy(text::duplicate(valueOf(value)));
            if (copy == nullptr)
                throw std::bad_alloc();
            zu_Free(field->value);
            field->value = copy.release();
        }
    }

    // The statement goes on writing into the buffers, which hold a value of the field's width.
    void writeIntoBuffers()
    {
        for (const DbFldNode& value : FieldsOf(values)) {
            if (DbFldNode* const field = findField(record.fields, value.name))
                text::copyCut(field->value, field->width, valueOf(value));
        }
    }

    DbRefNode& record;
    DbFldList* values;
    FieldsPtr fields;
};

int32_t insertRow(DbRefNode& record, DbFldList* values)
{
    NextRow nextRow(record, values);
    const Statement statement(record.connection);
    if (!statement.isAllocated())
        return ZU_DB_FAILED;
    if (platform::odbc::execute(statement.get(), insertText(record.path, values)) == SQL_ERROR) {
        keepDiagnostic(SQL_HANDLE_STMT, statement.get());
        writeConsole(ZU_W("SQL query failed."));
        return ZU_DB_FAILED;
    }
    nextRow.publish();
    record.mode = ZU_DB_WRITTEN;
    return ZU_DB_DONE;
}

int32_t updateRow(DbRefNode& record, DbFldList* values)
{
    if (record.fields == nullptr)
        return ZU_DB_FAILED;
    NextRow nextRow(record, values);
    const Statement statement(record.connection);
    if (!statement.isAllocated())
        return ZU_DB_FAILED;
    const WideString sql = updateText(record.path, record.fields, values);
    if (!sql.empty() && platform::odbc::execute(statement.get(), sql) == SQL_ERROR)
        return ZU_DB_FAILED;
    nextRow.publish();
    return ZU_DB_DONE;
}

} // namespace

int32_t zu_Db_appRec(int32_t handle)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    if (record == nullptr)
        return ZU_DB_FAILED;
    endResultSet(*record);
    record->mode = ZU_DB_APPEND;
    return ZU_DB_DONE;
}

int32_t zu_Db_modRec(int32_t handle, DbFldList* fields)
{
    DbRefNode* const record = zu_DbRef_sel(handle);
    if (record == nullptr || fields == nullptr)
        return ZU_DB_FAILED;
    return guarded(int32_t{ZU_DB_FAILED}, [&]() -> int32_t {
        switch (record->mode) {
        case ZU_DB_APPEND: return insertRow(*record, fields);
        case ZU_DB_WRITTEN:
        case ZU_DB_READ: return updateRow(*record, fields);
        default: return ZU_DB_FAILED;
        }
    });
}

int32_t zu_Db_updFld(CbDataFile* file, const DbFldNode* field)
{
    CbField* const target = file == nullptr || field == nullptr ? nullptr : datafile::findField(*file, field->name);
    if (target == nullptr)
        return 1;
    return guarded(1, [&] {
        const WideView value = valueOf(*field);
        const ByteString bytes(value.begin(), value.end());
        const auto length = static_cast<int32_t>(bytes.size());
        switch (field->type) {
        case ZU_DBFLD_FLOAT:
        case ZU_DBFLD_NUMBER: datafile::assign(*target, zu_c4atod(bytes.c_str(), length)); break;
        case ZU_DBFLD_LONG: datafile::assign(*target, zu_c4atoi(bytes.c_str(), length)); break;
        default: datafile::assign(*target, WideString(value).c_str()); break;
        }
        return 0;
    });
}

int32_t zu_Db_assignFldInt(CbField*, int32_t)
{
    return 0;
}

int32_t zu_Db_assignFldDouble(CbField*, double)
{
    return 0;
}

int32_t zu_Db_cpyFldN(CbField*, const zu_wchar*, int32_t)
{
    return 0;
}

int32_t zu_Db_padVal(zu_wchar*, int32_t)
{
    return 0;
}
