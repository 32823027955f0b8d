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

TEST(Str, spaceDelimitedWords)
{
    const std::tuple<const char*, WideLiteral, std::vector<Step>> rows[] = {
        {"words", W("  ab c"), {{W("ab"), 4}, {W("c"), 6}, {W(""), 6}}},
        {"only 0x20 separates", W("a\tb  "), {{W("a\tb"), 3}, {W(""), 5}, {W(""), 5}}},
    };
    for (const auto& [what, list, steps] : rows) {
        int32_t position = 0;
        for (const Step& step : steps) {
            WideBuffer<8> word{W("#######")};
            zu_Str_nextSDLWord(word, list, &position);
            EXPECT_EQ(word.str(), step.word) << what;
            EXPECT_EQ(position, step.position) << what;
        }
    }
}

TEST(Str, semicolonDelimitedWords)
{
    const std::tuple<const char*, WideLiteral, std::vector<Step>> rows[] = {
        {"an empty item inside", W("a;;b"), {{W("a"), 1}, {W(""), 2}, {W("b"), 4}, {W(""), 4}, {W(""), 4}}},
        {"a leading one is lost", W(";a"), {{W("a"), 2}, {W(""), 2}}},
        {"spaces stay", W(" a ; b"), {{W(" a "), 3}, {W(" b"), 6}}},
    };
    for (const auto& [what, list, steps] : rows) {
        int32_t position = 0;
        for (const Step& step : steps) {
            WideBuffer<8> word{W("#######")};
            EXPECT_EQ(zu_Str_nextCDLWord(word, list, &position), static_cast<zu_wchar*>(word));
            EXPECT_EQ(word.str(), step.word) << what;
            EXPECT_EQ(position, step.position) << what;
        }
    }
}

TEST(Str, aPositionOutsideTheListStays)
{
    for (int32_t outside : {3, 1000, -1, INT32_MIN}) {
        for (WideLiteral list : {W("ab"), WideLiteral{nullptr}}) {
            WideBuffer<4> word{W("###")};
            int32_t position = outside;
            zu_Str_nextSDLWord(word, list, &position);
            EXPECT_EQ(word.str(), W(""));
            word = W("###");
            zu_Str_nextCDLWord(word, list, &position);
            EXPECT_EQ(word.str(), W(""));
            EXPECT_EQ(position, outside);
        }
    }
    WideBuffer<4> word{W("###")};
    zu_Str_nextCDLWord(word, W("ab"), nullptr);
    EXPECT_EQ(word.str(), W(""));
    int32_t position = 0;
    EXPECT_EQ(zu_Str_nextCDLWord(nullptr, W("ab"), &position), nullptr);
    zu_Str_nextSDLWord(nullptr, W("ab"), &position);
    EXPECT_EQ(position, 0);
}

TEST(Str, tokens)
{
    const struct
    {
        WideLiteral text, delimiters;
        int32_t index;
        WideLiteral fromLeft;
        int32_t leftPosition;
        WideLiteral fromRight;
        int32_t rightPosition;
    } rows[] = {
        {W("a,,b"), W(","), 1, W("b"), 3, W("a"), 0},
        {W("ab,c,def"), W(","), 0, W("ab"), 0, W("def"), 5},
        {W(",;ab;,"), W(",;"), 0, W("ab"), 2, W("ab"), 2},
        {W("ab"), W(","), 1, W("<null>"), -1, W("<null>"), -1},
        {W("ab"), W(","), -1, W("<null>"), -1, W("<null>"), -1},
        {nullptr, W(","), 0, W("<null>"), -1, W("<null>"), -1},
        {W("a,b"), nullptr, 0, W("<null>"), -1, W("a,b"), 0}, // only the left form refuses null delimiters
    };
    for (const auto& row : rows) {
        int32_t position = 99;
        EXPECT_EQ(str(zu_Str_getNthToken(row.text, row.delimiters, row.index, &position)), row.fromLeft);
        EXPECT_EQ(position, row.leftPosition) << PrintToString(str(row.text));
        EXPECT_EQ(str(zu_Str_getRightNthToken(row.text, row.delimiters, row.index, &position)), row.fromRight);
        EXPECT_EQ(position, row.rightPosition) << PrintToString(str(row.text));
    }
    const Wide longest(512, W('x'));
    EXPECT_EQ(str(zu_Str_getNthToken(longest.c_str(), W(","), 0, nullptr)), longest);
    EXPECT_EQ(str(zu_Str_getRightNthToken(longest.c_str(), W(","), 0, nullptr)), longest);
    const Wide tooLong = W("a,") + longest;
    EXPECT_EQ(zu_Str_getNthToken(tooLong.c_str(), W(","), 0, nullptr), nullptr);
    EXPECT_EQ(zu_Str_getRightNthToken(tooLong.c_str(), W(","), 1, nullptr), nullptr);
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
        {W("a-b-c"), W("-"), W("+"), W("a+b+c")}, {W("aaaaa"), W("aa"), W("b"), W("bba")},
        {W("ab"), W("ab"), W(""), W("")},         {W("ab"), W("b"), nullptr, W("a")},
        {W("ab"), W(""), W("x"), W("ab")},        {W("ab"), nullptr, W("x"), W("ab")},
        {W("a"), W("a"), W("aa"), W("aa")},       {nullptr, W("a"), W("b"), W("")},
    };
    for (const auto& [text, find, replacement, result] : rows)
        EXPECT_EQ(str(zu_Str_replaceChar(text, find, replacement)), result) << PrintToString(str(text));
    EXPECT_EQ(str(zu_Str_replaceChar(zu_Str_replaceChar(W("a.b"), W("."), W("--")), W("-"), W("+"))), W("a++b"));
    const Wide dots(400, W('.'));
    EXPECT_EQ(str(zu_Str_replaceChar(dots.c_str(), W("."), W("abc"))).size(), 511u);
    const Wide longText(600, W('x'));
    EXPECT_EQ(str(zu_Str_replaceChar(longText.c_str(), W("."), W("-"))), longText.substr(0, 511));
}

TEST(Str, locateKeyword)
{
    EXPECT_EQ(str(zu_Str_locateKeyword(W("x %a% y"), W("%"))), W("a"));
    EXPECT_EQ(str(zu_Str_locateKeyword(W("#K#one#K#two#K#"), W("#K#"))), W("one"));
    EXPECT_EQ(str(zu_Str_locateKeyword(W("aaaa"), W("aa"))), W("")) << "the second is looked for behind the first";
    for (WideLiteral text : {W("aaa"), W("xaay"), W("AAAA"), W(""), WideLiteral{nullptr}})
        EXPECT_EQ(zu_Str_locateKeyword(text, W("aa")), nullptr) << PrintToString(str(text));
    EXPECT_EQ(zu_Str_locateKeyword(W("abc"), W("")), nullptr);
    EXPECT_EQ(zu_Str_locateKeyword(W("abc"), nullptr), nullptr);
    const Wide longValue(300, W('v'));
    EXPECT_EQ(str(zu_Str_locateKeyword((W("|") + longValue + W("|")).c_str(), W("|"))), longValue.substr(0, 256));
}

TEST(Str, replaceKeyword)
{
    const std::tuple<WideLiteral, int32_t, WideLiteral> rows[] = {
        {W("size %DN%, %DN%"), 31, W("size 150, %DN%")},
        {W("%dn% %DN"), 31, W("%dn% %DN")},
        {W("%DN%"), 2, W("15")},
        {W("%DN% and more"), 7, W("150 and")},
        {W("%DN%"), -1, W("")},
    };
    for (const auto& [rowText, maximum, rowResult] : rows) {
        WideBuffer<32> text{rowText};
        EXPECT_EQ(zu_Str_replaceKeyword(text, W("DN"), W("%"), W("150"), maximum), static_cast<zu_wchar*>(text));
        EXPECT_EQ(text.str(), rowResult);
    }

    WideBuffer<32> text{W("a <<n>> z")};
    EXPECT_EQ(zu_Str_replaceKeyword(nullptr, W("n"), W("%"), W("v"), 9), nullptr);
    EXPECT_EQ(zu_Str_replaceKeyword(text, nullptr, W("%"), W("v"), 9), nullptr);
    EXPECT_EQ(zu_Str_replaceKeyword(text, W("n"), nullptr, W("v"), 9), nullptr);
    EXPECT_EQ(zu_Str_replaceKeyword(text, W("n"), W("%"), nullptr, 2), nullptr);
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
    EXPECT_EQ(zu_Str_replaceKeywordDynamic(longText.c_str(), W("n"), W("|"), nullptr), nullptr);

    WideBuffer<120> inPlace{longText};
    zu_wchar* result = nullptr;
    sweepAllocations([&] { result = zu_Str_replaceKeyword(inPlace, name.c_str(), W("||"), value.c_str(), 119); },
                     [&] {
                         EXPECT_EQ(result, nullptr);
                         EXPECT_EQ(inPlace.str(), longText);
                     });
    EXPECT_EQ(inPlace.str(), expected);
}

TEST(Str, wrapText)
{
    const std::tuple<WideLiteral, uint32_t, std::vector<Wide>> rows[] = {
        {W("aaa bbb ccc"), 5, {W("aaa"), W("bbb"), W(" ccc")}}, // dropped only while more than a line is left
        {W("aaa bbb"), 3, {W("aaa"), W("bbb")}},
        {W("a b ccc"), 3, {W("a b"), W("ccc")}},
        {W("abcdefg"), 3, {W("abc"), W("def"), W("g")}},
        {W("    "), 2, {W("  ")}},
        {W("ab"), 0, {W("ab")}},
        {W(""), 0, {W("")}},
    };
    for (const auto& [text, width, lines] : rows)
        EXPECT_EQ(takeStrings(zu_Str_wrapText(text, width)), lines) << PrintToString(str(text)) << width;
    EXPECT_EQ(zu_Str_wrapText(nullptr, 5), nullptr);

    sweepMaking([&] { return zu_Str_wrapText(W("aaa bbb ccc"), 5); }, zu_StrList_destroy);
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

TEST(Str, findClosestWordBoundary)
{
    const std::tuple<WideLiteral, uint32_t, int32_t> rows[] = {
        {W("aaa bbb"), 5, 2}, {W("aaa bbb"), 4, 1}, {W("aaa bbb"), 3, 0}, {W("a b c"), 5, 2}, {W("a b"), 900, 2},
        {W(" abc"), 4, 4},    {W("abc"), 0, 0},     {W(""), 3, 0},        {nullptr, 3, 0},
    };
    for (const auto& [text, width, count] : rows)
        EXPECT_EQ(zu_Str_findClosestWordBoundary(text, width), count) << PrintToString(str(text)) << width;
}

} // namespace
