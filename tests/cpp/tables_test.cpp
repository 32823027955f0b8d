// Tables of the C++ interface, through the recording driver.
#include "driver.h"
#include "support/memory.h"
#include "zu.hpp"

namespace {

using namespace zutest;
using Status = zu::row_status;
using Texts = std::vector<std::string>;

class CppTable : public testing::Test
{
public:
    zu::table open()
    {
        runSql(sandbox.native(W("t.db3")), createTable("t", "NAME VARCHAR(8), SIZE INTEGER, NOTE VARCHAR(8)",
                                                       {"'r0', 10, 'x'", "'r1', 11, NULL", "'r2', 12, 'r0'"}));
        zu::table table(sandbox.path(W("t")));
        driver.forget();
        return table;
    }
    Texts stored() { return querySql(sandbox.native(W("t.db3")), "SELECT * FROM t"); }

    Sandbox sandbox;
    Driver driver;
};

TEST_F(CppTable, rows)
{
    const zu::table table = open();
    ASSERT_TRUE(table);
    EXPECT_EQ(table.row_count(), 3u);
    Texts read;
    for (const auto& row : table.rows())
        read.push_back(zu::to_utf8(row["name"]) + " " + std::to_string(row.get<std::int32_t>("SIZE").value_or(-1)) +
                       (row.get<std::string>("NOTE") ? " noted" : ""));
    EXPECT_EQ(read, (Texts{"r0 10 noted", "r1 11", "r2 12 noted"}));
    EXPECT_FALSE(table.has_row());

    // Rows that are kept, and a second walk.
    std::vector<zu::row> kept;
    for (auto& row : table.rows())
        kept.push_back(std::move(row));
    ASSERT_EQ(kept.size(), 3u);
    EXPECT_EQ(kept[2].get<double>("size"), 12.0);
    EXPECT_EQ(kept[2].get<double>("nowhere"), std::nullopt);
    EXPECT_EQ(kept[1]["nowhere"], W(""));
    EXPECT_EQ(table.structure().size(), 3u);
}

TEST_F(CppTable, noRows)
{
    runSql(sandbox.native(W("e.db3")), createTable("e", "NAME VARCHAR(8)", {}));
    const zu::table empty(sandbox.path(W("e")));
    ASSERT_TRUE(empty);
    const zu::table missing(sandbox.path(W("missing")));
    EXPECT_FALSE(missing);
    for (const zu::table* table : {&empty, &missing}) {
        for (const auto& row : table->rows())
            FAIL() << row.size();
        EXPECT_FALSE(table->read());
        EXPECT_EQ(table->field("NAME"), std::nullopt);
        EXPECT_EQ(table->row_count(), 0u);
    }
    EXPECT_EQ(missing.append(zu::row::of("NAME", "x")), Status::failed);
}

TEST_F(CppTable, aRowThatCannotBeReadIsNotTheEnd)
{
    const zu::table table = open();
    auto rows = table.rows();
    auto at = rows.begin();
    const AllocationLimit limit(0);
    EXPECT_THROW(++at, std::runtime_error);
}

TEST_F(CppTable, navigatesAndSeeks)
{
    const zu::table table = open();
    EXPECT_EQ(table.first(), Status::done);
    EXPECT_EQ(table.previous(), Status::no_row);
    EXPECT_EQ(table.seek("r2"), Status::done);
    EXPECT_EQ(table.field("SIZE"), Wide(W("12")));
    // A tag looks at its own fields, and keeps its texts however they were given.
    {
        zu::table_tag tag = table.tag(std::string("BYNOTE"), std::string("NOTE"));
        ASSERT_TRUE(tag);
        zu::table_tag moved = std::move(tag);
        EXPECT_FALSE(tag);
        EXPECT_EQ(zu_Db_openNdx(table.get(), W("bynote")), moved.get());
        EXPECT_EQ(table.first(), Status::done);
        EXPECT_EQ(table.seek("r0", moved), Status::done);
        EXPECT_EQ(table.field("NAME"), Wide(W("r2")));
        EXPECT_EQ(table.seek("r1", moved), Status::failed) << "a name, not a note";
    }
    EXPECT_EQ(zu_Db_openNdx(table.get(), W("BYNOTE")), -1);
}

TEST_F(CppTable, writes)
{
    const zu::table table = open();
    EXPECT_EQ(table.append(zu::row::of("NAME", "new", "SIZE", "20")), Status::done);
    for (auto& row : table.rows()) {
        if (row.get<std::int32_t>("SIZE") < 12) {
            EXPECT_TRUE(row.set("NOTE", "small"));
            EXPECT_FALSE(row.set("MISSPELT", "x"));
            EXPECT_EQ(table.write(row), Status::done);
        }
    }
    EXPECT_EQ(stored(), (Texts{"r0|10|small", "r1|11|small", "r2|12|r0", "new|20|<null>"}));
}

TEST_F(CppTable, closesOnce)
{
    zu::table first = open();
    const std::int32_t handle = first.get();
    zu::table second = std::move(first);
    EXPECT_EQ(first.get(), -1);
    EXPECT_EQ(second.get(), handle);
    second = zu::table(sandbox.path(W("t")));
    EXPECT_EQ(zu_DbRef_sel(handle), nullptr) << "the one before was closed";
    EXPECT_TRUE(second);
}

} // namespace
