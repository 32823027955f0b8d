// The ODBC environment, the connections, and statements on them.
#pragma once

#include "platform/odbc.h"

#include <utility>

namespace zu::db {

// Keeps the first diagnostic record of a failure, for whoever looks with a debugger: nothing shows it.
void keepDiagnostic(SQLSMALLINT kind, SQLHANDLE handle);

// The connection to the data source that all ".dbf" tables share, made by the first call. A connection that failed is
// kept as it is and not tried again: statements on it fail.
SQLHDBC sharedConnection();

// The connection of an open table. It may be null without having failed: then statements on it fail.
struct Connection
{
    SQLHDBC handle = nullptr;
    bool failed = false;
};

// A connection to a database file, for the caller alone until it gives it back. Connections are not disconnected: one
// that was given back serves the next caller who wants the same file.
Connection connectTo(WideView path);
void giveBack(SQLHDBC connection);

// Whether a connection string can hold the path.
bool fitsConnectionString(WideView path);

void freeStatement(SQLHSTMT statement);

// A statement of the scope.
class Statement
{
public:
    explicit Statement(SQLHDBC connection)
    {
        if (!SQL_SUCCEEDED(::SQLAllocHandle(SQL_HANDLE_STMT, connection, &handle)))
            handle = nullptr;
    }
    ~Statement() { freeStatement(handle); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    bool isAllocated() const { return handle != nullptr; }
    SQLHSTMT get() const { return handle; }
    SQLHSTMT release() { return std::exchange(handle, nullptr); }

private:
    SQLHSTMT handle = nullptr;
};

} // namespace zu::db
