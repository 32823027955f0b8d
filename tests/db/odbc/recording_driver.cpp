// An ODBC driver for tests: it passes every call on to the SQLite driver, writes down what it was asked, and fails
// where the test says so. The driver manager finds the calls that are not here in the SQLite driver, which this one is
// linked to.
//
// Both ends meet in the directory of the test registration, named by ODBCSYSINI:
//   log   one line a call: its name, a tab, and what it was asked
//   plan  first line: any text that tells this plan from the one before
//         other lines: call, number, result. The call of that name and number, counted from 1 since the plan is there,
//         gives that result. SQL_SUCCESS_WITH_INFO is given in place of success; any other result without calling the
//         SQLite driver.
//
// Two things are bent so that tests can run anywhere: paths with drive letters, as Windows programs pass them under
// Wine, become the system's own, and [directory]\table.dbf in a statement becomes the table.
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace {

std::string fileOf(const char* name)
{
    const char* const directory = std::getenv("ODBCSYSINI");
    return std::string(directory == nullptr ? "." : directory) + "/" + name;
}

void record(const std::string& call, std::string argument)
{
    std::replace(argument.begin(), argument.end(), '\n', ' ');
    std::ofstream(fileOf("log"), std::ios::app) << call << '\t' << argument << '\n';
}

// The result that the plan has for this call; 0 for none.
SQLRETURN plannedResult(const std::string& call)
{
    static std::string plan;
    static std::map<std::string, int> counts;
    std::ostringstream now;
    now << std::ifstream(fileOf("plan")).rdbuf();
    if (now.str() != plan) {
        plan = now.str();
        counts.clear();
    }
    const int count = ++counts[call];
    std::istringstream lines(plan);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string name;
        int number = 0;
        int result = 0;
        if (words >> name >> number >> result && name == call && number == count)
            return static_cast<SQLRETURN>(result);
    }
    return SQL_SUCCESS;
}

void* driverRoutine(const char* name)
{
    static void* const driver = dlopen(ZU_SQLITE_DRIVER, RTLD_NOW | RTLD_LOCAL);
    return dlsym(driver, name);
}

// Records a call, then does what the plan says or calls the SQLite driver's routine of a name.
template <class... Parameters, class... Arguments>
SQLRETURN pass(SQLRETURN (*)(Parameters...), const char* routine, const std::string& call, const std::string& argument,
               Arguments... arguments)
{
    record(call, argument);
    const SQLRETURN planned = plannedResult(call);
    if (planned != SQL_SUCCESS && planned != SQL_SUCCESS_WITH_INFO)
        return planned;
    const auto target = reinterpret_cast<SQLRETURN (*)(Parameters...)>(driverRoutine(routine));
    const SQLRETURN result = target(static_cast<Parameters>(arguments)...);
    return result == SQL_SUCCESS ? planned : result;
}

std::string text(const SQLCHAR* bytes, SQLINTEGER length)
{
    const auto* const characters = reinterpret_cast<const char*>(bytes);
    if (bytes == nullptr)
        return "";
    return length == SQL_NTS ? std::string(characters) : std::string(characters, static_cast<std::size_t>(length));
}

SQLCHAR* bytesOf(std::string& text)
{
    return reinterpret_cast<SQLCHAR*>(text.data());
}

std::string handleName(SQLSMALLINT type)
{
    return type == SQL_HANDLE_ENV ? "ENV" : type == SQL_HANDLE_DBC ? "DBC" : "STMT";
}

// Z:\a\b is reached through the directory of Wine's drives.
std::string withoutDrive(std::string connection)
{
    const std::size_t path = connection.find("Database=") + std::strlen("Database=");
    const char* const prefix = std::getenv("WINEPREFIX");
    if (prefix == nullptr || path + 1 >= connection.size() || connection[path + 1] != ':')
        return connection;
    const std::size_t end = connection.find(';', path);
    connection[path] = static_cast<char>(connection[path] | 0x20);
    std::replace(connection.begin() + static_cast<std::ptrdiff_t>(path),
                 connection.begin() + static_cast<std::ptrdiff_t>(end), '\\', '/');
    return connection.insert(path, std::string(prefix) + "/dosdevices/");
}

std::string withoutDirectory(std::string sql)
{
    const std::size_t name = sql.find("]\\") != std::string::npos ? sql.find("]\\") : sql.find("]/");
    const std::size_t extension = sql.find(".dbf");
    if (name == std::string::npos || extension == std::string::npos || extension < name)
        return sql;
    sql.erase(extension, 4);
    const std::size_t start = sql.rfind('[', name);
    return sql.erase(start, name + 2 - start);
}

} // namespace

extern "C" {

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC connection, SQLHWND window, SQLCHAR* in, SQLSMALLINT inLength, SQLCHAR* out,
                                   SQLSMALLINT room, SQLSMALLINT* outLength, SQLUSMALLINT completion)
{
    const std::string string = text(in, inLength);
    // A file that another program holds is waited for, but not for long. The attribute stands first: a driver manager
    // that is called through Wine can leave a stray character behind the end of a text that is not all ASCII.
    std::string passed = "Timeout=200;" + withoutDrive(string);
    return pass(SQLDriverConnect, "SQLDriverConnect", "SQLDriverConnect", string, connection, window, bytesOf(passed),
                SQLSMALLINT{SQL_NTS}, out, room, outLength, completion);
}

SQLRETURN SQL_API SQLDisconnect(SQLHDBC connection)
{
    return pass(SQLDisconnect, "SQLDisconnect", "SQLDisconnect", "", connection);
}

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE parent, SQLHANDLE* handle)
{
    return pass(SQLAllocHandle, "SQLAllocHandle", "SQLAllocHandle:" + handleName(type), "", type, parent, handle);
}

// What the driver manager calls for a statement where a driver has it.
SQLRETURN SQL_API SQLAllocStmt(SQLHDBC connection, SQLHSTMT* statement)
{
    return pass(SQLAllocStmt, "SQLAllocStmt", "SQLAllocHandle:STMT", "", connection, statement);
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT type, SQLHANDLE handle)
{
    return pass(SQLFreeHandle, "SQLFreeHandle", "SQLFreeHandle:" + handleName(type), "", type, handle);
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT statement, SQLSMALLINT* count)
{
    return pass(SQLNumResultCols, "SQLNumResultCols", "SQLNumResultCols", "", statement, count);
}

SQLRETURN SQL_API SQLBindCol(SQLHSTMT statement, SQLUSMALLINT number, SQLSMALLINT type, SQLPOINTER value, SQLLEN room,
                             SQLLEN* length)
{
    return pass(SQLBindCol, "SQLBindCol", "SQLBindCol",
                std::to_string(number) + " " + std::to_string(type) + " " + std::to_string(room), statement, number,
                type, value, room, length);
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT statement)
{
    return pass(SQLFetch, "SQLFetch", "SQLFetch", "", statement);
}

SQLRETURN SQL_API SQLConnect(SQLHDBC connection, SQLCHAR* source, SQLSMALLINT sourceLength, SQLCHAR* user,
                             SQLSMALLINT userLength, SQLCHAR* password, SQLSMALLINT passwordLength)
{
    return pass(SQLConnect, "SQLConnect", "SQLConnect", text(source, sourceLength), connection, source, sourceLength,
                user, userLength, password, passwordLength);
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT statement, SQLCHAR* sql, SQLINTEGER length)
{
    std::string passed = withoutDirectory(text(sql, length));
    return pass(SQLExecDirect, "SQLExecDirect", "SQLExecDirect", text(sql, length), statement, bytesOf(passed),
                SQLINTEGER{SQL_NTS});
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT statement, SQLUSMALLINT number, SQLCHAR* name, SQLSMALLINT room,
                                 SQLSMALLINT* length, SQLSMALLINT* type, SQLULEN* size, SQLSMALLINT* decimals,
                                 SQLSMALLINT* nullable)
{
    return pass(SQLDescribeCol, "SQLDescribeCol", "SQLDescribeCol", std::to_string(number), statement, number, name,
                room, length, type, size, decimals, nullable);
}

} // extern "C"
