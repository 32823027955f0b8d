#include "driver.h"
#include "support/memory.h"
#include "zu_Cb.h"
#include "zu_Cnv.h"
#include "zu_Db.h"
#include "zu_DbRef.h"
#include "zu_Memory.h"

#include <numbers>

namespace {

using namespace zutest;

// Both registries as a fresh process has them.
class DbRef : public testing::Test
{
    void SetUp() override { zu_Db_closeAll(); }
    void TearDown() override { zu_Db_closeAll(); }
};

TEST_F(DbRef, numbersOfHandles)
{
    EXPECT_EQ(zu_DbRef_add(W("a")), 0);
    EXPECT_EQ(zu_DbRef_add(W("b")), 1);
    EXPECT_EQ(zu_DbRef_add(W("c")), 2);
    EXPECT_EQ(zu_DbRef_del(1), 1);
    EXPECT_EQ(zu_DbRef_add(W("d")), 3) << "one more than the largest";
    EXPECT_EQ(zu_DbRef_del(3), 1);
    EXPECT_EQ(zu_DbRef_add(W("e")), 3) << "used again, because it was the largest";
    EXPECT_EQ(zu_DbRef_add(nullptr), -1);
    zu_DbRef_sel(2)->number = INT32_MAX;
    EXPECT_EQ(zu_DbRef_add(W("f")), -1) << "no number is left";
}

TEST_F(DbRef, recordsOwnPathAndFields)
{
    DbRefNode* const record = zu_DbRefNode_create(W("a"), 7);
    ASSERT_NE(record, nullptr);
    record->fields = zu_DbFldList_create(W("A"), W("1"), static_cast<const zu_wchar*>(nullptr));
    EXPECT_EQ(zu_DbRefNode_find(7), nullptr) << "not registered";
    zu_DbRefNode_free(record);
    EXPECT_EQ(zu_DbRefNode_create(nullptr, 1), nullptr);
}

TEST_F(DbRef, numbersOfTags)
{
    const Wide name = W("BYTAG");
    EXPECT_EQ(zu_DbTagRef_add(4, name.c_str(), W("TAG,SIZE")), 100);
    EXPECT_EQ(zu_DbTagRef_add(0, nullptr, nullptr), 200);
    const DbTagRefNode* const tag = zu_DbTagRef_selNdx(199);
    ASSERT_NE(tag, nullptr);
    EXPECT_EQ(tag->name, name.c_str()) << "kept by reference";
    EXPECT_EQ(zu_DbTagRef_selNdx(99), nullptr);
    // Meant to do something, and known to do nothing.
    EXPECT_EQ(zu_DbTagRef_update(100, W("OTHER")), 0);
    EXPECT_EQ(str(tag->name), W("BYTAG"));
    EXPECT_EQ(zu_DbRef_delTags(0), 0) << "nor the tag whose expression is null";
    EXPECT_EQ(zu_DbTagRef_del(150), 1);
    EXPECT_EQ(zu_DbTagRef_del(100), 0);
    EXPECT_EQ(zu_DbTagRef_add(1, W("x"), W("y")), 300);
    zu_Free(zu_DbTagRefNode_create(W("n"), W("e"), 500, 6));
}

TEST(Cb, tagListsAreSplitAtCommasAndBlanks)
{
    StrList* const items = zu_Cb_parseTagInfo(W("NAME, SIZE  TYPE,,"));
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(zu_StrList_count(items), 3u);
    EXPECT_EQ(str(zu_StrList_getNth(items, 1)), W("SIZE"));
    zu_StrList_destroy(items);
    for (const WideLiteral text : {W(""), W(" ,, "), WideLiteral(nullptr)})
        EXPECT_EQ(zu_Cb_parseTagInfo(text), nullptr);
}

TEST(Cb, withoutADataFileLayerNothingIsFound)
{
    CbSettings settings;
    settings.words[63] = 1;
    zu_Cb_init(&settings);
    EXPECT_EQ(settings.words[63], 0u);
    const int64_t before = liveBlocks();
    EXPECT_TRUE(allAre(0, {zu_Cb_createNdx(W("C:\\data\\pipe"), W("TAG,SIZE"), 1), zu_Cb_createNdx(nullptr, nullptr, 0),
                           zu_Cb_i4create(nullptr, nullptr, nullptr, 0, 1), zu_c4atoi("12", 2)}));
    EXPECT_TRUE(allNull({zu_Cb_findTag(nullptr, W("TAG000")), zu_DbTagRef_sel(nullptr, 100)}));
    EXPECT_EQ(zu_c4atod("12.5", 4), 0.0);
    DbFldNode* const field = zu_DbFldNode_new(W("A"), W("1"), 1, 0, 'N');
    EXPECT_EQ(zu_Db_updFld(nullptr, field), 1);
    zu_DbFldNode_destroy(field);

    auto* const tags = static_cast<CbTagInfo*>(zu_Calloc(2, sizeof(CbTagInfo)));
    tags[0].name = static_cast<char*>(zu_Malloc(4));
    tags[0].filter = static_cast<char*>(zu_Malloc(4));
    zu_Cb_freeTags(tags, 1);
    zu_Cb_freeTags(nullptr, 3);
    zu_Cb_init(nullptr);
    zu_DbRefNode_free(nullptr);
    EXPECT_EQ(liveBlocks(), before);
}

TEST(Cnv, angles)
{
    EXPECT_DOUBLE_EQ(zu_Cnv_dtor(180.0), std::numbers::pi);
    EXPECT_DOUBLE_EQ(zu_Cnv_rtod(std::numbers::pi / 2), 90.0);
}

} // namespace
