#include "driver.h"
#include "support/memory.h"
#include "zu_Diag.h"
#include "zu_Memory.h"

namespace {

using namespace zutest;

List listOf(std::initializer_list<WideLiteral> names)
{
    List list(zu_DbFldList_create(nullptr));
    for (const WideLiteral name : names)
        EXPECT_EQ(zu_DbFldList_insEnd(list.get(), name, name, 8, 2, 'c'), 1);
    return list;
}

TEST(DbFldList, createMakesUpperCaseTextFields)
{
    const List list(zu_DbFldList_create(W("diam"), W("12"), W("tag"), none, none));
    EXPECT_EQ(zu_DbFldList_length(list.get()), 2u);
    EXPECT_EQ(zu_DbFldList_eol(list.get()), 1) << "no current field";
    EXPECT_EQ(zu_DbFldList_start(list.get()), 1);
    EXPECT_EQ(str(zu_DbFldList_getCurrName(list.get())), W("DIAM"));
    EXPECT_EQ(str(zu_DbFldList_getCurrStr(list.get())), W("12"));
    EXPECT_EQ(zu_DbFldList_next(list.get()), 1);
    EXPECT_EQ(zu_DbFldList_getCurrType(list.get()), W('C'));
    EXPECT_EQ(str(zu_DbFldList_getNth(list.get(), 1)->value), W("")) << "a null value is an empty one here";
}

TEST(DbFldList, valuesAreStoredTrimmed)
{
    const std::tuple<const char*, zu_wchar, WideLiteral, WideLiteral> rows[] = {
        {"number", 'N', W("  12.5  "), W("12.5")},       {"number of the other kind", 'f', W("  12.5  "), W("12.5")},
        {"text", 'C', W("  12.5  "), W("  12.5")},       {"all blanks", 'C', W("   "), W("")},
        {"no-break space", 'C', W("a\u00a0\t"), W("a")}, {"none", 'C', nullptr, nullptr},
    };
    for (const auto& [what, type, given, stored] : rows) {
        DbFldNode* const field = zu_DbFldNode_new(W("x"), given, 5, 1, type);
        ASSERT_NE(field, nullptr);
        EXPECT_EQ(str(field->value), str(stored)) << what;
        EXPECT_EQ(zu_DbFldNode_destroy(field), 1);
    }
}

TEST(DbFldList, aValueMayBeSetFromItself)
{
    const List list = listOf({W("abcdef")});
    zu_DbFldList_start(list.get());
    DbFldNode* const field = zu_DbFldList_getNth(list.get(), 0);
    EXPECT_EQ(zu_DbFldList_modCurrVal(list.get(), field->value + 2), 1);
    EXPECT_EQ(str(field->value), W("cdef"));
    EXPECT_EQ(zu_DbFldList_modCurrVal(list.get(), nullptr), 0);
    EXPECT_EQ(field->value, nullptr);
    EXPECT_EQ(str(zu_DbFldList_getCurrStr(list.get())), W(""));
    EXPECT_EQ(str(zu_DbFldList_getCurrStrPadded(list.get())), W("        "));
}

TEST(DbFldList, findWantsStoredUpperCaseAndFindFldDoesNot)
{
    const List list = listOf({W("Diam"), W("DIAM"), W("diam"), W("Gr\u00f6\u00dfe")});
    EXPECT_EQ(zu_DbFldList_find(list.get(), W("diam")), 1);
    EXPECT_EQ(zu_LnkList_getPos(list.get()), 1);
    EXPECT_EQ(zu_DbFldList_findFld(list.get(), W("DIAM")), zu_DbFldList_getNth(list.get(), 0)) << "the first one";
    EXPECT_EQ(zu_DbFldList_findFld(list.get(), W("gR\u00f6\u00dfE")), zu_DbFldList_getNth(list.get(), 3));
    EXPECT_EQ(zu_LnkList_getPos(list.get()), 3);
    EXPECT_EQ(zu_DbFldList_modFldVal(list.get(), W("diam"), W("new ")), 1);
    EXPECT_EQ(str(zu_DbFldList_getNthStr(list.get(), 0)), W("new"));
    EXPECT_EQ(zu_DbFldList_delFld(list.get(), W("diam")), 1);
    EXPECT_EQ(str(zu_DbFldList_getNth(list.get(), 1)->name), W("diam")) << "only the upper-case one went";
}

TEST(DbFldList, readersCutAndPad)
{
    const List list = listOf({W("ABC")});
    zu_DbFldList_start(list.get());
    EXPECT_EQ(str(zu_DbFldList_getCurrStrPadded(list.get())), W("ABC     "));
    EXPECT_EQ(zu_DbFldList_modCurrWidth(list.get(), 2), 8);
    EXPECT_EQ(str(zu_DbFldList_getCurrStrPadded(list.get())), W("ABC")) << "a narrow width does not cut";
    zu_DbFldList_modCurrWidth(list.get(), -1);
    EXPECT_EQ(str(zu_DbFldList_getCurrStrPadded(list.get())), W("ABC") + Wide(509, W(' ')));

    const Wide text = Wide(511, W('7')) + W("89");
    zu_DbFldList_modCurrVal(list.get(), text.c_str());
    EXPECT_EQ(str(zu_DbFldList_getCurrStr(list.get())), text.substr(0, 512));
    EXPECT_EQ(str(zu_DbFldList_getCurrStrPadded(list.get())), text.substr(0, 512));
    EXPECT_EQ(zu_DbFldList_getCurrInt(list.get()), INT32_MAX);
    EXPECT_NE(zu_DbFldList_getCurrStr(list.get()), zu_DbFldList_getNthStr(list.get(), 0)) << "buffers of their own";

    zu_DbFldList_modCurrVal(list.get(), W(" -12.75e1kg"));
    EXPECT_EQ(zu_DbFldList_getCurrDouble(list.get()), -127.5);
    EXPECT_EQ(zu_DbFldList_getCurrInt(list.get()), -12);
}

TEST(DbFldList, positions)
{
    const List list = listOf({W("A"), W("B")});
    EXPECT_EQ(zu_DbFldList_modNthVal(list.get(), 0, W("x")), 1);
    EXPECT_EQ(str(zu_DbFldList_getCurrName(list.get())), W("A"));
    EXPECT_EQ(str(zu_DbFldList_getNthStr(list.get(), 2)), W(""));
    EXPECT_EQ(str(zu_DbFldList_getNthStrPadded(list.get(), 2)), W("")) << "not the width of another field";
    EXPECT_EQ(zu_DbFldList_insStart(list.get(), Wide(70, W('n')).c_str(), nullptr, 1, 0, 'L'), 1);
    EXPECT_EQ(str(zu_DbFldList_getNth(list.get(), 0)->name), Wide(63, W('n')));
    zu_DbFldList_freeValues(list.get());
    EXPECT_EQ(zu_DbFldList_getNth(list.get(), 1)->value, nullptr);
    EXPECT_EQ(zu_DbFldList_delCurr(list.get()), 1);
}

TEST(DbFldList, copiesAreDeepAndExact)
{
    const List list = listOf({W("A"), W("B")});
    DbFldNode* const field = zu_DbFldList_getNth(list.get(), 1);
    field->value[0] = W(' '); // a value that the rule would trim
    DbFldNode* const first = zu_DbFldList_getNth(list.get(), 0);
    zu_Free(std::exchange(first->value, nullptr));
    const List copy(zu_DbFldList_copy(list.get()));
    EXPECT_EQ(zu_LnkList_getPos(list.get()), 0) << "the cursor of the source stays";
    EXPECT_EQ(zu_DbFldList_getNth(copy.get(), 0)->value, nullptr);
    EXPECT_EQ(str(zu_DbFldList_getNth(copy.get(), 1)->value), W(" "));
    EXPECT_NE(zu_DbFldList_getNth(copy.get(), 1)->value, field->value);
}

TEST(DbFldList, descriptors)
{
    const std::tuple<const char*, WideLiteral, int, WideLiteral, zu_wchar, uint32_t> rows[] = {
        {"an eighth character", W("PIPE C0300301 text"), 1, W("PIPE"), 'C', 30},
        {"no digits", W("PIPE C-10+05"), 1, W("PIPE"), 'C', 0},
        {"too short", W("PIPE C1 0000"), 0, W("PIPE"), '?', 99},
        {"null", nullptr, 0, W(""), '?', 99},
    };
    for (const auto& [what, line, result, rowName, rowType, rowWidth] : rows) {
        WideBuffer<40> name(W("unchanged"));
        zu_wchar type = '?';
        uint32_t width = 99;
        uint32_t precision = 99;
        EXPECT_EQ(zu_DbFldList_parseFldDesc(line, name, &type, &width, &precision), result) << what;
        EXPECT_EQ(name.str(), rowName) << what;
        EXPECT_EQ(type, rowType) << what;
        EXPECT_EQ(width, rowWidth) << what;
        EXPECT_EQ(zu_DbFldList_parseFldDesc(line, nullptr, nullptr, nullptr, nullptr), result);
    }
}

TEST(DbFldList, templates)
{
    Sandbox sandbox;
    const std::string longLine = "LONG C001000 " + std::string(300, 'x') + " LATE C002000\n";
    sandbox.write(W("pipe.tpl"), "diameter N010003\r\n\r\nno field\n" + longLine + "tag C030000");
    const List list(zu_DbFldList_fromTemplate(sandbox.path(W("pipe.tpl")).c_str()));
    ASSERT_EQ(zu_DbFldList_length(list.get()), 3u);
    EXPECT_EQ(str(zu_DbFldList_getNth(list.get(), 0)->name), W("DIAMETER"));
    EXPECT_EQ(zu_DbFldList_getNth(list.get(), 0)->value, nullptr);
    EXPECT_EQ(str(zu_DbFldList_getNth(list.get(), 1)->name), W("LONG"));
    EXPECT_EQ(str(zu_DbFldList_getNth(list.get(), 2)->name), W("TAG"));
    sandbox.write(W("mark.tpl"), "\xEF\xBB\xBFtag C030000\n");
    const List marked(zu_DbFldList_fromTemplate(sandbox.path(W("mark.tpl")).c_str()));
    EXPECT_EQ(str(zu_DbFldList_getNth(marked.get(), 0)->name), W("TAG")) << "behind a byte order mark";
    // The name is cut at 256 characters together with its line, which leaves no room for a specification.
    sandbox.write(W("bad.tpl"), std::string(260, 'x') + " C030000\nPIPE C30\n");
    EXPECT_EQ(zu_DbFldList_fromTemplate(sandbox.path(W("bad.tpl")).c_str()), nullptr);
    EXPECT_EQ(zu_DbFldList_fromTemplate(sandbox.path().c_str()), nullptr) << "a directory";
}

TEST(DbFldList, printing)
{
    const List list = listOf({W("A\u0416"), W("B"), W("ALONGERNAMETHANSIXTEEN")});
    zu_Free(std::exchange(zu_DbFldList_getNth(list.get(), 1)->value, nullptr));
    EXPECT_EQ(printedBy([&] { zu_DbFldList_printList(list.get()); }),
              "A\u0416               C:A\u0416\nB                ALONGERNAMETHANSIXTEEN C:ALONGERNAMETHANSIXTEEN\n");
}

TEST(DbFldList, badInput)
{
    DbFldList* const null = nullptr;
    zu_DbFldList_destroy(null);
    zu_DbFldList_freeValues(null);
    const List list = listOf({W("A")});
    for (DbFldList* const without : {null, list.get()}) { // a list without a current field
        for (const auto& text : {zu_DbFldList_getCurrStr, zu_DbFldList_getCurrStrPadded, zu_DbFldList_getCurrName})
            EXPECT_EQ(str(text(without)), W(""));
        EXPECT_EQ(zu_DbFldList_getCurrDouble(without), 0.0);
        EXPECT_EQ(zu_DbFldList_getCurrType(without), W('C'));
        EXPECT_TRUE(allAre(0, {zu_DbFldList_getCurrInt(without), zu_DbFldList_getCurrWidth(without) + 0,
                               zu_DbFldList_getCurrPrec(without) + 0, zu_DbFldList_modCurrVal(without, W("x")),
                               zu_DbFldList_modCurrWidth(without, 3), zu_DbFldList_modCurrPrec(without, 3),
                               zu_DbFldList_find(without, nullptr), zu_DbFldList_delFld(without, nullptr)}));
    }
    EXPECT_TRUE(allAre(0, {zu_DbFldList_delFld(null, W("a")), zu_DbFldList_delCurr(null), zu_DbFldNode_destroy(nullptr),
                           zu_DbFldList_insStart(null, W("a"), W("b"), 1, 1, 'C'),
                           zu_DbFldList_insEnd(null, W("a"), W("b"), 1, 1, 'C')}));
    EXPECT_TRUE(allNull({zu_DbFldList_findFld(list.get(), nullptr), zu_DbFldList_findFld(null, W("a")),
                         zu_DbFldList_copy(null), zu_DbFldList_fromTemplate(nullptr), zu_DbFldNode_fromFld(nullptr)}));
}

TEST(DbFldList, withoutMemory)
{
    Sandbox sandbox;
    sandbox.write(W("t.tpl"), "A C001000\nB C002000\n");
    const Wide path = sandbox.path(W("t.tpl"));
    const List source = listOf({W("A"), W("B")});
    sweepMaking([&] { return zu_DbFldList_copy(source.get()); }, zu_DbFldList_destroy);
    sweepMaking([&] { return zu_DbFldList_fromTemplate(path.c_str()); }, zu_DbFldList_destroy);
    zu_DbFldList_start(source.get());
    const Wide before = str(zu_DbFldList_getCurrStr(source.get()));
    sweepAllocations(
        [&] {
            if (zu_DbFldList_modCurrVal(source.get(), before.c_str()) == 0) {
                EXPECT_EQ(str(zu_DbFldList_getCurrStr(source.get())), before);
            }
        },
        [] {});
}

} // namespace
