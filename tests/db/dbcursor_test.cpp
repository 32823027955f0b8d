#include "driver.h"
#include "support/memory.h"
#include "zu_DbCursor.h"

namespace {

using namespace zutest;

struct CursorDeleter
{
    void operator()(DbCursor* cursor) const { zu_DbCursor_destroy(cursor); }
};
using Cursor = std::unique_ptr<DbCursor, CursorDeleter>;

DbFldList* fieldsOf(WideLiteral value)
{
    return zu_DbFldList_create(W("V"), value, none);
}

Cursor cursorOf(std::initializer_list<WideLiteral> names)
{
    Cursor cursor(zu_DbCursor_create());
    for (const WideLiteral name : names)
        EXPECT_EQ(zu_DbCursor_insEnd(cursor.get(), name, fieldsOf(name)), 1);
    return cursor;
}

Wide valueIn(DbFldList* fields)
{
    return str(zu_DbFldList_getFldVal(fields, W("V")));
}

TEST(DbCursor, rowsAndPositions)
{
    const Cursor cursor = cursorOf({W("b"), W("c")});
    EXPECT_EQ(zu_DbCursor_insStart(cursor.get(), W("a"), fieldsOf(W("first"))), 1);
    EXPECT_EQ(zu_DbCursor_eol(cursor.get()), 1);
    EXPECT_EQ(zu_DbCursor_start(cursor.get()), 1);
    EXPECT_EQ(zu_DbCursor_next(cursor.get()), 1);
    EXPECT_EQ(str(zu_DbCursor_getCurrTblName(cursor.get())), W("b"));
    EXPECT_EQ(str(zu_DbCursor_getNthTblName(cursor.get(), 2)), W("c"));

    // Past the end the names come again, each reader's own; the lists do not.
    EXPECT_EQ(zu_DbCursor_getNthFldList(cursor.get(), 3), nullptr);
    EXPECT_EQ(str(zu_DbCursor_getNthTblName(cursor.get(), 3)), W("c"));
    EXPECT_EQ(str(zu_DbCursor_getCurrTblName(cursor.get())), W("b"));
    EXPECT_EQ(zu_DbCursor_getCurrFldList(cursor.get()), nullptr);

    EXPECT_EQ(zu_DbCursor_delNth(cursor.get(), 1), 1);
    EXPECT_EQ(str(zu_DbCursor_getCurrTblName(cursor.get())), W("c"));
}

TEST(DbCursor, replacingTheCurrentRow)
{
    const Cursor cursor = cursorOf({W("a")});
    DbFldList* const fields = fieldsOf(W("new"));
    EXPECT_EQ(zu_DbCursor_modCurr(cursor.get(), W("b"), fields), 0) << "no current row";
    zu_DbCursor_start(cursor.get());
    EXPECT_EQ(zu_DbCursor_modCurr(cursor.get(), W("b"), fields), 1);
    EXPECT_EQ(zu_DbCursor_getCurrFldList(cursor.get()), fields) << "taken over";
    // A row that gets its own list again is only renamed.
    EXPECT_EQ(zu_DbCursor_modCurr(cursor.get(), W("c"), fields), 1);
    EXPECT_EQ(str(zu_DbCursor_getCurrTblName(cursor.get())), W("c"));
    EXPECT_EQ(valueIn(fields), W("new"));
}

TEST(DbCursor, copiesHoldTheCompleteRows)
{
    const Cursor cursor = cursorOf({W("a"), W("b")});
    zu_DbCursor_insStart(cursor.get(), W("without fields"), nullptr);
    zu_DbCursor_insEnd(cursor.get(), nullptr, fieldsOf(W("without a name")));
    zu_DbCursor_start(cursor.get());
    const Cursor copy(zu_DbCursor_copy(cursor.get()));
    EXPECT_EQ(zu_LnkList_getPos(cursor.get()), 0);
    ASSERT_EQ(zu_DbCursor_length(copy.get()), 2u);
    EXPECT_EQ(valueIn(zu_DbCursor_getNthFldList(copy.get(), 1)), W("b"));
    EXPECT_NE(zu_DbCursor_getNthFldList(copy.get(), 0), zu_DbCursor_getNthFldList(cursor.get(), 1));

    const Cursor empty(zu_DbCursor_create());
    EXPECT_EQ(zu_DbCursor_copy(empty.get()), nullptr);

    Cursor other = cursorOf({W("x"), W("y")});
    EXPECT_EQ(zu_DbCursor_join(copy.get(), other.release()), 1);
    EXPECT_EQ(zu_DbCursor_length(copy.get()), 4u);
    EXPECT_EQ(str(zu_DbCursor_getCurrTblName(copy.get())), W("a"));
}

TEST(DbCursor, badInputAndMemory)
{
    DbFldList* const fields = fieldsOf(W("mine"));
    for (const auto& take : {zu_DbCursor_insStart, zu_DbCursor_insEnd, zu_DbCursor_modCurr})
        EXPECT_EQ(take(nullptr, W("a"), fields), 0);
    EXPECT_TRUE(
        allAre(0, {zu_DbCursor_destroy(nullptr), zu_DbCursor_delCurr(nullptr), zu_DbCursor_delNth(nullptr, 0)}));
    EXPECT_TRUE(allNull({zu_DbCursor_copy(nullptr), zu_DbCursor_getNth(nullptr, 0), zu_DbCursorNode_destroy(nullptr),
                         zu_DbCursorNode_destroy(zu_DbCursorNode_create(W("a"), fieldsOf(W("its own"))))}));

    // What was not taken over is still the caller's.
    int32_t result = 1;
    const Cursor cursor = cursorOf({W("a")});
    sweepAllocations(
        [&] {
            result = zu_DbCursor_insEnd(cursor.get(), W("b"), fields);
            if (result == 1) {
                zu_DbCursor_getNth(cursor.get(), 1)->fields = nullptr;
                zu_DbCursor_delNth(cursor.get(), 1);
            }
        },
        [&] {
            EXPECT_EQ(result, 0);
            EXPECT_EQ(valueIn(fields), W("mine"));
        });
    zu_DbFldList_destroy(fields);
}

} // namespace
