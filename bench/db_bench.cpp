// Walks a table of 100,000 rows of 10 columns in three ways that take turns: a plain ODBC loop over bound columns, the
// record operations field by field, and rows as new lists. All of them read every value, over the same driver, from the
// same file. Fails when the operations cost more beside the plain loop than they may.
#include "zu_Db.h"

#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int rowCount = 100'000;
constexpr int rounds = 15;
constexpr double walkLimit = 1.10;
constexpr double readLimit = 1.60;

struct Column
{
    const zu_wchar* name;
    SQLLEN width;
};
const Column columns[] = {{u"ID", 37},   {u"LINE", 24}, {u"TAG", 16},      {u"DN", 37},     {u"OD", 54},
                          {u"WALL", 54}, {u"SCHED", 8}, {u"MATERIAL", 16}, {u"LENGTH", 54}, {u"SERVICE", 24}};

void check(SQLRETURN result, const char* what)
{
    if (SQL_SUCCEEDED(result))
        return;
    std::fprintf(stderr, "%s failed\n", what);
    std::exit(1);
}

SQLCHAR* bytes(const std::string& text)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.data()));
}

// Uses a value: every unit counts.
std::uint64_t sumOf(const zu_wchar* text)
{
    std::uint64_t sum = 0;
    for (; *text != 0; ++text)
        sum = sum * 31 + *text;
    return sum;
}

class Session
{
public:
    explicit Session(const fs::path& file)
    {
        check(SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &environment), "environment");
        check(SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0),
              "version");
        check(SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection), "connection");
        check(SQLDriverConnect(connection, nullptr, bytes("Driver=SQLite3 ODBC Driver;Database=" + file.string() + ";"),
                               SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
              "connect");
    }
    ~Session()
    {
        SQLDisconnect(connection);
        SQLFreeHandle(SQL_HANDLE_DBC, connection);
        SQLFreeHandle(SQL_HANDLE_ENV, environment);
    }
    Session(const Session&) = delete;

    void run(const std::string& sql)
    {
        SQLHSTMT statement = nullptr;
        check(SQLAllocHandle(SQL_HANDLE_STMT, connection, &statement), "statement");
        check(SQLExecDirect(statement, bytes(sql), SQL_NTS), sql.c_str());
        SQLFreeHandle(SQL_HANDLE_STMT, statement);
    }

    // The plain loop.
    std::uint64_t walk()
    {
        SQLHSTMT statement = nullptr;
        check(SQLAllocHandle(SQL_HANDLE_STMT, connection, &statement), "statement");
        check(SQLExecDirect(statement, bytes("SELECT * FROM pipes"), SQL_NTS), "select");
        std::vector<std::vector<zu_wchar>> values;
        SQLLEN lengths[std::size(columns)];
        for (std::size_t index = 0; index < std::size(columns); ++index) {
            std::vector<zu_wchar>& value = values.emplace_back(columns[index].width + 1);
            check(SQLBindCol(statement, static_cast<SQLUSMALLINT>(index + 1), SQL_C_WCHAR, value.data(),
                             static_cast<SQLLEN>(value.size() * sizeof(zu_wchar)), &lengths[index]),
                  "bind");
        }
        std::uint64_t sum = 0;
        while (SQL_SUCCEEDED(SQLFetch(statement))) {
            for (const auto& value : values)
                sum += sumOf(value.data());
        }
        SQLFreeHandle(SQL_HANDLE_STMT, statement);
        return sum;
    }

private:
    SQLHENV environment = nullptr;
    SQLHDBC connection = nullptr;
};

std::uint64_t walkFields(int32_t table)
{
    std::uint64_t sum = 0;
    for (int32_t at = zu_Db_topRec(table, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(table, 0)) {
        for (const Column& column : columns)
            sum += sumOf(zu_Db_getFldStr(table, column.name));
    }
    return sum;
}

std::uint64_t readRows(int32_t table)
{
    std::uint64_t sum = 0;
    for (int32_t at = zu_Db_topRec(table, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(table, 0)) {
        DbFldList* const row = zu_Db_readRec(table, 0);
        for (const LnkNode* node = row->first; node != nullptr; node = node->next)
            sum += sumOf(static_cast<const DbFldNode*>(node->data)->value);
        zu_DbFldList_destroy(row);
    }
    return sum;
}

void createTable(Session& session)
{
    session.run(
        "CREATE TABLE pipes (ID INTEGER, LINE VARCHAR(24), TAG VARCHAR(16), DN INTEGER, OD DOUBLE, WALL DOUBLE, "
        "SCHED VARCHAR(8), MATERIAL VARCHAR(16), LENGTH DOUBLE, SERVICE VARCHAR(24))");
    session.run(
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " + std::to_string(rowCount) +
        ") INSERT INTO pipes SELECT i, 'P-' || (i / 40), 'T' || i, 50 + i % 10 * 25, 60.3 + i % 7, 3.91, 'STD', "
        "'A106-B', 100.5 + i % 900, 'cooling water' FROM n");
}

double medianOf(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + rounds / 2, values.end());
    return values[rounds / 2];
}

// One of the ways, with the time a row in microseconds that each round took.
struct Way
{
    const char* name;
    double limit;
    std::function<std::uint64_t()> run;
    std::vector<double> times;
};

} // namespace

int main()
{
    const fs::path directory = fs::temp_directory_path() / ("zu_bench_" + std::to_string(std::random_device()()));
    fs::create_directory(directory);
    std::ofstream(directory / "odbcinst.ini") << "[SQLite3 ODBC Driver]\nDriver=libsqlite3odbc.so\n";
    ::setenv("ODBCSYSINI", directory.c_str(), 1);
    const fs::path file = directory / "pipes.db3";
    int exitCode = 0;
    {
        Session session(file);
        createTable(session);
        const int32_t table = zu_Db_openDb(file.u16string().c_str());
        if (table < 0)
            return 1;
        Way ways[] = {{"plain ODBC loop", 0.0, [&] { return session.walk(); }, {}},
                      {"topRec, nextRec, getFldStr", walkLimit, [&] { return walkFields(table); }, {}},
                      {"readRec as new lists", readLimit, [&] { return readRows(table); }, {}}};
        const std::uint64_t expected = session.walk();
        for (int round = 0; round < rounds; ++round) {
            for (Way& way : ways) {
                const auto start = std::chrono::steady_clock::now();
                if (way.run() != expected) {
                    std::fprintf(stderr, "%s reads something else\n", way.name);
                    return 1;
                }
                const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
                way.times.push_back(time.count() / rowCount);
            }
        }
        std::printf("%d rows of %zu columns, median of %d rounds\n", rowCount, std::size(columns), rounds);
        for (const Way& way : ways) {
            // Each round against the plain loop of the same round: the machine may be busier in one than in another.
            std::vector<double> ratios;
            std::transform(way.times.begin(), way.times.end(), ways[0].times.begin(), std::back_inserter(ratios),
                           std::divides<>());
            const double ratio = medianOf(ratios);
            const bool holds = way.limit == 0.0 || ratio <= way.limit;
            std::printf("%-28s %6.2f us a row  %5.2f times", way.name, medianOf(way.times), ratio);
            if (way.limit != 0.0)
                std::printf("  (at most %.2f)%s", way.limit, holds ? "" : "  TOO SLOW");
            std::printf("\n");
            exitCode = holds ? exitCode : 1;
        }
        zu_Db_closeDb(table);
    }
    fs::remove_all(directory);
    return exitCode;
}
