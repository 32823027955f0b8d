#include "driver.h"
#include "zu_Db.h"

namespace {

using namespace zutest;
using Texts = std::vector<std::string>;

struct ListDeleter
{
    void operator()(DbFldList* list) const { zu_DbFldList_destroy(list); }
};
using Row = std::unique_ptr<DbFldList, ListDeleter>;

struct Value
{
    WideLiteral name;
    WideLiteral value;
    zu_wchar type = 'C';
};

Row rowOf(std::initializer_list<Value> values)
{
    Row row(zu_DbFldList_create(nullptr));
    for (const Value& value : values)
        EXPECT_EQ(zu_DbFldList_insEnd(row.get(), value.name, value.value, 0, 0, value.type), 1);
    return row;
}

class DbWrite : public testing::Test
{
public:
    // Opens a fresh table "t".
    const Table& table(const std::string& columns, const Texts& rows = {})
    {
        runSql(sandbox.native(W("t.db3")), createTable("t", columns, rows));
        opened = std::make_unique<Table>(sandbox.path(W("t")));
        driver.forget();
        return *opened;
    }
    Texts content() { return querySql(sandbox.native(W("t.db3")), "SELECT * FROM t ORDER BY 1"); }
    // The statements that write.
    Texts written()
    {
        Texts statements = driver.statements();
        statements.erase(std::remove_if(statements.begin(), statements.end(),
                                        [](const std::string& sql) { return sql.starts_with("SELECT"); }),
                         statements.end());
        return statements;
    }
    int32_t mode() const { return zu_DbRef_sel(*opened)->mode; }

    Sandbox sandbox;
    Driver driver;
    std::unique_ptr<Table> opened;
};

TEST_F(DbWrite, insertsNameTheFieldsThatHaveAValue)
{
    const struct
    {
        const char* what;
        std::initializer_list<Value> values;
        const char* sql;
        int32_t result;
    } rows[] = {
        {"types",
         {{W("A"), W("x")}, {W("N"), W("1.5"), 'N'}, {W("L"), W("7"), 'L'}},
         "INSERT INTO t ([A], [N], [L]) VALUES ('x', 1.5, 7)",
         0},
        {"empty and missing values",
         {{W("A"), W("")}, {W("N"), W("2"), 'N'}, {W("L"), nullptr, 'L'}},
         "INSERT INTO t ([N]) VALUES (2)",
         0},
        {"blanks in text", {{W("A"), W("  y")}}, "INSERT INTO t ([A]) VALUES ('  y')", 0},
        {"text that is not of type C", {{W("M"), W("memo"), 'M'}}, "INSERT INTO t ([M]) VALUES (memo)", 1},
        {"a quote in a value", {{W("A"), W("O'Brien")}}, "INSERT INTO t ([A]) VALUES ('O'Brien')", 1},
        {"an unknown column", {{W("X"), W("x")}}, "INSERT INTO t ([X]) VALUES ('x')", 1},
        {"no value", {{W("A"), W("")}}, "INSERT INTO t) VALUES)", 1},
        {"no field", {}, "INSERT INTO t) VALUES)", 1},
        {"letters", {{W("A"), W("\u00e4\u0416\u65e5")}}, "INSERT INTO t ([A]) VALUES ('\u00e4\u0416\u65e5')", 0},
    };
    const Table& t = table("A VARCHAR(20), N DOUBLE DEFAULT 9.5, L INTEGER, M TEXT");
    for (const auto& row : rows) {
        EXPECT_EQ(zu_Db_appRec(t), ZU_DB_DONE);
        driver.forget();
        const Row values = rowOf(row.values);
        int32_t result = -1;
        const std::string printed = printedBy([&] { result = zu_Db_modRec(t, values.get()); });
        EXPECT_EQ(result, row.result) << row.what;
        EXPECT_EQ(printed, row.result == 0 ? "" : "SQL query failed.") << row.what;
        EXPECT_EQ(driver.statements(), Texts{row.sql}) << row.what;
        EXPECT_EQ(mode(), row.result == 0 ? ZU_DB_WRITTEN : ZU_DB_APPEND) << row.what;
    }
    EXPECT_EQ(content(), (Texts{"<null>|2.0|<null>|<null>", "  y|9.5|<null>|<null>", "x|1.5|7|<null>",
                                "\u00e4\u0416\u65e5|9.5|<null>|<null>"}));
}

TEST_F(DbWrite, updatesSetWhatChangedWhereTheRestIsFound)
{
    const struct
    {
        const char* what;
        const char* stored;
        std::initializer_list<Value> values;
        const char* sql; // null: nothing is executed
        int32_t result;
    } rows[] = {
        {"one text",
         "'a', 1.5, 7, 'b'",
         {{W("A"), W("x")}},
         "UPDATE t SET [A]='x' WHERE [N]=1.5 AND [L]=7 AND [B]='b'",
         0},
        {"names ignore case",
         "'a', 1.5, 7, 'b'",
         {{W("a"), W("x")}, {W("l"), W("8"), 'L'}},
         "UPDATE t SET [A]='x', [L]=8 WHERE [N]=1.5 AND [B]='b'",
         0},
        {"unchanged ones stand in the condition",
         "'a', 1.5, 7, 'b'",
         {{W("A"), W("a")}, {W("N"), W("2.5"), 'N'}, {W("B"), W("b")}},
         "UPDATE t SET [N]=2.5 WHERE [A]='a' AND [L]=7 AND [B]='b'",
         0},
        {"nothing changed", "'a', 1.5, 7, 'b'", {{W("A"), W("a")}, {W("L"), W("7"), 'L'}}, nullptr, 0},
        {"no field", "'a', 1.5, 7, 'b'", {}, nullptr, 0},
        {"unknown fields", "'a', 1.5, 7, 'b'", {{W("X"), W("x")}}, nullptr, 0},
        {"everything changed",
         "'a', 1.5, 7, 'b'",
         {{W("A"), W("x")}, {W("N"), W("2"), 'N'}, {W("L"), W("8"), 'L'}, {W("B"), W("y")}},
         "UPDATE t SET [A]='x', [N]=2, [L]=8, [B]='y'",
         0},
        {"empty numbers",
         "'a', 1.5, 7, 'b'",
         {{W("A"), W("")}, {W("N"), W(""), 'N'}, {W("L"), W(""), 'L'}, {W("B"), nullptr}},
         "UPDATE t SET [A]='', [N]=0.0, [L]=0, [B]=''",
         0},
        {"empty float",
         "'a', 1.5, 7, 'b'",
         {{W("N"), W(""), 'F'}},
         "UPDATE t SET [N]=0.0 WHERE [A]='a' AND [L]=7 AND [B]='b'",
         0},
        {"empty values are in no condition",
         "'', NULL, 7, ''",
         {{W("B"), W("y")}, {W("A"), W("")}},
         "UPDATE t SET [B]='y' WHERE [L]=7",
         0},
        {"the new field's type decides",
         "'a', 1.5, 7, 'b'",
         {{W("A"), W("12"), 'N'}, {W("N"), W("1.5"), 'C'}},
         "UPDATE t SET [A]=12 WHERE [N]='1.5' AND [L]=7 AND [B]='b'",
         0},
        {"a quote in a value",
         "'a', 1.5, 7, 'b'",
         {{W("A"), W("O'Brien")}},
         "UPDATE t SET [A]='O'Brien' WHERE [N]=1.5 AND [L]=7 AND [B]='b'",
         1},
        {"an empty number of a small type",
         "'a', 1.5, 7, 'b'",
         {{W("L"), W(""), 'I'}},
         "UPDATE t SET [L]= WHERE [A]='a' AND [N]=1.5 AND [B]='b'",
         1},
    };
    const Table& t = table("A VARCHAR(20), N DOUBLE, L INTEGER, B VARCHAR(5)");
    for (const auto& row : rows) {
        runSql(sandbox.native(W("t.db3")), {"DELETE FROM t", std::string("INSERT INTO t VALUES (") + row.stored + ")"});
        zu_Db_topRec(t, 0);
        Row(zu_Db_readRec(t, 0));
        driver.forget();
        const Row values = rowOf(row.values);
        int32_t result = -1;
        EXPECT_EQ(printedBy([&] { result = zu_Db_modRec(t, values.get()); }), "") << row.what;
        EXPECT_EQ(result, row.result) << row.what;
        EXPECT_EQ(driver.statements(), row.sql == nullptr ? Texts() : Texts{row.sql}) << row.what;
        EXPECT_EQ(mode(), ZU_DB_READ) << row.what;
    }
}

TEST_F(DbWrite, modes)
{
    const Table& t = table("A VARCHAR(5), L INTEGER", {"'a', 1", "'b', 2"});
    const Row x = rowOf({{W("A"), W("x")}});
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED) << "nothing is read yet";
    zu_Db_topRec(t, 0);
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED) << "moving is not reading";
    Row(zu_Db_readRec(t, 0));
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"b|2", "x|1"}));
    EXPECT_EQ(zu_Db_modRec(t, nullptr), ZU_DB_FAILED);
    EXPECT_EQ(zu_Db_modRec(99, x.get()), ZU_DB_FAILED);
    EXPECT_EQ(zu_Db_appRec(99), ZU_DB_FAILED);
    while (zu_Db_nextRec(t, 0) == ZU_DB_DONE) {
    }
    driver.forget();
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED) << "there is no current row";
    EXPECT_EQ(driver.statements(), Texts());

    // Append, write, write again: insert, then update of what was inserted.
    EXPECT_EQ(zu_Db_appRec(t), ZU_DB_DONE);
    EXPECT_EQ(zu_Db_eof(t), 1);
    EXPECT_EQ(mode(), ZU_DB_APPEND);
    const Row first = rowOf({{W("A"), W("n1")}, {W("L"), W("9"), 'L'}});
    const Row second = rowOf({{W("a"), W("n2")}, {W("X"), W("unknown")}});
    EXPECT_EQ(zu_Db_modRec(t, first.get()), ZU_DB_DONE);
    EXPECT_EQ(zu_Db_eof(t), 0) << "the current row is what was written";
    EXPECT_EQ(zu_Db_modRec(t, second.get()), ZU_DB_DONE);
    EXPECT_EQ(zu_Db_modRec(t, first.get()), ZU_DB_DONE);
    EXPECT_EQ(mode(), ZU_DB_WRITTEN);
    EXPECT_EQ(driver.statements(), (Texts{"INSERT INTO t ([A], [L]) VALUES ('n1', 9)",
                                          "UPDATE t SET [A]='n2' WHERE [L]=9", "UPDATE t SET [A]='n1' WHERE [L]=9"}));
    const Row read(zu_Db_readRec(t, 0));
    EXPECT_EQ(str(zu_DbFldList_getFldVal(read.get(), W("A"))), W("x")) << "reading opens at the first row";
    EXPECT_EQ(mode(), ZU_DB_READ);
}

TEST_F(DbWrite, blankRowsToFillIn)
{
    const Table& t = table("A VARCHAR(5), L INTEGER", {"'a', 1"});
    zu_Db_appRec(t);
    const Row blank(zu_Db_readRec(t, 0));
    EXPECT_EQ(str(zu_DbFldList_getFldVal(blank.get(), W("A"))), W("     "));
    EXPECT_EQ(mode(), ZU_DB_APPEND);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("     "));
    EXPECT_EQ(zu_DbFldList_modFldVal(blank.get(), W("A"), W("new")), 1);
    EXPECT_EQ(zu_DbFldList_modFldVal(blank.get(), W("L"), W("5")), 1);
    EXPECT_EQ(zu_Db_modRec(t, blank.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"a|1", "new|5"}));
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("new"));
    // The result set that the blank row was read from has not begun.
    EXPECT_EQ(zu_Db_nextRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("a"));
}

TEST_F(DbWrite, readModifyNext)
{
    Texts rows;
    for (int number = 0; number < 20; ++number)
        rows.push_back("'tag" + std::to_string(number) + "', " + std::to_string(number));
    const Table& t = table("A VARCHAR(8), L INTEGER", rows);
    int count = 0;
    for (int32_t at = zu_Db_topRec(t, 0); at == ZU_DB_DONE; at = zu_Db_nextRec(t, 0), ++count) {
        const Row row(zu_Db_readRec(t, 0));
        const Wide value = W("n") + str(zu_DbFldList_getFldVal(row.get(), W("L")));
        zu_DbFldList_modFldVal(row.get(), W("A"), value.c_str());
        EXPECT_EQ(zu_Db_modRec(t, row.get()), ZU_DB_DONE);
        EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), value) << "the current row has it too";
    }
    EXPECT_EQ(count, 20);
    EXPECT_EQ(querySql(sandbox.native(W("t.db3")), "SELECT count(*) FROM t WHERE A = 'n' || L"), Texts{"20"});
}

TEST_F(DbWrite, boundRowsAreCutToTheirWidth)
{
    const Table& t = table("A VARCHAR(4), L INTEGER", {"'a', 1", "'b', 2"});
    zu_Db_topRec(t, 0);
    Row(zu_Db_readRec(t, 0));
    const zu_wchar* const buffer = zu_DbFldList_getNth(zu_DbRef_sel(t)->fields, 0)->value;
    const Row longer = rowOf({{W("A"), W("123456789")}, {W("A"), W("12345")}});
    EXPECT_EQ(zu_Db_modRec(t, longer.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"123456789|1", "b|2"})) << "the file gets all of it";
    EXPECT_EQ(zu_DbFldList_getNth(zu_DbRef_sel(t)->fields, 0)->value, buffer) << "the driver writes into it";
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("1234"));
    EXPECT_EQ(zu_Db_nextRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("b"));
    EXPECT_EQ(zu_Db_modRec(t, zu_DbRef_sel(t)->fields), ZU_DB_DONE) << "the current row itself";
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("b"));
}

TEST_F(DbWrite, updatesTouchEveryRowThatIsAlike)
{
    const Table& t = table("A VARCHAR(4), L INTEGER", {"'a', 1", "'a', 1", "'a', 2"});
    Row(zu_Db_readRec(t, 0));
    const Row x = rowOf({{W("A"), W("x")}});
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"a|2", "x|1", "x|1"}));
    runSql(sandbox.native(W("t.db3")), {"DELETE FROM t"});
    const Row y = rowOf({{W("A"), W("y")}});
    EXPECT_EQ(zu_Db_modRec(t, y.get()), ZU_DB_DONE) << "no row is met, which is no failure";
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("y"));
}

TEST_F(DbWrite, lettersOfEveryKindArrive)
{
    const Wide file = allTextsPass ? W("R\u00f6hre\u0416\U0001F600.db3") : W("t.db3");
    const std::string name = allTextsPass ? "R\u00f6hre\u0416\U0001F600" : "t";
    runSql(sandbox.native(file), createTable(name, "\u00d6 VARCHAR(20), [\u0416 2] INTEGER", {}));
    const Table t(sandbox.path(file));
    const WideLiteral text = allTextsPass ? W("\u00fc\u0416\u65e5\U0001F600") : W("\u00fc\u0416\u65e5");
    zu_Db_appRec(t);
    const Row row = rowOf({{W("\u00d6"), text}, {W("\u0416 2"), W("4"), 'L'}});
    EXPECT_EQ(zu_Db_modRec(t, row.get()), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("\u00d6"))), text);
    EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("\u00d6"))), text);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("\u0416 2"))), W("4"));
    EXPECT_EQ(zu_Db_seekStr(text, t, 0), ZU_DB_DONE);
}

TEST_F(DbWrite, whatWasWrittenIsReadBack)
{
    const Table& t = table("A VARCHAR(40), N NUMERIC(12,3), L INTEGER, I SMALLINT");
    for (int number = 0; number < 50; ++number) {
        const Wide text = W("pipe ") + widen(std::to_string(number * 7919)) + W(" \"x\" %s [;] --");
        const Wide real = widen(std::to_string(number) + ".5");
        const Wide whole = widen(std::to_string(number * 1'000'003));
        zu_Db_appRec(t);
        const Row row = rowOf(
            {{W("A"), text.c_str()}, {W("N"), real.c_str(), 'N'}, {W("L"), whole.c_str(), 'L'}, {W("I"), W("3"), 'I'}});
        ASSERT_EQ(zu_Db_modRec(t, row.get()), ZU_DB_DONE);
        ASSERT_EQ(zu_Db_seekStr(whole.c_str(), t, 0), ZU_DB_DONE);
        const Row read(zu_Db_readRec(t, 0));
        for (const WideLiteral name : {W("A"), W("N"), W("L"), W("I")})
            EXPECT_EQ(str(zu_DbFldList_getFldVal(read.get(), name)), str(zu_DbFldList_findFld(row.get(), name)->value));
    }
    EXPECT_EQ(zu_Db_getRecordCount(t), 50);
}

TEST_F(DbWrite, lockedAndDeletedDatabases)
{
    const Table& t = table("A VARCHAR(4)", {"'a'"});
    Row(zu_Db_readRec(t, 0));
    const Row x = rowOf({{W("A"), W("x")}});
    {
        const Lock lock(sandbox.native(W("t.db3")));
        EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED);
        EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("a")) << "the current row is as before";
        printedBy([&] { EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_FAILED); });
        EXPECT_EQ(zu_Db_getRecordCount(t), 0);
        zu_Db_appRec(t);
        EXPECT_EQ(printedBy([&] { EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED); }), "SQL query failed.");
        EXPECT_EQ(mode(), ZU_DB_APPEND);
    }
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"a", "x"}));
    std::error_code error;
    if (std::filesystem::remove(sandbox.native(W("t.db3")), error)) {
        // The open connection goes on with what it has; writing is refused or goes nowhere, and nothing breaks.
        zu_Db_modRec(t, x.get());
        printedBy([&] { zu_Db_topRec(t, 0); });
        EXPECT_FALSE(sandbox.exists(W("t.db3")));
    }
}

} // namespace
