#include "platform/odbc.h"

namespace zu::platform::odbc {
namespace {

SQLWCHAR* wide(const zu_wchar* text)
{
    return const_cast<SQLWCHAR*>(text);
}

} // namespace

SQLRETURN allocateConnection(SQLHENV environment, SQLHDBC& connection)
{
    return ::SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection);
}

SQLRETURN connect(SQLHDBC connection, const zu_wchar* source, const zu_wchar* user, SQLSMALLINT userLength,
                  const zu_wchar* password, SQLSMALLINT passwordLength)
{
    return ::SQLConnectW(connection, wide(source), SQL_NTS, wide(user), userLength, wide(password), passwordLength);
}

SQLRETURN connect(SQLHDBC connection, const WideString& connectionString)
{
    SQLWCHAR completed[1024];
    SQLSMALLINT length = 0;
    return ::SQLDriverConnectW(connection, nullptr, wide(connectionString.c_str()), SQL_NTS, completed,
                               static_cast<SQLSMALLINT>(std::size(completed)), &length, SQL_DRIVER_NOPROMPT);
}

std::optional<WideString> pathForDriver(WideView path)
{
    return WideString(path);
}

SQLRETURN execute(SQLHSTMT statement, const WideString& sql)
{
    return ::SQLExecDirectW(statement, wide(sql.c_str()), SQL_NTS);
}

SQLRETURN describe(SQLHSTMT statement, SQLUSMALLINT number, Column& column)
{
    SQLSMALLINT length = 0;
    SQLSMALLINT nullable = 0;
    column.name.clear();
    return ::SQLDescribeColW(statement, number, column.name.units,
                             static_cast<SQLSMALLINT>(std::size(column.name.units)), &length, &column.type,
                             &column.size, &column.decimals, &nullable);
}

SQLRETURN diagnose(SQLSMALLINT kind, SQLHANDLE handle, Diagnostic& diagnostic)
{
    SQLSMALLINT length = 0;
    return ::SQLGetDiagRecW(kind, handle, 1, diagnostic.state.units, &diagnostic.native, diagnostic.message.units,
                            static_cast<SQLSMALLINT>(std::size(diagnostic.message.units)), &length);
}

bool endsDirectory(zu_wchar unit)
{
    return unit == L'\\';
}

} // namespace zu::platform::odbc
