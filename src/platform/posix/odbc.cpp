#include "platform/odbc.h"

#include "platform/posix/path.h"
#include "platform/utf8.h"

#include <locale.h>

namespace zu::platform::odbc {
namespace {

SQLCHAR* narrow(const char* text)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text));
}

template <std::size_t Capacity>
void decodeInto(text::Buffer<Capacity>& out, const SQLCHAR* bytes)
{
    out.set(utf8::decode(reinterpret_cast<const char*>(bytes)));
}

// Bytes for a text of Capacity units and its terminator in UTF-8.
template <std::size_t Capacity>
constexpr std::size_t bytesFor = Capacity * 3 + 1;

// Gives the calling thread UTF-8 for the encoding of its narrow texts.
class Utf8Locale
{
public:
    Utf8Locale() : utf8(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr))
    {
        if (utf8 != nullptr)
            previous = ::uselocale(utf8);
    }
    ~Utf8Locale()
    {
        if (utf8 == nullptr)
            return;
        ::uselocale(previous);
        ::freelocale(utf8);
    }
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;

private:
    locale_t utf8;
    locale_t previous = nullptr;
};

} // namespace

SQLRETURN allocateConnection(SQLHENV environment, SQLHDBC& connection)
{
    // The driver manager looks at the locale here, once for the life of the connection.
    const Utf8Locale locale;
    return ::SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection);
}

SQLRETURN connect(SQLHDBC connection, const zu_wchar* source, const zu_wchar* user, SQLSMALLINT userLength,
                  const zu_wchar* password, SQLSMALLINT passwordLength)
{
    return ::SQLConnect(connection, narrow(utf8::encode(source).c_str()), SQL_NTS, narrow(utf8::encode(user).c_str()),
                        userLength, narrow(utf8::encode(password).c_str()), passwordLength);
}

SQLRETURN connect(SQLHDBC connection, const WideString& connectionString)
{
    SQLCHAR completed[1024];
    SQLSMALLINT length = 0;
    return ::SQLDriverConnect(connection, nullptr, narrow(utf8::encode(connectionString).c_str()), SQL_NTS, completed,
                              sizeof completed, &length, SQL_DRIVER_NOPROMPT);
}

std::optional<WideString> pathForDriver(WideView path)
{
    const auto native = posix::nativePath(path);
    if (!native)
        return std::nullopt;
    return utf8::decode(*native);
}

SQLRETURN execute(SQLHSTMT statement, const WideString& sql)
{
    return ::SQLExecDirect(statement, narrow(utf8::encode(sql).c_str()), SQL_NTS);
}

SQLRETURN describe(SQLHSTMT statement, SQLUSMALLINT number, Column& column)
{
    SQLCHAR name[bytesFor<decltype(column.name)::capacity>] = {};
    SQLSMALLINT length = 0;
    SQLSMALLINT nullable = 0;
    const SQLRETURN result = ::SQLDescribeCol(statement, number, name, sizeof name, &length, &column.type, &column.size,
                                              &column.decimals, &nullable);
    // Up to its terminator: drivers differ in what they report for its length.
    name[sizeof name - 1] = 0;
    decodeInto(column.name, name);
    return result;
}

SQLRETURN diagnose(SQLSMALLINT kind, SQLHANDLE handle, Diagnostic& diagnostic)
{
    SQLCHAR state[bytesFor<decltype(diagnostic.state)::capacity>] = {};
    SQLCHAR message[bytesFor<decltype(diagnostic.message)::capacity>] = {};
    SQLSMALLINT length = 0;
    const SQLRETURN result =
        ::SQLGetDiagRec(kind, handle, 1, state, &diagnostic.native, message, sizeof message, &length);
    decodeInto(diagnostic.state, state);
    decodeInto(diagnostic.message, message);
    return result;
}

bool endsDirectory(zu_wchar unit)
{
    return posix::isSeparator(unit);
}

} // namespace zu::platform::odbc
