// The test's hold on the recording driver, and the tables that it reads.
#pragma once

#include "support/sandbox.h"

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
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

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
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
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
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    std::unique_ptr<class Session> session;
};
// The database behind the data source of ".dbf" tables.
std::filesystem::path sharedDatabase();

// What an action prints on standard output, with \n for the line ends.
std::string printedBy(const std::function<void()>& action);

// The statements that make a table with rows.
std::vector<std::string> createTable(const std::string& name, const std::string& columns,
                                     const std::vector<std::string>& rows);

} // namespace zutest
