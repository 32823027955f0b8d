#include "db/connection.h"

#include "frame/console.h"
#include "platform/files.h"

namespace zu::db {
namespace {

using namespace platform;

// Never freed: it serves until the process ends.
SQLHENV environment = nullptr;

void prepareEnvironment()
{
    if (environment == nullptr && !SQL_SUCCEEDED(::SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment))) {
        environment = nullptr;
        writeConsole(ZU_W("Error allocating env handle\n"));
    }
    ::SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
}

// Null when there is none to be had.
SQLHDBC allocateConnection()
{
    prepareEnvironment();
    SQLHDBC connection = nullptr;
    if (SQL_SUCCEEDED(odbc::allocateConnection(environment, connection)))
        return connection;
    writeConsole(ZU_W("AllocHandle on DBC failed\n"));
    return nullptr;
}

void reportFailedConnection(SQLHDBC connection)
{
    keepDiagnostic(SQL_HANDLE_DBC, connection);
    writeConsole(ZU_W("Connect to Test DataSource failed."));
}

// A connection to a database file. It is known here as long as it is connected, and its file stays open meanwhile.
struct FileConnection
{
    FileConnection* next;
    SQLHDBC connection;
    std::optional<std::uint64_t> identity; // of the file, when it was connected
    bool isIdle;
    zu_wchar path[1]; // its full path; the block is as long as that needs
};

FileConnection* fileConnections = nullptr;

struct FileConnectionDeleter
{
    void operator()(FileConnection* entry) const noexcept
    {
        if (entry->connection != nullptr) {
            ::SQLDisconnect(entry->connection);
            ::SQLFreeHandle(SQL_HANDLE_DBC, entry->connection);
        }
        zu_Free(entry);
    }
};
using FileConnectionPtr = std::unique_ptr<FileConnection, FileConnectionDeleter>;

FileConnectionPtr newEntry(WideView path, std::optional<std::uint64_t> identity)
{
    FileConnectionPtr entry(
        static_cast<FileConnection*>(zu_Calloc(1, sizeof(FileConnection) + path.size() * sizeof(zu_wchar))));
    if (entry == nullptr)
        throw std::bad_alloc();
    entry->identity = identity;
    text::copyCut(entry->path, path.size(), path);
    return entry;
}

std::optional<std::uint64_t> identityOf(WideView path)
{
    const auto stamp = fileStamp(path);
    return stamp ? std::optional(stamp->identity) : std::nullopt;
}

// An idle connection to a file, busy from now on; null without one. Connections to what stood at the path before, a
// file that was replaced or deleted since, can serve nobody any more and go.
SQLHDBC takeIdle(WideView path, std::optional<std::uint64_t> identity)
{
    SQLHDBC found = nullptr;
    for (FileConnection** link = &fileConnections; *link != nullptr;) {
        FileConnection& entry = **link;
        if (!entry.isIdle || path != entry.path) {
            link = &entry.next;
        } else if (identity && entry.identity == identity) {
            if (found == nullptr) {
                entry.isIdle = false;
                found = entry.connection;
            }
            link = &entry.next;
        } else {
            *link = entry.next;
            FileConnectionPtr{&entry}.reset();
        }
    }
    return found;
}

} // namespace

void keepDiagnostic(SQLSMALLINT kind, SQLHANDLE handle)
{
    static odbc::Diagnostic last;
    last = {};
    odbc::diagnose(kind, handle, last);
}

SQLHDBC sharedConnection()
{
    static bool isMade = false;
    static SQLHDBC connection = nullptr;
    if (std::exchange(isMade, true))
        return connection;
    connection = allocateConnection();
    // The name comes with a length of 0, so that the driver sees no user: that is how it is meant.
    if (odbc::connect(connection, ZU_W("dBase for Kelvane"), ZU_W("Admin"), 0, ZU_W(""), 0) == SQL_ERROR)
        reportFailedConnection(connection);
    return connection;
}

bool fitsConnectionString(WideView path)
{
    // No way of quoting is understood by all drivers: ";" always ends the value, "{" in front begins a quoted one.
    return path.find(ZU_W(';')) == WideView::npos && !path.starts_with(ZU_W('{'));
}

Connection connectTo(WideView path)
{
    const WideString full = fullPath(path).value_or(WideString(path));
    const auto identity = identityOf(path);
    if (const SQLHDBC idle = takeIdle(full, identity))
        return {idle};
    const auto driverPath = odbc::pathForDriver(path);
    if (!driverPath)
        return {nullptr, true};

    FileConnectionPtr entry = newEntry(full, identity);
    entry->connection = allocateConnection();
    const SQLRETURN result =
        odbc::connect(entry->connection, formatted(ZU_W("Driver=SQLite3 ODBC Driver;Database=%s;"), *driverPath));
    if (result != SQL_SUCCESS)
        reportFailedConnection(entry->connection);
    // Only this result is a failure: without a connection handle at all the table opens, and cannot be read.
    if (result == SQL_ERROR)
        return {nullptr, true};
    if (entry->connection == nullptr)
        return {};
    entry->next = fileConnections;
    fileConnections = entry.release();
    return {fileConnections->connection};
}

void giveBack(SQLHDBC connection)
{
    for (FileConnection* entry = fileConnections; entry != nullptr; entry = entry->next) {
        if (entry->connection == connection)
            entry->isIdle = true;
    }
}

void freeStatement(SQLHSTMT statement)
{
    if (statement == nullptr)
        return;
    ::SQLFreeStmt(statement, SQL_CLOSE);
    ::SQLFreeHandle(SQL_HANDLE_STMT, statement);
}

} // namespace zu::db
