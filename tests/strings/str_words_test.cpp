#include "support/lists.h"
#include "support/memory.h"
#include "zu_Str.h"

#include <random>

namespace {

using namespace zutest;
using testing::PrintToString;

struct Step
{
    WideLiteral word;
    int32_t position;
};

void readWords(const auto& next, WideLiteral list, const std::vector<Step>& steps)
{
    int32_t position = 0;
    for (const Step& step : steps) {
        WideBuffer<8> word{W("#######")};
        next(word, list, &position);
        EXPECT_EQ(word.str(), step.word) << PrintToString(str(list));
        EXPECT_EQ(position, step.position) << PrintToString(str(list));
    }
}

TEST(Str, delimitedWords)
{
    readWords(zu_Str_nextSDLWord, W("  ab c"), {{W("ab"), 4}, {W("c"), 6}, {W(""), 6}});
    readWords(zu_Str_nextSDLWord, W("a\tb  "), {{W("a\tb"), 3}, {W(""), 5}, {W(""), 5}});
    readWords(zu_Str_nextCDLWord, W("a;;b"), {{W("a"), 1}, {W(""), 2}, {W("b"), 4}, {W(""), 4}, {W(""), 4}});
    readWords(zu_Str_nextCDLWord, W(";a"), {{W("a"), 2}, {W(""), 2}}); // a leading empty one is lost
    readWords(zu_Str_nextCDLWord, W(" a ; b"), {{W(" a "), 3}, {W(" b"), 6}});
}

TEST(Str, aPositionOutsideTheListStays)
{
    for (const int32_t outside : {3, -1, INT32_MIN}) {
        for (const WideLiteral list : {W("ab"), WideLiteral{nullptr}}) {
            WideBuffer<4> word{W("###")};
            int32_t position = outside;
            zu_Str_nextSDLWord(word, list, &position);
            zu_Str_nextCDLWord(word, list, &position);
            EXPECT_EQ(word.str(), W(""));
            EXPECT_EQ(position, outside);
        }
    }
    WideBuffer<4> word{W("###")};
    zu_Str_nextCDLWord(word, W("ab"), nullptr);
    EXPECT_EQ(word.str(), W(""));
}

TEST(Str, tokens)
{
    int32_t position = 99;
    EXPECT_EQ(str(zu_Str_getNthToken(W(",;ab,,c"), W(",;"), 1, &position)), W("c"));
    EXPECT_EQ(position, 6);
    EXPECT_EQ(str(zu_Str_getRightNthToken(W(",;ab,,c"), W(",;"), 1, &position)), W("ab"));
    EXPECT_EQ(position, 2);
    EXPECT_EQ(zu_Str_getNthToken(W("ab"), W(","), -1, &position), nullptr);
    EXPECT_EQ(position, -1);
    EXPECT_TRUE(allNull(
        {zu_Str_getRightNthToken(W("ab"), W(","), -1, nullptr), zu_Str_getRightNthToken(nullptr, W(","), 0, nullptr),
         zu_Str_getNthToken(nullptr, W(","), 0, nullptr), zu_Str_getNthToken(W("a,b"), nullptr, 0, nullptr)}));
    EXPECT_EQ(str(zu_Str_getRightNthToken(W("a,b"), nullptr, 0, nullptr)), W("a,b")) << "only the left form refuses";
    const Wide longest(512, W('x'));
    EXPECT_EQ(str(zu_Str_getNthToken(longest.c_str(), W(","), 0, nullptr)), longest);
    const Wide tooLong = W("a,") + longest;
    EXPECT_EQ(zu_Str_getNthToken(tooLong.c_str(), W(","), 0, nullptr), nullptr);
    // The result of the call before may be taken apart further, and may be the delimiters.
    const zu_wchar* const commas = zu_Str_getNthToken(W(",;x"), W(";x"), 0, nullptr);
    EXPECT_EQ(str(zu_Str_getNthToken(W("a,b"), commas, 1, nullptr)), W("b"));
    EXPECT_EQ(str(zu_Str_getNthToken(zu_Str_getNthToken(W("z;a,b"), W(";"), 1, nullptr), W(","), 1, nullptr)), W("b"));
}

TEST(Str, tokensFromTheRightAreThoseFromTheLeft)
{
    std::mt19937 random(11);
    for (int round = 0; round < 5'000; ++round) {
        Wide text(random() % 12, W(','));
        for (zu_wchar& unit : text)
            unit = W("abc,;")[random() % 5];
        std::vector<std::pair<Wide, int32_t>> tokens;
        int32_t position = 0;
        while (const zu_wchar* token =
                   zu_Str_getNthToken(text.c_str(), W(",;"), static_cast<int32_t>(tokens.size()), &position)) {
            ASSERT_EQ(text.compare(static_cast<std::size_t>(position), Wide(token).size(), token), 0)
                << PrintToString(text);
            tokens.emplace_back(token, position);
        }
        for (std::size_t index = 0; index < tokens.size(); ++index) {
            const auto fromRight = static_cast<int32_t>(tokens.size() - 1 - index);
            ASSERT_EQ(str(zu_Str_getRightNthToken(text.c_str(), W(",;"), fromRight, &position)), tokens[index].first);
            ASSERT_EQ(position, tokens[index].second) << PrintToString(text);
        }
        const auto past = static_cast<int32_t>(tokens.size());
        ASSERT_EQ(zu_Str_getRightNthToken(text.c_str(), W(",;"), past, nullptr), nullptr) << PrintToString(text);
    }
}

TEST(Str, replaceChar)
{
    const std::tuple<WideLiteral, WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {W("aaaaa"), W("aa"), W("b"), W("bba")}, {W("ab"), W("b"), nullptr, W("a")},
        {W("ab"), nullptr, W("x"), W("ab")},     {W("a"), W("a"), W("aa"), W("aa")},
        {nullptr, W("a"), W("b"), W("")},
    };
    for (const auto& [text, find, replacement, result] : rows)
        EXPECT_EQ(str(zu_Str_replaceChar(text, find, replacement)), result) << PrintToString(str(text));
    EXPECT_EQ(str(zu_Str_replaceChar(zu_Str_replaceChar(W("a.b"), W("."), W("--")), W("-"), W("+"))), W("a++b"));
    const Wide dots(400, W('.'));
    EXPECT_EQ(str(zu_Str_replaceChar(dots.c_str(), W("."), W("abc"))).size(), 511u);
}

TEST(Str, locateKeyword)
{
    EXPECT_EQ(str(zu_Str_locateKeyword(W("x %a% y"), W("%"))), W("a"));
    EXPECT_EQ(str(zu_Str_locateKeyword(W("#K#one#K#two#K#"), W("#K#"))), W("one"));
    EXPECT_EQ(str(zu_Str_locateKeyword(W("aaaa"), W("aa"))), W("")) << "the second is looked for behind the first";
    for (WideLiteral text : {W("aaa"), W("AAAA"), WideLiteral{nullptr}})
        EXPECT_EQ(zu_Str_locateKeyword(text, W("aa")), nullptr) << PrintToString(str(text));
    EXPECT_TRUE(allNull({zu_Str_locateKeyword(W("abc"), W("")), zu_Str_locateKeyword(W("abc"), nullptr)}));
    const Wide longValue(300, W('v'));
    EXPECT_EQ(str(zu_Str_locateKeyword((W("|") + longValue + W("|")).c_str(), W("|"))), longValue.substr(0, 256));
}

TEST(Str, replaceKeyword)
{
    const std::tuple<WideLiteral, int32_t, WideLiteral> rows[] = {
        {W("size %DN%, %DN%"), 31, W("size 150, %DN%")},
        {W("%dn% %DN"), 31, W("%dn% %DN")},
        {W("%DN% and more"), 7, W("150 and")},
        {W("%DN%"), -1, W("")},
    };
    for (const auto& [rowText, maximum, rowResult] : rows) {
        WideBuffer<32> text{rowText};
        EXPECT_EQ(zu_Str_replaceKeyword(text, W("DN"), W("%"), W("150"), maximum), static_cast<zu_wchar*>(text));
        EXPECT_EQ(text.str(), rowResult);
    }

    WideBuffer<32> text{W("a <<n>> z")};
    EXPECT_TRUE(allNull({zu_Str_replaceKeyword(nullptr, W("n"), W("%"), W("v"), 9),
                         zu_Str_replaceKeyword(text, nullptr, W("%"), W("v"), 9),
                         zu_Str_replaceKeyword(text, W("n"), nullptr, W("v"), 9),
                         zu_Str_replaceKeyword(text, W("n"), W("%"), nullptr, 2)}));
    EXPECT_EQ(text.str(), W("a <<n>> z"));

    zu_wchar* made = nullptr;
    const Wide value(100, W('v'));
    const Wide longText = W("start ||") + Wide(50, W('n')) + W("|| end");
    const Wide expected = W("start ") + value + W(" end");
    const Wide name(50, W('n'));
    sweepAllocations(
        [&] { made = zu_Str_replaceKeywordDynamic(longText.c_str(), name.c_str(), W("||"), value.c_str()); },
        [&] { EXPECT_EQ(made, nullptr); });
    EXPECT_EQ(str(made), expected);
    zu_Free(made);
}

TEST(Str, wrapText)
{
    const std::tuple<WideLiteral, uint32_t, std::vector<Wide>> rows[] = {
        {W("aaa bbb ccc"), 5, {W("aaa"), W("bbb"), W(" ccc")}}, // dropped only while more than a line is left
        {W("    "), 2, {W("  ")}},
        {W(""), 0, {W("")}},
    };
    for (const auto& [text, width, lines] : rows)
        EXPECT_EQ(takeStrings(zu_Str_wrapText(text, width)), lines) << PrintToString(str(text)) << width;
    EXPECT_EQ(zu_Str_wrapText(nullptr, 5), nullptr);
    EXPECT_EQ(zu_Str_findClosestWordBoundary(W("aaa bbb"), 4), 1);
    EXPECT_EQ(zu_Str_findClosestWordBoundary(W(" abc"), 4), 4);
    EXPECT_EQ(zu_Str_findClosestWordBoundary(nullptr, 3), 0);
}

TEST(Str, wrappingLosesNothingButSpaces)
{
    std::mt19937 random(13);
    for (int round = 0; round < 3'000; ++round) {
        Wide text(random() % 60, W(' '));
        for (zu_wchar& unit : text)
            unit = W("ab c\t")[random() % 5];
        const auto width = static_cast<uint32_t>(1 + random() % 9);
        const std::vector<Wide> lines = takeStrings(zu_Str_wrapText(text.c_str(), width));
        Wide joined;
        for (const Wide& line : lines) {
            ASSERT_LE(line.size(), width) << PrintToString(text);
            joined += line;
        }
        ASSERT_EQ(str(zu_Str_strip(joined.data())), str(zu_Str_strip(text.data())));
    }
}

} // namespace
