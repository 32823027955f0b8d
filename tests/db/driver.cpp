#include "driver.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#if defined(_WIN32)
#    include <windows.h>
#else
#    include <dlfcn.h>
#endif
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace fs = std::filesystem;

namespace zutest {
namespace {

// The directory of the registration, as this program sees it.
fs::path registration()
{
#if defined(_WIN32)
    return fs::path("Z:" ZU_TEST_ODBC_DIRECTORY);
#else
    return fs::path(ZU_TEST_ODBC_DIRECTORY);
#endif
}

// The driver manager looks for the registration at its first call. Under Wine that is the host's, which sees the
// environment that the program was started with.
class Registration : public testing::Environment
{
    void SetUp() override
    {
#if defined(_WIN32)
        const char* const directory = std::getenv("ODBCSYSINI");
        ASSERT_TRUE(directory != nullptr && std::string(directory) == ZU_TEST_ODBC_DIRECTORY)
            << "start this program with ODBCSYSINI=" ZU_TEST_ODBC_DIRECTORY " (ctest does)";
#else
        ::setenv("ODBCSYSINI", ZU_TEST_ODBC_DIRECTORY, 1);
#endif
        fs::remove(registration() / "plan");
    }
};
[[maybe_unused]] testing::Environment* const environment = testing::AddGlobalTestEnvironment(new Registration);

std::string contentOf(const fs::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

} // namespace

// A connection of the test's own, through the recording driver like all others.
class Session
{
public:
    explicit Session(const fs::path& file)
    {
        SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &environmentHandle);
        SQLSetEnvAttr(environmentHandle, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, environmentHandle, &connection);
        EXPECT_TRUE(SQL_SUCCEEDED(connect(file))) << file;
        SQLAllocHandle(SQL_HANDLE_STMT, connection, &statement);
    }
    ~Session()
    {
        SQLFreeHandle(SQL_HANDLE_STMT, statement);
        SQLDisconnect(connection);
        SQLFreeHandle(SQL_HANDLE_DBC, connection);
        SQLFreeHandle(SQL_HANDLE_ENV, environmentHandle);
    }
    Session(const Session&) = delete;

    void run(std::string sql)
    {
        const SQLRETURN result = execute(sql);
        EXPECT_TRUE(SQL_SUCCEEDED(result) || result == SQL_NO_DATA) << sql;
    }

    std::vector<std::string> rows(std::string query)
    {
        run(query);
        SQLSMALLINT count = 0;
        SQLNumResultCols(statement, &count);
        std::vector<std::string> result;
        while (SQLFetch(statement) == SQL_SUCCESS) {
            std::string row;
            for (SQLSMALLINT number = 1; number <= count; ++number) {
                SQLCHAR value[4096] = {};
                SQLLEN length = 0;
                SQLGetData(statement, static_cast<SQLUSMALLINT>(number), SQL_C_CHAR, value, sizeof value, &length);
                row += (number == 1 ? "" : "|");
                row += length == SQL_NULL_DATA ? "<null>" : reinterpret_cast<const char*>(value);
            }
            result.push_back(row);
        }
        return result;
    }

private:
#if defined(_WIN32)
    SQLRETURN connect(const fs::path& file)
    {
        std::wstring text = L"Driver=SQLite3 ODBC Driver;Database=" + file.wstring() + L";";
        return SQLDriverConnectW(connection, nullptr, text.data(), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    }
    SQLRETURN execute(std::string& sql)
    {
        std::wstring text(sql.size(), L'\0');
        text.resize(static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, sql.data(), static_cast<int>(sql.size()),
                                                                   text.data(), static_cast<int>(text.size()))));
        return SQLExecDirectW(statement, text.data(), SQL_NTS);
    }
#else
    static SQLCHAR* bytes(std::string& text)
    {
        return reinterpret_cast<SQLCHAR*>(text.data());
    }
    SQLRETURN connect(const fs::path& file)
    {
        std::string text = "Driver=SQLite3 ODBC Driver;Database=" + file.string() + ";";
        return SQLDriverConnect(connection, nullptr, bytes(text), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    }
    SQLRETURN execute(std::string& sql)
    {
        return SQLExecDirect(statement, bytes(sql), SQL_NTS);
    }
#endif

    SQLHENV environmentHandle = nullptr;
    SQLHDBC connection = nullptr;
    SQLHSTMT statement = nullptr;
};

Driver::Driver()
{
    plan({});
    forget();
}

Driver::~Driver()
{
    plan({});
    zu_Db_closeAll();
}

void Driver::plan(const std::vector<Failure>& failures)
{
    static int generation = 0;
    std::ofstream file(registration() / "plan", std::ios::binary);
    file << "plan " << ++generation << '\n';
    for (const Failure& failure : failures)
        file << failure.call << ' ' << failure.number << ' ' << failure.result << '\n';
}

std::vector<std::string> Driver::calls(const std::string& name) const
{
    std::istringstream log(contentOf(registration() / "log"));
    std::vector<std::string> result;
    for (std::string line; std::getline(log, line);) {
        if (line.starts_with(name + "\t"))
            result.push_back(line.substr(name.size() + 1));
    }
    return result;
}

void Driver::forget()
{
    fs::remove(registration() / "log");
}

std::vector<std::string> Driver::statements()
{
    auto result = calls("SQLExecDirect");
    forget();
    return result;
}

Table::Table(WideView path) : handle(zu_Db_openDb(Wide(path).c_str()))
{
    EXPECT_GE(handle, 0);
}

Table::~Table()
{
    zu_Db_closeDb(handle);
}

void runSql(const fs::path& file, const std::vector<std::string>& statements)
{
    Session session(file);
    for (const std::string& statement : statements)
        session.run(statement);
}

std::vector<std::string> querySql(const fs::path& file, const std::string& query)
{
    return Session(file).rows(query);
}

Lock::Lock(const fs::path& file) : session(std::make_unique<Session>(file))
{
    session->run("BEGIN EXCLUSIVE");
}

Lock::~Lock()
{
    session->run("ROLLBACK");
}

fs::path sharedDatabase()
{
    return registration() / "shared.db3";
}

#if !defined(_WIN32)
static int failingType = 0;

// The library finds this one before the driver manager's, because the program comes first.
extern "C" __attribute__((visibility("default"))) SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE parent,
                                                                                   SQLHANDLE* handle)
{
    if (type == failingType)
        return SQL_ERROR;
    using Routine = SQLRETURN (*)(SQLSMALLINT, SQLHANDLE, SQLHANDLE*);
    static const auto next = reinterpret_cast<Routine>(dlsym(RTLD_NEXT, "SQLAllocHandle"));
    return next(type, parent, handle);
}

FailingAllocation::FailingAllocation(int type)
{
    failingType = type;
}

FailingAllocation::~FailingAllocation()
{
    failingType = 0;
}
#endif

std::vector<std::string> createTable(const std::string& name, const std::string& columns,
                                     const std::vector<std::string>& rows)
{
    std::vector<std::string> statements{"CREATE TABLE " + name + " (" + columns + ")"};
    for (const std::string& row : rows)
        statements.push_back("INSERT INTO " + name + " VALUES (" + row + ")");
    return statements;
}

} // namespace zutest
