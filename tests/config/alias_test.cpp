#include "support/wide.h"
#include "zu_Alias.h"

namespace {

using namespace zutest;

TEST(Alias, putGetAndDelete)
{
    WideBuffer<8> value(W("old"));
    EXPECT_EQ(zu_Alias_put(W("Root"), W("C:\\plant")), 1);
    EXPECT_EQ(zu_Alias_get(value, W("ROOT"), 7), 1);
    EXPECT_EQ(value.str(), W("C:\\plan")) << "cut to the capacity";
    EXPECT_EQ(zu_Alias_get(value, nullptr, 7), 0);
    EXPECT_EQ(value.str(), W(""));
    EXPECT_EQ(zu_Alias_put(W("unknown alias"), nullptr), 0);
    EXPECT_EQ(zu_Alias_del(W("root")), 1);
    EXPECT_EQ(zu_Alias_get(value, W("ROOT"), 7), -2);
}

TEST(Alias, expansion)
{
    zu_Alias_put(W("ROOT"), W("C:\\plant"));
    zu_Alias_put(W("NEST"), W("%ROOT%"));
    zu_Alias_put(W("EMPTY"), W(""));
    zu_Alias_put(W("LONG"), Wide(300, W('x')).c_str());
    const Wide cut(256, W('x'));
    const std::tuple<const char*, Wide, Wide> rows[] = {
        {"any case", W("a%root%b"), W("aC:\\plantb")}, {"unknown stays", W("%NOBODY%\\specs"), W("%NOBODY%\\specs")},
        {"empty name disappears", W("50%%"), W("50")}, {"not expanded again", W("%NEST%"), W("%ROOT%")},
        {"empty value", W("[%EMPTY%]"), W("[]")},      {"values are cut", W("%LONG%"), cut},
    };
    for (const auto& [what, text, expanded] : rows) {
        WideBuffer<600> out(W("old"));
        EXPECT_EQ(zu_Alias_expandStr(out, text.c_str(), 3), 0) << what;
        EXPECT_EQ(out.str(), expanded) << what;
    }
    WideBuffer<8> out(W("old"));
    EXPECT_TRUE(allAre(0, {zu_Alias_expandStr(out, nullptr, 8), zu_Alias_expandStr(nullptr, W("x"), 8)}));
    EXPECT_EQ(out.str(), W("old"));
}

TEST(Alias, fromAFieldList)
{
    const zu_wchar* const end = nullptr;
    FldList* const list =
        zu_FldList_create(W("A1"), ZU_FLD_CHAR, W("text"), W("A2"), ZU_FLD_INT, 5, W("A3"), ZU_FLD_UNKNOWN, end, end);
    EXPECT_EQ(zu_Alias_putFromFldList(list), 1);
    WideBuffer<32> out;
    zu_Alias_expandStr(out, W("%a1% %a2% [%a3%]"), 0);
    EXPECT_EQ(out.str(), W("text 5 []"));
    zu_FldList_destroy(list);
}

} // namespace
