// ODBC: its own headers, and what differs between the systems in using it. The only way to those headers.
//
// Bound data is UTF-16 everywhere. Texts that are passed as arguments (statements, names, connection strings) go
// through the wide calls on Windows. Elsewhere they go through the narrow calls as UTF-8: the driver manager there
// converts wide texts for drivers without wide calls, and destroys all characters beyond 16 bits, in some calls more.
#pragma once

#include "frame/text.h"

#if defined(_WIN32)
#    include <windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <optional>

namespace zu::platform::odbc {

static_assert(sizeof(SQLWCHAR) == sizeof(zu_wchar));

// A column of a result set. Names are cut at 199 units, the room that they are asked for with.
struct Column
{
    text::Buffer<199> name;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT decimals = 0;
};

// The first diagnostic record of a call that failed.
struct Diagnostic
{
    text::Buffer<5> state;
    SQLINTEGER native = 0;
    text::Buffer<543> message;
};

// SQLAllocHandle for a connection whose narrow texts are UTF-8, whatever the locale of the process is.
SQLRETURN allocateConnection(SQLHENV environment, SQLHDBC& connection);

// SQLConnect; the lengths are passed on as they are given.
SQLRETURN connect(SQLHDBC connection, const zu_wchar* source, const zu_wchar* user, SQLSMALLINT userLength,
                  const zu_wchar* password, SQLSMALLINT passwordLength);

// SQLDriverConnect without a window and without asking anybody.
SQLRETURN connect(SQLHDBC connection, const WideString& connectionString);

// A path as drivers take it in a connection string; none when it names no place of this system.
std::optional<WideString> pathForDriver(WideView path);

// SQLExecDirect.
SQLRETURN execute(SQLHSTMT statement, const WideString& sql);

// SQLDescribeCol; columns count from 1.
SQLRETURN describe(SQLHSTMT statement, SQLUSMALLINT number, Column& column);

// SQLGetDiagRec for the first record.
SQLRETURN diagnose(SQLSMALLINT kind, SQLHANDLE handle, Diagnostic& diagnostic);

// Whether a character ends the directory part of a path.
bool endsDirectory(zu_wchar unit);

} // namespace zu::platform::odbc
