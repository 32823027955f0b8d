#include "driver.h"

namespace {

using namespace zutest;
using Texts = std::vector<std::string>;

// A row from "name:type=value" items with semicolons between; an item without "=" has no value.
List rowOf(WideView items)
{
    List row(zu_DbFldList_create(nullptr));
    while (!items.empty()) {
        const WideView item = items.substr(0, items.find(W(';')));
        items.remove_prefix(std::min(item.size() + 1, items.size()));
        const std::size_t colon = item.find(W(':'));
        const Wide name(item.substr(0, colon)), value(item.substr(std::min(colon + 3, item.size())));
        const bool isNull = item.size() == colon + 2;
        EXPECT_EQ(zu_DbFldList_insEnd(row.get(), name.c_str(), isNull ? nullptr : value.c_str(), 0, 0, item[colon + 1]),
                  1);
    }
    return row;
}

class DbWrite : public TableTest
{
};

TEST_F(DbWrite, insertsNameTheFieldsThatHaveAValue)
{
    const std::tuple<const char*, WideLiteral, const char*, int32_t> rows[] = {
        {"types", W("A:C=x;N:N=1.5;L:L=7"), "INSERT INTO t ([A], [N], [L]) VALUES ('x', 1.5, 7)", 0},
        {"empty and missing values", W("A:C=;N:N=2;L:L"), "INSERT INTO t ([N]) VALUES (2)", 0},
        {"blanks in text", W("A:C=  y"), "INSERT INTO t ([A]) VALUES ('  y')", 0},
        {"text that is not of type C", W("M:M=memo"), "INSERT INTO t ([M]) VALUES (memo)", 1},
        {"a quote in a value", W("A:C=O'Brien"), "INSERT INTO t ([A]) VALUES ('O'Brien')", 1},
        {"no value", W("A:C="), "INSERT INTO t) VALUES)", 1},
    };
    const Table& t = table("A VARCHAR(20), N DOUBLE DEFAULT 9.5, L INTEGER, M TEXT");
    for (const auto& [what, rowValues, sql, expected] : rows) {
        EXPECT_EQ(zu_Db_appRec(t), ZU_DB_DONE);
        driver.forget();
        const List values = rowOf(rowValues);
        int32_t result = -1;
        const std::string printed = printedBy([&] { result = zu_Db_modRec(t, values.get()); });
        EXPECT_EQ(result, expected) << what;
        EXPECT_EQ(printed, expected == 0 ? "" : "SQL query failed.") << what;
        EXPECT_EQ(driver.statements(), Texts{sql}) << what;
        EXPECT_EQ(mode(), expected == 0 ? ZU_DB_WRITTEN : ZU_DB_APPEND) << what;
    }
    EXPECT_EQ(content(), (Texts{"<null>|2.0|<null>|<null>", "  y|9.5|<null>|<null>", "x|1.5|7|<null>"}));
}

TEST_F(DbWrite, updatesSetWhatChangedWhereTheRestIsFound)
{
    const struct
    {
        const char* what;
        WideLiteral values;
        const char* sql; // null: nothing is executed
        int32_t result = 0;
        const char* stored = "'a', 1.5, 7, 'b'";
    } rows[] = {
        {"names ignore case", W("a:C=x;l:L=8"), "UPDATE t SET [A]='x', [L]=8 WHERE [N]=1.5 AND [B]='b'"},
        {"unchanged ones stand in the condition", W("A:C=a;N:N=2.5;B:C=b"),
         "UPDATE t SET [N]=2.5 WHERE [A]='a' AND [L]=7 AND [B]='b'"},
        {"nothing changed", W("A:C=a;L:L=7"), nullptr},
        {"unknown fields", W("X:C=x"), nullptr},
        {"everything changed", W("A:C=x;N:N=2;L:L=8;B:C=y"), "UPDATE t SET [A]='x', [N]=2, [L]=8, [B]='y'"},
        {"empty numbers", W("A:C=;N:N=;L:L=;B:C"), "UPDATE t SET [A]='', [N]=0.0, [L]=0, [B]=''"},
        {"empty float", W("N:F="), "UPDATE t SET [N]=0.0 WHERE [A]='a' AND [L]=7 AND [B]='b'"},
        {"empty values are in no condition", W("B:C=y;A:C="), "UPDATE t SET [B]='y' WHERE [L]=7", 0, "'', NULL, 7, ''"},
        {"the new field's type decides", W("A:N=12;N:C=1.5"),
         "UPDATE t SET [A]=12 WHERE [N]='1.5' AND [L]=7 AND [B]='b'"},
        {"an empty number of a small type", W("L:I="), "UPDATE t SET [L]= WHERE [A]='a' AND [N]=1.5 AND [B]='b'", 1},
    };
    const Table& t = table("A VARCHAR(20), N DOUBLE, L INTEGER, B VARCHAR(5)");
    for (const auto& row : rows) {
        runSql(file, {"DELETE FROM t", std::string("INSERT INTO t VALUES (") + row.stored + ")"});
        zu_Db_topRec(t, 0);
        List(zu_Db_readRec(t, 0));
        driver.forget();
        const List values = rowOf(row.values);
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
    const List x = rowOf(W("A:C=x"));
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED) << "nothing is read yet";
    zu_Db_topRec(t, 0);
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED) << "moving is not reading";
    List(zu_Db_readRec(t, 0));
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"b|2", "x|1"}));
    EXPECT_EQ(zu_Db_appRec(99), ZU_DB_FAILED);
    EXPECT_TRUE(allAre(ZU_DB_FAILED + 0, {zu_Db_modRec(t, nullptr), zu_Db_modRec(99, x.get())}));
    while (zu_Db_nextRec(t, 0) == ZU_DB_DONE) {
    }
    driver.forget();
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED) << "there is no current row";
    EXPECT_EQ(driver.statements(), Texts());

    // Append, write, write again: insert, then update of what was inserted.
    EXPECT_EQ(zu_Db_appRec(t), ZU_DB_DONE);
    EXPECT_EQ(zu_Db_eof(t), 1);
    EXPECT_EQ(mode(), ZU_DB_APPEND);
    const List first = rowOf(W("A:C=n1;L:L=9"));
    const List second = rowOf(W("a:C=n2;X:C=unknown"));
    EXPECT_EQ(zu_Db_modRec(t, first.get()), ZU_DB_DONE);
    EXPECT_EQ(zu_Db_eof(t), 0) << "the current row is what was written";
    EXPECT_EQ(zu_Db_modRec(t, second.get()), ZU_DB_DONE);
    EXPECT_EQ(zu_Db_modRec(t, first.get()), ZU_DB_DONE);
    EXPECT_EQ(mode(), ZU_DB_WRITTEN);
    EXPECT_EQ(driver.statements(), (Texts{"INSERT INTO t ([A], [L]) VALUES ('n1', 9)",
                                          "UPDATE t SET [A]='n2' WHERE [L]=9", "UPDATE t SET [A]='n1' WHERE [L]=9"}));
    const List read(zu_Db_readRec(t, 0));
    EXPECT_EQ(str(zu_DbFldList_getFldVal(read.get(), W("A"))), W("x")) << "reading opens at the first row";
    EXPECT_EQ(mode(), ZU_DB_READ);
}

TEST_F(DbWrite, blankRowsToFillIn)
{
    const Table& t = table("A VARCHAR(5), L INTEGER", {"'a', 1"});
    zu_Db_appRec(t);
    const List blank(zu_Db_readRec(t, 0));
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
        const List row(zu_Db_readRec(t, 0));
        const Wide value = W("n") + str(zu_DbFldList_getFldVal(row.get(), W("L")));
        zu_DbFldList_modFldVal(row.get(), W("A"), value.c_str());
        EXPECT_EQ(zu_Db_modRec(t, row.get()), ZU_DB_DONE);
        EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), value) << "the current row has it too";
    }
    EXPECT_EQ(count, 20);
    EXPECT_EQ(querySql(file, "SELECT count(*) FROM t WHERE A = 'n' || L"), Texts{"20"});
}

TEST_F(DbWrite, boundRowsAreCutToTheirWidth)
{
    const Table& t = table("A VARCHAR(4), L INTEGER", {"'a', 1", "'b', 2"});
    zu_Db_topRec(t, 0);
    List(zu_Db_readRec(t, 0));
    const zu_wchar* const buffer = zu_DbFldList_getNth(zu_DbRef_sel(t)->fields, 0)->value;
    const List longer = rowOf(W("A:C=123456789;A:C=12345"));
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
    List(zu_Db_readRec(t, 0));
    const List x = rowOf(W("A:C=x"));
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"a|2", "x|1", "x|1"}));
    runSql(file, {"DELETE FROM t"});
    const List y = rowOf(W("A:C=y"));
    EXPECT_EQ(zu_Db_modRec(t, y.get()), ZU_DB_DONE) << "no row is met, which is no failure";
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("y"));
}

TEST_F(DbWrite, lettersOfEveryKindArrive)
{
    const Wide name = allTextsPass ? W("R\u00f6hre\u0416\U0001F600") : W("t");
    runSql(sandbox.native(name + W(".db3")), createTable(allTextsPass ? "R\u00f6hre\u0416\U0001F600" : "t",
                                                         "\u00d6 VARCHAR(20), [\u0416 2] INTEGER", {}));
    const Table t(sandbox.path(name));
    const WideLiteral text = allTextsPass ? W("\u00fc\u0416\u65e5\U0001F600") : W("\u00fc\u0416\u65e5");
    zu_Db_appRec(t);
    const List row = rowOf(W("\u00d6:C=") + Wide(text) + W(";\u0416 2:L=4"));
    EXPECT_EQ(zu_Db_modRec(t, row.get()), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("\u00d6"))), text);
    EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("\u00d6"))), text);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("\u0416 2"))), W("4"));
    EXPECT_EQ(zu_Db_seekStr(text, t, 0), ZU_DB_DONE);
}

TEST_F(DbWrite, lockedAndDeletedDatabases)
{
    const Table& t = table("A VARCHAR(4)", {"'a'"});
    List(zu_Db_readRec(t, 0));
    const List x = rowOf(W("A:C=x"));
    {
        const Lock lock(file);
        EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED);
        EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("a")) << "the current row is as before";
        printedBy([&] { EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_FAILED); });
        zu_Db_appRec(t);
        EXPECT_EQ(printedBy([&] { EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_FAILED); }), "SQL query failed.");
        EXPECT_EQ(mode(), ZU_DB_APPEND);
    }
    EXPECT_EQ(zu_Db_modRec(t, x.get()), ZU_DB_DONE);
    EXPECT_EQ(content(), (Texts{"a", "x"}));
    std::error_code error;
    if (std::filesystem::remove(file, error)) {
        // The open connection goes on with what it has; writing is refused or goes nowhere, and nothing breaks.
        zu_Db_modRec(t, x.get());
        printedBy([&] { zu_Db_topRec(t, 0); });
        EXPECT_FALSE(sandbox.exists(W("t.db3")));
    }
}

} // namespace
