#include "support/memory.h"
#include "support/trace.h"
#include "support/wide.h"
#include "zu_Diag.h"
#include "zu_IntList.h"
#include "zu_Memory.h"
#include "zu_StrList.h"

namespace {

using namespace zutest;
using testing::PrintToString;

class Strings
{
public:
    Strings(std::initializer_list<WideLiteral> strings) : list(zu_StrList_create(nullptr))
    {
        for (WideLiteral string : strings)
            EXPECT_EQ(zu_StrList_insEnd(list, string), 1);
    }
    explicit Strings(StrList* owned) : list(owned) {}
    ~Strings() { zu_StrList_destroy(list); }
    Strings(const Strings&) = delete;
    operator StrList*() const { return list; }
    StrList** address() { return &list; }

    // The strings, whole.
    std::vector<Wide> content() const
    {
        std::vector<Wide> result;
        for (const LnkNode* node = list->first; node != nullptr; node = node->next)
            result.emplace_back(static_cast<const StrListNode*>(node->data)->string);
        return result;
    }

private:
    StrList* list;
};

std::vector<Wide> wides(std::initializer_list<WideLiteral> strings)
{
    return {strings.begin(), strings.end()};
}

TEST(StrList, insertionsCopyAndKeepTheCursorRules)
{
    WideBuffer<4> text{W("b")};
    Strings list(zu_StrList_create(text, W("d"), static_cast<zu_wchar*>(nullptr)));
    text = W("xx");
    EXPECT_EQ(zu_StrList_eol(list), 0) << "created on the first";
    EXPECT_EQ(zu_StrList_insStart(list, W("a")), 1);
    EXPECT_EQ(zu_StrList_insAfter(list, W("c")), 1);
    EXPECT_EQ(zu_StrList_insEnd(list, W("e")), 1);
    EXPECT_EQ(zu_StrList_insBefore(list, W("ab")), 1);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("b"));
    EXPECT_EQ(zu_StrList_insNth(list, 99, W("f")), 1);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("e")) << "on the old tail";
    EXPECT_EQ(list.content(), wides({W("a"), W("ab"), W("b"), W("c"), W("d"), W("e"), W("f")}));
    EXPECT_EQ(zu_StrList_count(list), 7u);
    EXPECT_EQ(zu_StrList_delNth(list, 6), 1);
    EXPECT_EQ(zu_StrList_delCurr(list), 1);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("d"));
    EXPECT_EQ(zu_StrList_modCurr(list, W("D")), 1);
    EXPECT_EQ(zu_StrList_modNth(list, 1, W("AB")), 1);
    EXPECT_EQ(zu_StrList_modNth(list, 2, zu_StrList_getNth(list, 0)), 1) << "from the static buffer";
    EXPECT_EQ(list.content(), wides({W("a"), W("AB"), W("a"), W("c"), W("D")}));
    EXPECT_EQ(zu_StrList_delAll(list), 1);
    EXPECT_EQ(zu_StrList_length(list), 0u);
}

TEST(StrList, insSortedPutsEqualsBehind)
{
    Strings list{};
    for (WideLiteral string : {W("b"), W("a"), W("b"), W("A"), W("\uffff")})
        EXPECT_EQ(zu_StrList_insSorted(list, string), 1);
    EXPECT_EQ(list.content(), wides({W("A"), W("a"), W("b"), W("b"), W("\uffff")}));
    const LnkNode* const firstB = static_cast<StrList*>(list)->first->next->next;
    const void* const dataBefore = firstB->data;
    zu_StrList_insSorted(list, W("b"));
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("\uffff")) << "on the greater one";
    EXPECT_EQ(firstB->data, dataBefore);
    zu_StrList_sort(list);
    EXPECT_EQ(list.content(), wides({W("A"), W("a"), W("b"), W("b"), W("b"), W("\uffff")}));
}

TEST(StrList, readingGivesCopies)
{
    const Wide longString(600, W('x'));
    const Wide tail = longString + W("y");
    Strings list{longString.c_str(), tail.c_str()};
    EXPECT_EQ(str(zu_StrList_getNth(list, 0)), longString.substr(0, 512));
    EXPECT_EQ(str(zu_StrList_searchForString(list, W("y"), 0)), longString.substr(0, 512));
    zu_StrList_end(list);
    zu_wchar* const whole = zu_StrList_getCurrPtr(list);
    EXPECT_EQ(str(whole), tail);
    zu_StrList_modCurr(list, W("last"));
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("last"));
    zu_StrList_next(list);
    EXPECT_EQ(zu_StrList_eol(list), 1);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("last")) << "the item read before, not null";
    EXPECT_EQ(zu_StrList_getCurrPtr(list), whole);
    EXPECT_EQ(zu_StrList_getNth(list, 2), nullptr);
    zu_Free(whole);
}

TEST(StrList, searches)
{
    Strings list{W("abc"), W("ABC"), W("xABCx"), W("")};
    EXPECT_EQ(zu_StrList_search(list, W("ABC"), 1), 0);
    EXPECT_EQ(zu_StrList_search(list, W("ABC"), 0), 1);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("ABC"));
    EXPECT_EQ(zu_StrList_search(list, W(""), 0), 3);
    EXPECT_EQ(str(zu_StrList_searchForString(list, W("xabc"), 1)), W("xABCx"));
    zu_StrList_next(list);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("")) << "the search stood on the third";
    EXPECT_EQ(zu_StrList_prev(list) + zu_StrList_skip(list, -2), 2);
    EXPECT_EQ(str(zu_StrList_getCurr(list)), W("abc"));
    EXPECT_EQ(zu_StrList_searchForString(list, W("xabc"), 0), nullptr);
    EXPECT_EQ(zu_StrList_eol(list), 1);
}

TEST(StrList, splitting)
{
    const std::tuple<WideLiteral, WideLiteral, std::vector<Wide>> rows[] = {
        {W(" x ,, y "), W(","), wides({W("x"), W("y")})},
        {W("a;b,c"), W(",;"), wides({W("a"), W("b"), W("c")})},
        {W(",a b\t, ,"), W(","), wides({W("a b"), W("")})},
    };
    for (const auto& [text, delimiters, items] : rows) {
        const Strings list(zu_StrList_fromDelimitedString(text, delimiters));
        EXPECT_EQ(list.content(), items) << PrintToString(str(text));
        EXPECT_EQ(zu_StrList_eol(list), 1);
    }
    for (WideLiteral nothing : {W(",,"), W(""), WideLiteral{nullptr}})
        EXPECT_EQ(zu_StrList_fromDelimitedString(nothing, W(",")), nullptr);
}

TEST(StrList, joining)
{
    const Wide longString(700, W('x'));
    Strings list{W("a"), W(""), longString.c_str(), W("it's")};
    zu_wchar* const joined = zu_StrList_toDelimitedString(list, W("; "));
    EXPECT_EQ(str(joined), W("a; ; ") + longString + W("; it's"));
    zu_Free(joined);
    zu_wchar* const undelimited = zu_StrList_toDelimitedString(list, nullptr);
    EXPECT_EQ(str(undelimited), W("a") + longString + W("it's"));
    zu_Free(undelimited);

    const std::tuple<int32_t, int32_t, std::vector<Wide>> rows[] = {
        {2, 1, {W("'a',''"), W("'") + longString + W("','it's'")}},
        {3, 0, {W("a,,") + longString, W("it's")}},
        {-1, 0, {W("a,,") + longString + W(",it's")}},
    };
    for (const auto& [size, quote, rowGroups] : rows) {
        const Strings groups(zu_StrList_toDelimitedStringList(list, W(","), size, quote));
        EXPECT_EQ(groups.content(), rowGroups) << size;
    }
    const Strings empty{};
    EXPECT_EQ(zu_StrList_toDelimitedString(empty, W(",")), nullptr);
    EXPECT_EQ(zu_StrList_toDelimitedStringList(empty, W(","), 2, 0), nullptr);
}

TEST(StrList, copiesAndConcatenations)
{
    Strings source{W("a"), W("b")};
    zu_StrList_start(source);
    const Strings copy(zu_StrList_copy(source));
    EXPECT_EQ(copy.content(), source.content());
    EXPECT_EQ(zu_StrList_concatenate(copy, source), 1);
    EXPECT_EQ(zu_StrList_eol(source), 1);
    EXPECT_EQ(zu_StrList_concatenate(copy, copy), 1) << "a list appended to itself ends";
    EXPECT_EQ(copy.content(), wides({W("a"), W("b"), W("a"), W("b"), W("a"), W("b"), W("a"), W("b")}));
    const Strings fromNull(zu_StrList_copy(nullptr));
    EXPECT_EQ(zu_StrList_count(fromNull), 0u);
}

TEST(StrList, removeDuplicatesKeepsTheFirst)
{
    for (const uint8_t ignoreCase : {uint8_t{0}, uint8_t{1}}) {
        Strings list{W("x"), W("X"), W("y"), W("x"), W("Y"), W("\u00e4"), W("\u00c4")};
        *list.address() = zu_StrList_removeDuplicates(list, ignoreCase);
        EXPECT_EQ(list.content(), ignoreCase != 0 ? wides({W("x"), W("y"), W("\u00e4"), W("\u00c4")})
                                                  : wides({W("x"), W("X"), W("y"), W("Y"), W("\u00e4"), W("\u00c4")}));
    }
    Strings one{W("x")};
    EXPECT_EQ(zu_StrList_removeDuplicates(one, 0), static_cast<StrList*>(one));
}

TEST(StrList, withoutMemory)
{
    StrList* made = nullptr;
    sweepAllocations([&] { made = zu_StrList_create(W("b"), W("a"), W("b"), static_cast<zu_wchar*>(nullptr)); },
                     [&] { EXPECT_EQ(made, nullptr); });
    Strings list(made);
    int32_t result = 0;
    const auto unchanged = [&] {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(list.content(), wides({W("b"), W("a"), W("b")}));
    };
    sweepAllocations(
        [&] {
            if ((result = zu_StrList_insSorted(list, W("A"))) == 1)
                zu_StrList_delNth(list, 0);
        },
        unchanged);
    sweepAllocations([&] { result = zu_StrList_modNth(list, 0, W("b")); }, unchanged);

    zu_wchar* joined = nullptr;
    sweepAllocations([&] { joined = zu_StrList_toDelimitedString(list, W("-")); }, [&] { EXPECT_EQ(joined, nullptr); });
    zu_Free(joined);
    StrList* const original = list;
    sweepAllocations([&] { *list.address() = zu_StrList_removeDuplicates(list, 0); },
                     [&] { EXPECT_EQ(static_cast<StrList*>(list), original) << "returned as it is"; });
    EXPECT_EQ(list.content(), wides({W("b"), W("a")}));
}

TEST(StrList, nothingToWorkOn)
{
    EXPECT_TRUE(allAre(0, {zu_StrList_destroy(nullptr), zu_StrList_delAll(nullptr), zu_StrList_insStart(nullptr, W("")),
                           zu_StrList_insEnd(nullptr, W("")), zu_StrList_insBefore(nullptr, W("")),
                           zu_StrList_insAfter(nullptr, W("")), zu_StrList_insNth(nullptr, 0, W("")),
                           zu_StrList_insSorted(nullptr, W("")), zu_StrList_modCurr(nullptr, W("")),
                           zu_StrList_modNth(nullptr, 0, W("")), zu_StrList_concatenate(nullptr, nullptr)}));
    EXPECT_TRUE(allNull({zu_StrList_getNth(nullptr, 0), zu_StrList_searchForString(nullptr, W(""), 0),
                         zu_StrList_toDelimitedString(nullptr, W(""))}));
    zu_StrList_sort(nullptr);
    Strings withNull{W("b"), W("a")};
    zu_LnkList_insEnd(withNull, nullptr);
    zu_StrList_sort(withNull);
    EXPECT_EQ(zu_StrList_count(withNull), 3u);
    IntList* const integers = zu_IntList_create(static_cast<int32_t*>(nullptr));
    zu_LnkList_insEnd(integers, nullptr);
    IntList* const copy = zu_IntList_copy(integers);
    EXPECT_EQ(zu_LnkList_length(copy), 0u) << "a null element has no value";
    zu_IntList_destroy(copy);
    zu_LnkList_destroy(integers, nullptr);
    Strings list{W("a")};
    EXPECT_TRUE(allAre(0, {zu_StrList_concatenate(list, nullptr), zu_StrList_insEnd(list, nullptr),
                           zu_StrList_insSorted(list, nullptr), zu_StrList_modNth(list, 0, nullptr)}));
    EXPECT_TRUE(allAre(-1, {zu_StrList_search(nullptr, W(""), 0), zu_StrList_search(list, nullptr, 0),
                            zu_StrList_search(list, W("b"), 1)}));
    EXPECT_TRUE(allNull({zu_StrList_searchForString(list, nullptr, 0), zu_StrList_removeDuplicates(nullptr, 0),
                         zu_StrList_toDelimitedStringList(nullptr, W(""), 1, 0), zu_StrList_getNth(list, -1),
                         zu_StrList_fromDelimitedString(W("a"), nullptr)}));
    EXPECT_EQ(zu_StrList_count(list), 1u);
}

// Quadratic in the number of strings, each of these would take minutes.
TEST(StrList, longListsAreNotQuadratic)
{
    Strings list{};
    for (int index = 0; index < 200'000; ++index)
        zu_StrList_insEnd(list, widen("string " + std::to_string(index % 150'000)).c_str());
    *list.address() = zu_StrList_removeDuplicates(list, 1);
    EXPECT_EQ(zu_StrList_count(list), 150'000u);
    zu_wchar* const joined = zu_StrList_toDelimitedString(list, W(","));
    const Strings again(zu_StrList_fromDelimitedString(joined, W(",")));
    EXPECT_EQ(zu_StrList_count(again), 150'000u);
    zu_Free(joined);
    const Strings groups(zu_StrList_toDelimitedStringList(list, W(","), 1'000, 1));
    EXPECT_EQ(zu_StrList_count(groups), 150u);
}

TEST(StrList, onlyTheTracedOperationsTrace)
{
    Strings list{W("a")};
    TraceCapture trace(ZU_DIAG_STRLIST);
    zu_StrList_insStart(list, W("b"));
    EXPECT_EQ(trace.lines(), (std::vector<std::string>{"strlist Entering zu_StrListNode_create.",
                                                       "strlist Exiting zu_StrListNode_create."}));
    zu_StrList_delNth(list, 0);
    EXPECT_EQ(trace.lines(), std::vector<std::string>(2, "strlist Entering zu_StrListNode_destroy."));
    zu_StrList_getNth(list, 0);
    zu_StrList_sort(list);
    EXPECT_TRUE(trace.lines().empty());
    zu_StrList_search(list, W("z"), 0);
    EXPECT_EQ(trace.lines(),
              (std::vector<std::string>{"strlist Entering zu_StrList_search.", "strlist Exiting zu_StrList_search."}));
}

} // namespace
