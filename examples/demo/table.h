// Owners of tables, rows and lists of rows.
#pragma once

#include "text.h"

namespace demo {

struct ReleaseRow
{
    void operator()(DbFldList* row) const { zu_DbFldList_destroy(row); }
};
using Row = std::unique_ptr<DbFldList, ReleaseRow>;

struct ReleaseRows
{
    void operator()(DbCursor* rows) const { zu_DbCursor_destroy(rows); }
};
using Rows = std::unique_ptr<DbCursor, ReleaseRows>;

// A table that is open as long as it lives.
class Table
{
public:
    explicit Table(const Wide& file) : handle(zu_Db_openDb(file.c_str())) {}
    ~Table()
    {
        if (handle >= 0)
            zu_Db_closeDb(handle);
    }
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    bool isOpen() const { return handle >= 0; }
    operator int32_t() const { return handle; }

private:
    int32_t handle;
};

} // namespace demo
