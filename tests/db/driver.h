// The test's hold on the recording driver, and the tables that it reads.
#pragma once

#include "support/trace.h"
#include "zu_Db.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zutest {

// Under Wine all texts go through the host's driver manager, which loses characters beyond 16 bits in statements and
// names, and connection strings with more than one letter beyond ASCII. Values that are fetched arrive whole.
#if defined(_WIN32)
constexpr bool allTextsPass = false;
#else
constexpr bool allTextsPass = true;
#endif

// Results of ODBC calls.
constexpr int odbcInformation = 1;
constexpr int odbcNoData = 100;
constexpr int odbcError = -1;

// While it lives, a test may read what the driver was asked and tell it to fail. All tables are closed afterwards.
class Driver
{
public:
    Driver();
    ~Driver();

    struct Failure
    {
        std::string call; // "SQLFetch"; "SQLAllocHandle:STMT"
        int number;       // which of the calls from now on, from 1
        int result;
    };
    // Replaces the plan before; none is without failures.
    void plan(const std::vector<Failure>& failures);

    // What the calls of a name were asked since the driver was last told to forget, in UTF-8.
    std::vector<std::string> calls(const std::string& name) const;
    void forget();
    // The statements since then, which are forgotten.
    std::vector<std::string> statements();
};

// An open table that is closed at the end of the scope.
class Table
{
public:
    explicit Table(WideView path);
    ~Table();
    operator std::int32_t() const { return handle; }

private:
    std::int32_t handle;
};

// Executes statements on a database file, which is created when it is missing, past the library.
void runSql(const std::filesystem::path& file, const std::vector<std::string>& statements);
// The rows of a query as "a|b|c".
std::vector<std::string> querySql(const std::filesystem::path& file, const std::string& query);
// Keeps everybody else from reading or writing a database while it lives.
class Lock
{
public:
    explicit Lock(const std::filesystem::path& file);
    ~Lock();

private:
    std::unique_ptr<class Session> session;
};
// The database behind the data source of ".dbf" tables.
std::filesystem::path sharedDatabase();

#if !defined(_WIN32)
// While it lives, the driver manager itself fails to allocate handles of this type (1 environment, 2 connection,
// 3 statement), which no driver sees.
class FailingAllocation
{
public:
    explicit FailingAllocation(int type);
    ~FailingAllocation();
};
#endif

// The statements that make a table with rows.
std::vector<std::string> createTable(const std::string& name, const std::string& columns,
                                     const std::vector<std::string>& rows);

struct ListDeleter
{
    void operator()(DbFldList* list) const { zu_DbFldList_destroy(list); }
};
using List = std::unique_ptr<DbFldList, ListDeleter>;

constexpr const zu_wchar* none = nullptr; // the end of a list of arguments

// A fresh directory with a recording driver, and a table of the test's own.
class TableTest : public testing::Test
{
public:
    // Opens a fresh table "t" of these columns and rows.
    const Table& table(const std::string& columns, const std::vector<std::string>& rows = {})
    {
        runSql(file, createTable("t", columns, rows));
        opened = std::make_unique<Table>(sandbox.path(W("t")));
        driver.forget();
        return *opened;
    }
    std::vector<std::string> content() { return querySql(file, "SELECT * FROM t ORDER BY 1"); }
    int32_t mode() const { return zu_DbRef_sel(*opened)->mode; }
    int32_t recordNumber() const { return zu_DbRef_sel(*opened)->recordNumber; }

    Sandbox sandbox;
    Driver driver;
    std::filesystem::path file = sandbox.native(W("t.db3"));
    std::unique_ptr<Table> opened;
};

} // namespace zutest
