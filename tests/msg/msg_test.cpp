// Messages in English: no translator is ever asked.
#include "support/host.h"
#include "support/memory.h"
#include "zu_Msg.h"

#include <stdexcept>

namespace {

using namespace zutest;

const zu_wchar* const end = nullptr;

TEST(Msg, englishNeverAsksATranslator)
{
    TestHost host;
    host.configurationDirectory = W("C:\\cfg");
    host.iniValue(W("C:\\cfg\\zu.ini"), W("GENERAL"), W("LANGUAGE")) = W("english (UK)");
    host.iniValue(W("C:\\cfg\\zu.ini"), W("GENERAL"), W("LANGUAGE_DEBUG")) = W("0");
    host.translations[W("abc|TOOL|4")] = W("never");
    EXPECT_EQ(str(zu_Msg("abc", "TOOL", 5)), W("abc\n"));
    // The decision is made: another language comes too late.
    host.iniValue(W("C:\\cfg\\zu.ini"), W("GENERAL"), W("LANGUAGE")) = W("German");
    host.calls();
    EXPECT_EQ(str(zu_Msg("abc", "TOOL", 5)), W("abc\n"));
    EXPECT_TRUE(host.calls().empty()) << "nobody is asked any more";
}

TEST(Msg, layouts)
{
    const std::tuple<int32_t, WideLiteral> rows[] = {{0, W("t")},      {1, W("t")},   {2, W("t ")},   {3, W("\nt")},
                                                     {4, W("\nt ")},   {5, W("t\n")}, {6, W("t \n")}, {7, W("\nt\n")},
                                                     {8, W("\nt \n")}, {9, W("t")},   {-1, W("t")}};
    for (const auto& [mode, result] : rows)
        EXPECT_EQ(str(zu_Msg_format(W("t"), mode)), result) << mode;
    const int32_t modes[] = {1, 2, 3, 4, 5, 6, 7, 8, 1};
    for (int32_t number = 0; number < 9; ++number)
        EXPECT_EQ(zu_Msg_setFormat(number), modes[number]) << number;
    EXPECT_EQ(str(zu_Msg_format(Wide(600, W('x')).c_str(), 8)).size(), 512u);
    EXPECT_EQ(str(zu_Msg(std::string(600, 'x').c_str(), "S", 5)), Wide(255, W('x')));
}

TEST(Msg, escapes)
{
    const std::tuple<const char*, Wide, Wide> rows[] = {
        {"simple ones", W("a\\tb\\n\\\"\\'\\\\\\a\\f\\r"), W("a\tb\n\"'\\\a\f\r")},
        {"a backspace is dropped", W("a\\bc\\b"), W("ac")},
        {"others drop both", W("a\\qb\\%c"), W("abc")},
        {"at most three digits", W("\\1019"), W("A9")},
        {"the bits carry over", W("\\101\\102"), Wide{W('A'), zu_wchar(0x8242)}},
        {"a zero ends the text", W("a\\0b"), W("a")},
    };
    for (const auto& [what, text, expanded] : rows) {
        WideBuffer<64> buffer(text);
        EXPECT_EQ(zu_Msg_scanEsc(buffer), static_cast<zu_wchar*>(buffer)) << what;
        EXPECT_EQ(buffer.str(), expanded) << what;
    }
}

TEST(Msg, paddingAndCaptions)
{
    MsgNode* const node = zu_MsgNode_create(W("k"), W("ab"), W("S"), 0, 4);
    MsgList* const list = zu_Msg_mltReadArray(nullptr);
    zu_LnkList_insEnd(list, node);
    zu_Msg_multiple(list);
    EXPECT_EQ(str(zu_Msg_find(list, W("k"))), W("ab  "));
    zu_MsgList_destroy(list);
    EXPECT_EQ(str(zu_Msg_pad(W("ab"), W("S"), 0, 5)), W("ab   "));
    EXPECT_EQ(str(zu_Msg_pad(W("abc"), W("S"), 0, 2)), W("abc"));
    EXPECT_EQ(str(zu_Msg_pad(W("ab"), W("S"), 0, INT32_MAX)).size(), 255u);
    EXPECT_EQ(str(zu_MsgDBCols(W("Gr\u00f6\u00dfe \u0416"), 0)), W("Gr\u00f6\u00dfe \u0416"));
}

TEST(Msg, theFirstTwoWords)
{
    const std::tuple<WideLiteral, int32_t, WideLiteral, WideLiteral> rows[] = {
        {W("one two three"), 1, W("one"), W("two")}, {W(" _ "), 0, W("-"), W("-")},
        {W("A\t\tB_ C\t"), 1, W("A\t\tB"), W("C")},  {W("\t ABC"), 0, W(""), W("-")},
        {W("ABC \t"), 0, W("ABC"), W("")},
    };
    for (const auto& [text, result, rowFirst, rowSecond] : rows) {
        WideBuffer<32> first(W("-"));
        WideBuffer<32> second(W("-"));
        EXPECT_EQ(zu_Msg_breakStr(text, first, second), result);
        EXPECT_EQ(first.str(), rowFirst);
        EXPECT_EQ(second.str(), rowSecond);
    }
}

std::vector<std::tuple<Wide, Wide, Wide, uint32_t>> contents(MsgList* list)
{
    std::vector<std::tuple<Wide, Wide, Wide, uint32_t>> rows;
    for (const LnkNode* node = list->first; node != nullptr; node = node->next) {
        const auto* const message = static_cast<const MsgNode*>(node->data);
        rows.emplace_back(str(message->key), str(message->text), str(message->section), message->number);
    }
    return rows;
}

TEST(Msg, manyAtOnce)
{
    MsgList* list = zu_Msg_mlt(W("k1"), W("a"), W("S"), 5, W("k2"), W("b"), nullptr, W("k3"), W("c"), W("S"), 0, W("d"),
                               W("S"), 2, end);
    using Row = std::tuple<Wide, Wide, Wide, uint32_t>;
    EXPECT_EQ(contents(list),
              (std::vector<Row>{{W("k1"), W("a\n"), W("S"), 5},
                                {W("k2"), W("b"), W(""), 5}, // no section: the number before, not translated
                                {W("k3"), W("c"), W("S"), 0},
                                {W("k3"), W("d "), W("S"), 2}})); // a number 0: the key serves again
    EXPECT_EQ(str(zu_Msg_find(list, W("K3"))), W("K3")) << "exactly";
    EXPECT_EQ(zu_MsgList_destroy(list), 1);

    // A first message with a null section and the initial number 0: the key serves again.
    list = zu_Msg_mlt(W("k"), W("a"), nullptr, W("b"), W("S"), 3, end);
    EXPECT_EQ(contents(list), (std::vector<Row>{{W("k"), W("a"), W(""), 0}, {W("k"), W("\nb"), W("S"), 3}}));
    zu_MsgList_destroy(list);

    const Wide longKey(20, W('k'));
    const MsgRecord records[] = {
        {longKey.c_str(), W("x"), longKey.c_str(), 5}, {W("n"), nullptr, W("S"), 5}, {W(""), W("y"), W("S"), 1}};
    list = zu_Msg_mltReadArray(records);
    EXPECT_EQ(contents(list),
              (std::vector<Row>{{Wide(16, W('k')), W("x\n"), Wide(16, W('k')), 5}, {W("n"), W("<null>"), W("S"), 5}}));
    zu_MsgList_destroy(list);
    sweepAllocations([&] { zu_MsgList_destroy(zu_Msg_mltReadArray(records)); }, [] {});
}

TEST(Msg, keywordLists)
{
    MsgKeyWordList* list = zu_Msg_getKeyWordList(W("Open, Close,,Quit"), W("KEYS"), 3);
    EXPECT_EQ(zu_LnkList_length(list), 3u);
    EXPECT_EQ(str(zu_MsgKeyWordList_find(list, W("close"))), W("Close"));
    EXPECT_EQ(str(zu_MsgKeyWordList_find(list, W("Save"))), W("Save")) << "unknown ones come back";
    EXPECT_EQ(zu_MsgKeyWordList_append(list, W("New"), W("Neu")), 0) << "0 even when done";
    EXPECT_EQ(str(zu_MsgKeyWordList_find(list, W("NEW"))), W("Neu"));
    EXPECT_EQ(zu_MsgKeyWordList_destroy(list), 1);
    EXPECT_EQ(zu_Msg_getKeyWordList(W(" ,"), nullptr, 0), nullptr);
    EXPECT_EQ(zu_MsgKeyWordListNode_destroy(zu_MsgKeyWordListNode_create(W("a"), nullptr)), 1);
    EXPECT_EQ(zu_MsgKeyWordList_destroy(zu_MsgKeyWordList_create()), 1);
}

TEST(Msg, theMessageDatabaseIsNotAvailable)
{
    int32_t handle = 0;
    EXPECT_THROW(zu_Msg_openDb(&handle, W("x")), std::runtime_error);
    EXPECT_THROW(zu_Msg_closeDb(0), std::runtime_error);
    EXPECT_THROW(zu_Msg_getVal(0, W("x"), nullptr), std::runtime_error);
}

} // namespace
