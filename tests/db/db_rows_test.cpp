#include "driver.h"

#include <random>

namespace {

using namespace zutest;
using Texts = std::vector<std::string>;

class DbRows : public TableTest
{
public:
    // Five rows whose NAME tells their number.
    const Table& fiveRows()
    {
        return table("NAME VARCHAR(8), SIZE INTEGER, NOTE VARCHAR(8)",
                     {"'r0', 10, 'x'", "'r1', 11, 'y'", "'r2', 12, 'r4'", "'r3', 13, ''", "'r4', 14, 'x'"});
    }
    Wide name() const { return str(zu_Db_getFldStr(*opened, W("name"))); }
};

TEST_F(DbRows, moving)
{
    const Table& t = fiveRows();
    EXPECT_EQ(zu_Db_botRec(t, 0), ZU_DB_DONE) << "without a result set it does nothing";
    EXPECT_EQ(driver.statements(), Texts());
    zu_Db_topRec(t, 99);
    while (zu_Db_nextRec(t, 0) == ZU_DB_DONE) {
    }
    EXPECT_EQ(mode(), ZU_DB_OPENED) << "moving does not count as reading";
    EXPECT_EQ(name(), W("r0")) << "reading begins at the first row again";
    EXPECT_EQ(mode(), ZU_DB_READ);
    while (zu_Db_nextRec(t, 0) == ZU_DB_DONE) {
    }
    driver.forget();
    EXPECT_EQ(zu_Db_prevRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(driver.calls("SQLFetch").size(), 4u) << "fetched from the top";
    runSql(file, {"DELETE FROM t WHERE SIZE > 11"});
    EXPECT_EQ(zu_Db_prevRec(t, 0), ZU_DB_NO_ROW) << "the table has become shorter";
    EXPECT_EQ(zu_Db_eof(t), 1);
}

TEST_F(DbRows, unknownHandles)
{
    for (const int32_t handle : {-1, 0, 7, INT32_MAX}) {
        EXPECT_EQ(zu_Db_topRec(handle, 0), ZU_DB_DONE) << "meant";
        for (const auto& move : {zu_Db_nextRec, zu_Db_prevRec, zu_Db_botRec})
            EXPECT_EQ(move(handle, 0), ZU_DB_NO_ROW);
        EXPECT_EQ(zu_Db_bof(handle), 0);
        EXPECT_EQ(zu_Db_eof(handle), 1);
        EXPECT_EQ(zu_Db_readRec(handle, 0), nullptr);
        EXPECT_EQ(zu_Db_getFldStr(handle, W("A")), nullptr);
    }
    EXPECT_EQ(zu_Db_readCurrRec(nullptr, 0), nullptr);
    DbRefNode copy = *zu_DbRef_sel(fiveRows());
    EXPECT_EQ(zu_Db_readCurrRec(&copy, 0), nullptr) << "not the handle's own";
}

TEST_F(DbRows, fieldsByName)
{
    const Table& t = fiveRows();
    zu_Db_topRec(t, 0);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("note"))), W("x"));
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("Name"))), W("r0")) << "in front of the one before";
    EXPECT_EQ(zu_Db_getFldStr(t, W("NAM")), nullptr);
    EXPECT_EQ(zu_Db_getFldStr(t, nullptr), nullptr);
    EXPECT_EQ(zu_Db_seekStr(nullptr, t, 0), ZU_DB_FAILED);
    zu_Db_topRec(t, 0);
    zu_wchar* const value = zu_Db_getFldStr(t, W("name"));
    zu_Db_nextRec(t, 0);
    EXPECT_EQ(str(value), W("r0")) << "a copy";
    EXPECT_EQ(zu_Db_getFldStr(t, W("size")), value) << "static";
}

TEST_F(DbRows, ofTwoColumnsOfOneNameTheFirstIsRead)
{
    // The driver calls the first one "X" as well.
    const Table& t = table("[p.X] VARCHAR(4), Y VARCHAR(4), X VARCHAR(4), Z VARCHAR(4)", {"'1', '2', '3', '4'"});
    zu_Db_topRec(t, 0);
    Wide values;
    for (const WideLiteral field : {W("Y"), W("X"), W("Z"), W("X")})
        values += str(zu_Db_getFldStr(t, field));
    EXPECT_EQ(values, W("2141"));
}

TEST_F(DbRows, rowsAsLists)
{
    const Table& t = table("A VARCHAR(6), N DOUBLE TEXT, P NUMERIC(10,3) , L INTEGER", {"' x ', '12.000', 7.25, 1200"});
    const std::tuple<const char*, WideLiteral, uint32_t> rows[] = {
        {"12.000", W("12"), 0},
        {"12.500", W("12.500"), 1},
        {"1.0e+20", W("1.0e+20"), 4},
        {"", W(""), 0},
    };
    for (const auto& [stored, rowRead, precision] : rows) {
        runSql(file, {std::string("UPDATE t SET N = '") + stored + "'"});
        zu_Db_topRec(t, 0);
        const List read(zu_Db_readRec(t, 0));
        ASSERT_NE(read, nullptr);
        EXPECT_EQ(str(zu_DbFldList_getFldVal(read.get(), W("N"))), rowRead) << stored;
        EXPECT_EQ(zu_DbFldList_getNth(read.get(), 1)->precision, precision) << stored;
        EXPECT_EQ(str(zu_Db_getFldStr(t, W("N"))), widen(stored)) << "as the driver gave it";
        EXPECT_EQ(str(zu_DbFldList_getNth(read.get(), 0)->value), W(" x ")) << "blanks stay";
        EXPECT_EQ(zu_Db_seekStr(rowRead, t, 0), ZU_DB_DONE) << "as it is read, not as it is stored";
    }
}

TEST_F(DbRows, valuesOfAllKinds)
{
    const Table& t = table("A VARCHAR(9), B TEXT, C DATE, D BLOB, E INTEGER",
                           {"'\u00e4\u0416' || char(128512), '\u65e5\u672c', '2024-02-29', x'4142', -2147483648",
                            "NULL, NULL, NULL, NULL, NULL"});
    const List row(zu_Db_readRec(t, 0));
    ASSERT_NE(row, nullptr);
    const WideLiteral expected[] = {W("\u00e4\u0416\U0001F600"), W("\u65e5\u672c"), W("2024-02-29"), W("X'4142'"),
                                    W("-2147483648")};
    for (int32_t index = 0; index < 5; ++index)
        EXPECT_EQ(str(zu_DbFldList_getNthStr(row.get(), index)), expected[index]);
    EXPECT_EQ(zu_Db_nextRec(t, 0), ZU_DB_DONE);
    const List nulls(zu_Db_readRec(t, 0));
    for (int32_t index = 0; index < 5; ++index)
        EXPECT_EQ(str(zu_DbFldList_getNthStr(nulls.get(), index)), W("")) << index;
}

TEST_F(DbRows, textThatIsTooLongForItsColumnEndsTheTable)
{
    const Table& t = table("A VARCHAR(4), B TEXT", {"'1234', 'b'", "'12345', 'b'", "'1', 'b'"});
    EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("A"))), W("1234"));
    EXPECT_EQ(zu_Db_nextRec(t, 0), ZU_DB_NO_ROW);
    runSql(file, {"DELETE FROM t", "INSERT INTO t VALUES ('1', '" + std::string(100'000, 'x') + "')"});
    EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_FAILED);
    runSql(file, {"UPDATE t SET B = '" + std::string(64, 'x') + "'"});
    EXPECT_EQ(zu_Db_topRec(t, 0), ZU_DB_DONE);
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("B"))), Wide(64, W('x')));
}

TEST_F(DbRows, namesAreCutNotLost)
{
    const std::string longName = std::string(250, 'x');
    const std::string letters = allTextsPass ? "\u00e4\U0001F600" : "\u00e4\u0416";
    const Table& t = table("[" + longName + "] INTEGER, [" + letters + "] INTEGER, [a b] INTEGER", {"1, 2, 3"});
    zu_Db_topRec(t, 0);
    EXPECT_EQ(str(zu_Db_getFldStr(t, Wide(63, W('x')).c_str())), W("1"));
    EXPECT_EQ(str(zu_Db_getFldStr(t, W("a b"))), W("3"));
    EXPECT_EQ(str(zu_Db_getFldStr(t, allTextsPass ? W("\u00e4\U0001F600") : W("\u00e4\u0416"))), W("2"));
}

TEST_F(DbRows, seeking)
{
    const Table& t = fiveRows();
    const int32_t byNote = zu_Db_createNdx(t, W("BYNOTE"), W("SIZE,NOTE"));
    const int32_t nothing = zu_Db_createNdx(t, W("NOTHING"), nullptr);
    const std::tuple<const char*, WideLiteral, int32_t, int> rows[] = {
        {"the first match in any field", W("r4"), 0, 2},
        {"case counts", W("R1"), 0, -1},
        {"empty value", W(""), 0, 3},
        {"not in the fields of a tag", W("r3"), byNote, -1},
        {"unknown tag: all fields", W("r3"), 900, 3},
        {"tag without fields", W("r0"), nothing, -1},
    };
    for (const auto& [what, text, tag, found] : rows) {
        zu_Db_topRec(t, 0);
        EXPECT_EQ(zu_Db_seekStr(text, t, tag), found < 0 ? ZU_DB_FAILED : ZU_DB_DONE) << what;
        EXPECT_EQ(mode(), ZU_DB_READ) << what;
        if (found >= 0) {
            EXPECT_EQ(recordNumber(), found) << what;
        }
    }
    zu_Db_appRec(t);
    EXPECT_EQ(zu_Db_seekStr(W("r1"), t, 0), ZU_DB_FAILED) << "in append mode";
}

// What the navigation of a table of some rows should do, without a table.
struct Model
{
    int rowCount;
    int number = -1;
    bool isOpen = false;

    int32_t top()
    {
        isOpen = rowCount > 0;
        number = isOpen ? 0 : number;
        return isOpen ? ZU_DB_DONE : ZU_DB_FAILED;
    }
    int32_t next()
    {
        if (!isOpen)
            return ZU_DB_NO_ROW;
        isOpen = number + 1 < rowCount;
        number += isOpen;
        return isOpen ? ZU_DB_DONE : ZU_DB_NO_ROW;
    }
    int32_t previous()
    {
        if (number < 1)
            return ZU_DB_NO_ROW;
        --number;
        isOpen = true;
        return ZU_DB_DONE;
    }
    int32_t bottom()
    {
        number = isOpen ? rowCount - 1 : number;
        return ZU_DB_DONE;
    }
    int32_t seek(int row)
    {
        const int start = number;
        if (!isOpen)
            top();
        if (row >= number && row < rowCount) {
            number = row;
            return ZU_DB_DONE;
        }
        number = rowCount - 1; // passes the end
        isOpen = false;
        if (start < 1)
            return ZU_DB_FAILED;
        top();
        isOpen = true;
        number = row < start ? row : start;
        return row < start ? ZU_DB_DONE : ZU_DB_FAILED;
    }
};

TEST_F(DbRows, navigationFollowsTheModel)
{
    constexpr int rowCount = 7;
    Texts rows;
    for (int row = 0; row < rowCount; ++row)
        rows.push_back(std::to_string(row));
    const Table& t = table("N SMALLINT", rows);
    Model model{rowCount};
    std::mt19937 random(20240229);
    std::string story;
    for (int step = 0; step < 2000; ++step) {
        const int row = static_cast<int>(random() % (rowCount + 1));
        const Wide text = widen(std::to_string(row));
        switch (random() % 8) {
        case 0:
            story += "top ";
            EXPECT_EQ(zu_Db_topRec(t, 0), model.top()) << story;
            break;
        case 1:
            story += "previous ";
            EXPECT_EQ(zu_Db_prevRec(t, 0), model.previous()) << story;
            break;
        case 2:
            story += "bottom ";
            EXPECT_EQ(zu_Db_botRec(t, 0), model.bottom()) << story;
            break;
        case 3:
            story += "seek" + std::to_string(row) + " ";
            EXPECT_EQ(zu_Db_seekStr(text.c_str(), t, 0), model.seek(row)) << story;
            break;
        default:
            story += "next ";
            EXPECT_EQ(zu_Db_nextRec(t, 0), model.next()) << story;
            break;
        }
        ASSERT_EQ(zu_Db_eof(t), model.isOpen ? 0 : 1) << story;
        ASSERT_EQ(recordNumber(), model.number) << story;
        if (model.isOpen) {
            ASSERT_EQ(str(zu_Db_getFldStr(t, W("N"))), widen(std::to_string(model.number))) << story;
        }
    }
}

} // namespace
