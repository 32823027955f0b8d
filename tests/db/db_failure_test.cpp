// What every operation answers when a call underneath it fails, and that nothing is lost by it.
#include "driver.h"
#include "support/memory.h"
#include "zu_Memory.h"

#include <gtest/gtest-spi.h>

#include <cstdlib>
#include <iostream>

namespace {

using namespace zutest;
using Texts = std::vector<std::string>;

constexpr const char* queryFailed = "SQL query failed.";
constexpr const char* connectionFailed = "Connect to Test DataSource failed.";

class DbFailure : public TableTest
{
public:
    DbFailure()
    {
        runSql(file, createTable("t", "A VARCHAR(4), L INTEGER", {"'a', 1", "'b', 2", "'c', 3"}));
        driver.forget();
    }
};

// An operation on a table whose second row is current and read; the result as a number.
using Operation = int32_t (*)(int32_t table, DbFldList* values);

// A list as its length; -1 for none.
int32_t lengthOf(DbFldList* list)
{
    const int32_t length = list == nullptr ? -1 : static_cast<int32_t>(zu_DbFldList_length(list));
    zu_DbFldList_destroy(list);
    return length;
}

int32_t unread(int32_t table)
{
    zu_Db_appRec(table);
    zu_DbRef_sel(table)->mode = ZU_DB_OPENED;
    return table;
}

int32_t appended(int32_t table)
{
    zu_Db_appRec(table);
    return table;
}

struct On
{
    static int32_t top(int32_t table, DbFldList*) { return zu_Db_topRec(table, 0); }
    static int32_t next(int32_t table, DbFldList*) { return zu_Db_nextRec(table, 0); }
    static int32_t previous(int32_t table, DbFldList*) { return zu_Db_prevRec(table, 0); }
    static int32_t bottom(int32_t table, DbFldList*) { return zu_Db_botRec(table, 0); }
    static int32_t structure(int32_t table, DbFldList*) { return lengthOf(zu_Db_struct(table)); }
    static int32_t blank(int32_t table, DbFldList*) { return lengthOf(zu_Db_readRec(appended(table), 0)); }
    static int32_t count(int32_t table, DbFldList*) { return zu_Db_getRecordCount(table); }
    static int32_t read(int32_t table, DbFldList*) { return lengthOf(zu_Db_readRec(unread(table), 0)); }
    static int32_t field(int32_t table, DbFldList*) { return zu_Db_getFldStr(unread(table), W("A")) != nullptr; }
    static int32_t seek(int32_t table, DbFldList*) { return zu_Db_seekStr(W("a"), table, 0); }
    static int32_t insert(int32_t table, DbFldList* values) { return zu_Db_modRec(appended(table), values); }
    static int32_t update(int32_t table, DbFldList* values) { return zu_Db_modRec(table, values); }
};

constexpr const char* allocation = "SQLAllocHandle:STMT";

const struct
{
    const char* what;
    Operation operation;
    const char* call;
    int number;
    int failure;
    int32_t result;
    const char* printed;
    bool isOpen; // whether there is a row afterwards
} statusRows[] = {
    {"top, no statement", On::top, allocation, 1, odbcError, 1, "", false},
    {"top, select", On::top, "SQLExecDirect", 1, odbcError, 1, queryFailed, false},
    {"top, select with information", On::top, "SQLExecDirect", 1, odbcInformation, 0, "", true},
    {"top, columns", On::top, "SQLNumResultCols", 1, odbcError, 1, "", false},
    {"top, description: what was bound is read", On::top, "SQLDescribeCol", 2, odbcError, 0, "", true},
    {"top, binding", On::top, "SQLBindCol", 2, odbcError, 1, "", false},
    {"top, row", On::top, "SQLFetch", 1, odbcError, 1, "", false},
    {"top, row with information", On::top, "SQLFetch", 1, odbcInformation, 1, "", false},
    {"next, row", On::next, "SQLFetch", 1, odbcError, 3, "", false},
    {"previous, select", On::previous, "SQLExecDirect", 1, odbcError, 3, queryFailed, false},
    {"structure, select", On::structure, "SQLExecDirect", 1, odbcError, -1, "", false},
    {"structure, columns", On::structure, "SQLNumResultCols", 1, odbcError, -1, "", false},
    {"structure, description", On::structure, "SQLDescribeCol", 2, odbcError, -1, "", false},
    {"structure, binding", On::structure, "SQLBindCol", 1, odbcError, -1, "", false},
    {"blank row, select", On::blank, "SQLExecDirect", 1, odbcError, -1, "", false},
    {"count, no statement", On::count, allocation, 1, odbcError, 0, "", true},
    {"count, select", On::count, "SQLExecDirect", 1, odbcError, 0, "", true},
    {"count, binding", On::count, "SQLBindCol", 1, odbcError, 0, "", true},
    {"count, row", On::count, "SQLFetch", 1, odbcError, 0, "", true},
    {"read, select", On::read, "SQLExecDirect", 1, odbcError, -1, queryFailed, false},
    {"field, select", On::field, "SQLExecDirect", 1, odbcError, 0, queryFailed, false},
    {"seek, way round", On::seek, "SQLExecDirect", 1, odbcError, 1, queryFailed, false},
    {"seek, first row of the way round", On::seek, "SQLFetch", 3, odbcError, 1, "", false},
    {"insert", On::insert, "SQLExecDirect", 1, odbcError, 1, queryFailed, false},
    {"update, no statement", On::update, allocation, 1, odbcError, 1, "", true},
    {"update", On::update, "SQLExecDirect", 1, odbcError, 1, "", true},
    {"update without a row", On::update, "SQLExecDirect", 1, odbcNoData, 0, "", true},
};

TEST_F(DbFailure, everyCallMayFail)
{
    const Wide path = sandbox.path(W("t"));
    DbFldList* const values = zu_DbFldList_create(W("A"), W("new"), none);
    zu_Db_closeDb(zu_Db_openDb(path.c_str())); // its connection stays
    const int64_t blocks = liveBlocks();
    for (const auto& row : statusRows) {
        SCOPED_TRACE(row.what);
        runSql(file, {"DELETE FROM t", "INSERT INTO t VALUES ('a', 1), ('b', 2), ('c', 3)"});
        {
            const Table table(path);
            zu_Db_topRec(table, 0);
            zu_Db_nextRec(table, 0);
            zu_DbFldList_destroy(zu_Db_readRec(table, 0));
            driver.plan({{row.call, row.number, row.failure}});
            int32_t result = -99;
            EXPECT_EQ(printedBy([&] { result = row.operation(table, values); }), row.printed);
            EXPECT_EQ(result, row.result);
            EXPECT_EQ(zu_Db_eof(table), row.isOpen ? 0 : 1);
            driver.plan({});
            driver.forget();
            // And the table is as good as before.
            EXPECT_EQ(zu_Db_topRec(table, 0), ZU_DB_DONE);
            EXPECT_EQ(str(zu_Db_getFldStr(table, W("A"))), W("a"));
        }
        EXPECT_EQ(driver.calls("SQLFreeHandle:STMT").size(),
                  driver.calls(allocation).size() + (row.isOpen && row.operation != On::insert ? 1u : 0u))
            << "no statement is left";
        EXPECT_EQ(liveBlocks(), blocks);
    }
    zu_DbFldList_destroy(values);
}

TEST_F(DbFailure, aPartlyDescribedTableHasTheColumnsUpToThere)
{
    const Table table(sandbox.path(W("t")));
    driver.plan({{"SQLDescribeCol", 2, odbcError}});
    EXPECT_EQ(zu_Db_topRec(table, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(table, W("A"))), W("a"));
    EXPECT_EQ(zu_Db_getFldStr(table, W("L")), nullptr);
    EXPECT_EQ(zu_DbFldList_length(zu_DbRef_sel(table)->fields), 1u);
}

TEST_F(DbFailure, aRowWithInformationEndsTheWayToTheLastOne)
{
    const Table table(sandbox.path(W("t")));
    zu_Db_topRec(table, 0);
    driver.plan({{"SQLFetch", 2, odbcInformation}});
    EXPECT_EQ(zu_Db_botRec(table, 0), ZU_DB_DONE);
    EXPECT_EQ(zu_DbRef_sel(table)->recordNumber, 1);
}

TEST_F(DbFailure, connections)
{
    // 0 here means any
    const std::tuple<const char*, const char*, int, int32_t> rows[] = {
        {"refused", "SQLDriverConnect", odbcError, -1},
        {"the driver has no connection", "SQLAllocHandle:DBC", odbcError, -1},
        {"made with information", "SQLDriverConnect", odbcInformation, 0},
    };
    int32_t number = 0;
    for (const auto& [what, call, failure, rowHandle] : rows) {
        SCOPED_TRACE(what);
        const Wide name = W("t") + widen(std::to_string(number)) + W(".db3");
        runSql(sandbox.native(name), createTable("t" + std::to_string(number), "A VARCHAR(4)", {"'a'"}));
        driver.plan({{call, 1, failure}});
        int32_t handle = 0;
        EXPECT_EQ(printedBy([&] { handle = zu_Db_openDb(sandbox.path(name).c_str()); }), connectionFailed);
        EXPECT_EQ(handle, rowHandle < 0 ? -1 : number);
        driver.plan({});
        ASSERT_NE(zu_DbRef_sel(number), nullptr) << "the record is there either way";
        EXPECT_EQ(zu_Db_topRec(number, 0), rowHandle < 0 ? ZU_DB_FAILED : ZU_DB_DONE);
        ++number;
    }
    while (number > 0)
        zu_Db_closeDb(--number);
}

TEST_F(DbFailure, withoutMemory)
{
    const Wide path = sandbox.path(W("t"));
    zu_Db_closeDb(zu_Db_openDb(path.c_str())); // the registries, and the connection that stays
    int32_t handle = 0;
    sweepAllocations(
        [&] {
            handle = zu_Db_openDb(path.c_str());
            zu_Db_closeDb(0);
        },
        [&] { EXPECT_EQ(handle, -1); });

    const Table table(path);
    DbFldList* const values = zu_DbFldList_create(W("A"), W("x"), none);
    const struct
    {
        const char* what;
        Operation operation;
        int32_t failure;
    } rows[] = {
        {"top", On::top, ZU_DB_FAILED}, {"blank", On::blank, -1}, {"count", On::count, 0},
        {"read", On::read, -1},         {"field", On::field, 0},  {"insert", On::insert, ZU_DB_FAILED},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        int32_t result = 0;
        zu_Db_appRec(table);
        sweepAllocations(
            [&] {
                result = row.operation(table, values);
                zu_Db_appRec(table); // drops the current row
            },
            [&] { EXPECT_EQ(result, row.failure); });
        EXPECT_NE(result, row.failure);
    }
    EXPECT_EQ(querySql(file, "SELECT * FROM t"), (Texts{"a|1", "b|2", "c|3", "x|<null>"})) << "inserted once, no more";

    // Rows that are written twice without a result set, where the current row has to be made anew.
    int32_t result = 0;
    zu_DbFldList_modFldVal(values, W("A"), W("y"));
    sweepAllocations(
        [&] {
            zu_Db_appRec(table);
            if ((result = zu_Db_modRec(table, values)) == ZU_DB_DONE) {
                zu_Db_modRec(table, values);
                zu_Db_appRec(table);
            }
        },
        [] {});
    zu_Db_topRec(table, 0);
    EXPECT_EQ(zu_Db_seekStr(W("a"), table, 0), ZU_DB_FAILED) << "still in append mode";
    zu_DbRef_sel(table)->mode = ZU_DB_READ;
    sweepAllocations([&] { result = zu_Db_modRec(table, values); },
                     [&] {
                         EXPECT_EQ(result, ZU_DB_FAILED);
                         EXPECT_EQ(str(zu_Db_getFldStr(table, W("A"))), W("a"));
                     });
    EXPECT_EQ(str(zu_Db_getFldStr(table, W("A"))), W("y"));
    zu_DbFldList_destroy(values);
}

#if !defined(_WIN32)
// Ends the process of a death test; what went wrong in it is told on standard error, because gtest is silent there.
[[noreturn]] void runAndExit(const std::function<void()>& body)
{
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&failures);
        body();
    }
    for (int index = 0; index < failures.size(); ++index)
        std::cerr << failures.GetTestPartResult(index);
    std::exit(failures.size() == 0 ? 0 : 1);
}

class DbStart : public testing::Test
{
public:
    DbStart()
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        sandbox.write(W("t.db3"), "");
        sandbox.write(W("t.dbf"), "");
    }
    // Runs body in a process of its own, which has not used the driver manager yet.
    void inFreshProcess(const std::function<void()>& body)
    {
        EXPECT_EXIT(runAndExit(body), testing::ExitedWithCode(0), "");
    }
    std::string opening(WideView name, int32_t expected)
    {
        int32_t handle = -99;
        const std::string printed = printedBy([&] { handle = zu_Db_openDb(sandbox.path(name).c_str()); });
        EXPECT_EQ(handle, expected);
        return printed;
    }

    Sandbox sandbox;
};

TEST_F(DbStart, withoutAnEnvironment)
{
    inFreshProcess([&] {
        {
            const FailingAllocation failing(1);
            // Only a connection that says it failed makes the opening fail; one that could not be tried does not.
            EXPECT_EQ(opening(W("t.db3"), 0),
                      "Error allocating env handle\nAllocHandle on DBC failed\n" + std::string(connectionFailed));
            EXPECT_EQ(opening(W("t.dbf"), 1), "Error allocating env handle\nAllocHandle on DBC failed\n");
        }
        EXPECT_EQ(printedBy([] { EXPECT_EQ(zu_Db_topRec(0, 0), ZU_DB_FAILED); }), "");
        EXPECT_EQ(zu_Db_getRecordCount(1), 0);
        EXPECT_EQ(zu_Db_struct(1), nullptr);
        EXPECT_EQ(opening(W("t.db3"), 2), "") << "the environment is tried again";
        EXPECT_EQ(opening(W("t.dbf"), 3), "") << "the shared connection is not";
        EXPECT_EQ(zu_DbRef_sel(3)->connection, nullptr);
    });
}

TEST_F(DbStart, withoutAConnection)
{
    inFreshProcess([&] {
        {
            const FailingAllocation failing(2);
            EXPECT_EQ(opening(W("t.db3"), 0), "AllocHandle on DBC failed\n" + std::string(connectionFailed));
            EXPECT_EQ(opening(W("t.dbf"), 1), "AllocHandle on DBC failed\n");
        }
        const FailingAllocation failing(3);
        EXPECT_EQ(opening(W("t.db3"), 2), "");
        EXPECT_EQ(printedBy([] { EXPECT_EQ(zu_Db_topRec(2, 0), ZU_DB_FAILED); }), "");
    });
}

TEST_F(DbStart, theSharedConnectionIsTriedOnce)
{
    inFreshProcess([&] {
        Driver driver;
        driver.plan({{"SQLConnect", 1, odbcError}});
        EXPECT_EQ(opening(W("t.dbf"), 0), connectionFailed);
        driver.plan({});
        zu_Db_init();
        EXPECT_EQ(opening(W("t.dbf"), 1), "");
        EXPECT_EQ(driver.calls("SQLConnect").size(), 1u);
        EXPECT_EQ(zu_Db_topRec(1, 0), ZU_DB_FAILED);
        EXPECT_EQ(zu_Db_getRecordCount(1), 0);
    });
}

TEST_F(DbStart, theDriverIsNotInstalled)
{
    inFreshProcess([&] {
        sandbox.write(W("odbcinst.ini"), "[Some other driver]\nDriver=none.so\n");
        sandbox.setEnvironment("ODBCSYSINI", sandbox.native().string());
        EXPECT_EQ(opening(W("t.db3"), -1), connectionFailed);
        EXPECT_EQ(opening(W("t.dbf"), 1), connectionFailed);
        EXPECT_EQ(zu_Db_topRec(1, 0), ZU_DB_FAILED);
    });
}
#endif

} // namespace
