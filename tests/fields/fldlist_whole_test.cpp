// Whole lists: comparing, merging, printing.
#include "support/lists.h"
#include "support/trace.h"
#include "zu_Diag.h"
#include "zu_FldList.h"
#include "zu_StrList.h"

namespace {

using namespace zutest;

using Owner = Fields;
constexpr const zu_wchar* end = nullptr;

std::string namesOf(FldList* list)
{
    std::string names;
    for (const LnkNode* node = list == nullptr ? nullptr : list->first; node != nullptr; node = node->next) {
        for (const zu_wchar* unit = static_cast<const FldNode*>(node->data)->name; *unit != 0; ++unit)
            names += static_cast<char>(*unit);
        names += ' ';
    }
    return names;
}

TEST(FldListWhole, comparingFields)
{
    const Owner a(zu_FldList_create(W("I"), 'I', 5, W("N"), 'N', 2.0, W("C"), 'C', W("b"), W("P"), 'P', 1.0, 2.0, 3.0,
                                    W("J"), 'I', INT32_MAX, W("E"), 'C', end, end));
    const Owner b(zu_FldList_create(W("I"), 'I', 4, W("N"), 'N', 1.0, W("C"), 'C', W("B"), W("P"), 'P', 9.0, 9.0, 9.0,
                                    W("J"), 'I', -2, W("E"), 'C', W(""), end));
    const auto compare = [](const Owner& left, const zu_wchar* name, const Owner& right) {
        return zu_FldList_compareNode(zu_FldList_find(left.get(), name), zu_FldList_find(right.get(), name));
    };
    EXPECT_EQ(compare(a, W("I"), b), 0) << "larger is never told";
    EXPECT_EQ(compare(b, W("I"), a), -1);
    EXPECT_GT(compare(a, W("C"), b), 0);
    EXPECT_EQ(compare(a, W("P"), b), 0) << "points never differ";
    EXPECT_EQ(compare(a, W("J"), b), -1) << "in 32-bit arithmetic";
    EXPECT_EQ(zu_FldList_compareNode(zu_FldList_find(a.get(), W("I")), zu_FldList_find(a.get(), W("N"))), -1)
        << "by code";
    EXPECT_EQ(zu_FldList_compareNode(nullptr, zu_FldList_find(a.get(), W("N"))), -2);
    zu_FldList_modReal(b.get(), W("N"), 2.0009);
    EXPECT_EQ(compare(a, W("N"), b), 0) << "within a thousandth";
}

TEST(FldListWhole, differences)
{
    const Owner a(zu_FldList_create(W("Same"), 'I', 5, W("Less"), 'I', 1, W("Point"), 'P', 1.0, 2.0, 3.0, W("Text"),
                                    'C', W("x"), W("Only"), 'I', 1, end));
    const Owner b(zu_FldList_create(W("same"), 'I', 5, W("less"), 'I', 2, W("point"), 'P', 0.0, 0.0, 0.0, W("text"),
                                    'C', W("y"), end));
    EXPECT_EQ(namesOf(Owner(zu_FldList_diff(a.get(), b.get(), 0)).get()), "LESS TEXT ");
    EXPECT_EQ(namesOf(Owner(zu_FldList_diff(a.get(), b.get(), 1)).get()), "LESS TEXT ONLY ");
    EXPECT_EQ(zu_FldList_diff(b.get(), b.get(), 1), nullptr);
}

TEST(FldListWhole, mergingByName)
{
    const Owner target(zu_FldList_create(W("A"), 'I', 1, W("B"), 'I', 2, end));
    const Owner source(zu_FldList_create(W("b"), 'C', W("x"), W("c"), 'N', 1.5, end));
    zu_FldList_appStrList(source.get(), W("a"), zu_StrList_create(W("s"), end));
    zu_FldList_appList(source.get(), W("d"), zu_FldList_create(W("in"), 'I', 1, end));
    EXPECT_EQ(zu_FldList_combine(target.get(), source.get()), 1);
    EXPECT_EQ(namesOf(target.get()), "A B C D ");
    EXPECT_EQ(zu_FldList_find(target.get(), W("a"))->type, 'U') << "string lists arrive as unknown";
    EXPECT_NE(zu_FldList_find(target.get(), W("d"))->value.list, zu_FldList_find(source.get(), W("d"))->value.list);
    const Owner twice(zu_FldList_create(W("A"), 'I', 1, W("A"), 'I', 2, end));
    EXPECT_EQ(zu_FldList_combine(twice.get(), twice.get()), 1);
    int32_t first = 0;
    zu_FldList_getInt(twice.get(), W("A"), &first);
    EXPECT_EQ(first, 2) << "the later one of a name counts";
    EXPECT_TRUE(allAre(0, {zu_FldList_combine(nullptr, source.get()), zu_FldList_combine(target.get(), nullptr)}));
    EXPECT_EQ(zu_FldList_diff(nullptr, source.get(), 1), nullptr);
}

TEST(FldListWhole, printing)
{
    const Owner list(zu_FldList_create(W("Name"), 'I', 5, W("Text"), 'C', W("\u00e4"), W("Null"), 'C', end, W("Real"),
                                       'N', 2.5, W("At"), 'P', 1.0, -2.0, 3.5, W("None"), 'U', end, end));
    FldList* const inner = zu_FldList_create(W("X"), 'L', -7, end);
    zu_FldList_appList(inner, W("Y"), zu_FldList_create(W("Z"), 'H', W("a1"), end));
    zu_FldList_appList(list.get(), W("A name of some length"), inner);

    const std::string said = printedBy([&] {
        zu_FldList_printList(list.get());
        zu_FldList_printList(nullptr);
        zu_FldList_printLevelList(nullptr, 3);
    });
    const std::string level1(17, ' ');
    const std::string level2(20, ' ');
    EXPECT_EQ(said, "NAME             I:5\n"
                    "TEXT             C:\xC3\xA4\n"
                    "NULL             " // no line break either
                    "REAL             N:2.500000\n"
                    "AT               P:1.000 -2.000 3.500\n"
                    "NONE             <undefined>\n"
                    "A NAME OF SOME LENGTH \n" +
                        level1 + "L:-7\n" + level1 + "\n" + level2 + "H:A1\n");

    TraceCapture trace(0x10, 2);
    zu_FldList_printListDiag(list.get(), 2, 0x30);
    EXPECT_EQ(trace.lines().size(), 9u) << "none for the null text";
    zu_FldList_printListDiag(list.get(), 3, 0x30);
    zu_FldList_printLevelListDiag(list.get(), 1, 2, 0x20);
    EXPECT_TRUE(trace.lines().empty()) << "level too low, no bit in common";
}

TEST(FldListWhole, fromEnvironmentLines)
{
    StrList* const lines = zu_StrList_create(W("A=1"), W("=x"), W("B="), W("no sign"), W(" C d = e=f "), end);
    const Owner list(zu_FldList_fromEnvList(lines));
    EXPECT_EQ(namesOf(list.get()), "A C D ");
    EXPECT_EQ(str(zu_FldList_find(list.get(), W("c d"))->value.text), W("e=f"));
    zu_StrList_destroy(lines);
    EXPECT_EQ(zu_FldList_fromEnvList(nullptr), nullptr);
}

} // namespace
