#include "support/wide.h"
#include "zu_Memory.h"
#include "zu_Str.h"

namespace {

using namespace zutest;

constexpr WideLiteral letters = W("abcde");

TEST(Str, blanksAreWhiteSpaceOfAllKinds)
{
    void (*const operations[])(zu_wchar*) = {zu_Str_rlb, zu_Str_rtb, zu_Str_delBlks};
    const WideLiteral expected[] = {W("a b \u2003"), W("\u00a0\u3000 a b"), W("a b")};
    for (int which = 0; which < 3; ++which) {
        WideBuffer<10> text{W("\u00a0\u3000 a b \u2003")};
        operations[which](text);
        EXPECT_EQ(text.str(), expected[which]);
        text = W(" \t ");
        operations[which](text);
        EXPECT_EQ(text.str(), W(""));
        operations[which](nullptr);
    }
}

TEST(Str, justification)
{
    const std::tuple<WideLiteral, int32_t, WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {W("ab"), 5, W("ab   "), W("   ab"), W(" ab  ")},
        {W("ab"), 3, W("ab "), W(" ab"), W("ab ")},
        {W("abcdef"), 3, W("abc"), W("abc"), W("abc")},
        {W("ab"), INT32_MIN, W(""), W(""), W("")},
    };
    zu_wchar* (*const operations[])(zu_wchar*, int32_t) = {zu_Str_lj, zu_Str_rj, zu_Str_cj};
    for (const auto& [rowText, width, left, right, centre] : rows) {
        const WideLiteral expected[] = {left, right, centre};
        for (int which = 0; which < 3; ++which) {
            WideBuffer<10> text{rowText};
            EXPECT_EQ(operations[which](text, width), static_cast<zu_wchar*>(text));
            EXPECT_EQ(text.str(), expected[which]) << which << " to " << width;
            EXPECT_EQ(operations[which](nullptr, width), nullptr);
        }
    }

    WideBuffer<6> text{W("ab")};
    zu_Str_pad(text, 1);
    EXPECT_EQ(text.str(), W("ab")) << "never shortens";
    zu_Str_pad(text, 5);
    EXPECT_EQ(text.str(), W("ab   "));
}

TEST(Str, substrIsOneBased)
{
    const std::tuple<int32_t, int32_t, WideLiteral> rows[] = {
        {2, 3, W("bcd")}, {-7, 1, W("a")}, {4, 9, W("de")},       {5, INT32_MAX, W("e")},
        {6, 1, W("")},    {1, 0, W("")},   {INT32_MAX, 2, W("")}, {2, -1, W("")},
    };
    for (const auto& [start, count, rowPart] : rows) {
        WideBuffer<8> part{W("#######")};
        zu_Str_substr(part, letters, start, count);
        EXPECT_EQ(part.str(), rowPart) << start << ", " << count;
    }
    WideBuffer<8> self{letters};
    zu_Str_substr(self, self, 3, 2);
    EXPECT_EQ(self.str(), W("cd"));
    zu_Str_substr(self, nullptr, 1, 2);
    EXPECT_EQ(self.str(), W(""));
}

TEST(Str, cpyAndCatWriteASecondTerminator)
{
    WideBuffer<9> text{W("#######")};
    EXPECT_EQ(zu_Str_cpy(text, W("abc")), static_cast<zu_wchar*>(text));
    EXPECT_EQ(Wide(text, 7), Wide(W("abc\0\0##"), 7));
    zu_Str_cpy(text, W("#######"));
    zu_Str_cpy(text, W("a"));
    EXPECT_EQ(zu_Str_cat(text, W("bc")), static_cast<zu_wchar*>(text));
    EXPECT_EQ(Wide(text, 7), Wide(W("abc\0\0##"), 7));
    EXPECT_EQ(zu_Str_cat(text, nullptr), nullptr);
    EXPECT_EQ(text.str(), W("abc"));
    zu_Str_cpy(text, W("ab"));
    zu_Str_cat(text, text);
    EXPECT_EQ(text.str(), W("abab"));
    EXPECT_EQ(zu_Str_cpy(text, nullptr), nullptr);
    EXPECT_EQ(text.str(), W(""));
    EXPECT_TRUE(allNull({zu_Str_cat(nullptr, W("a")), zu_Str_cpy(nullptr, W("a")), zu_Str_toLower(nullptr, W("a")),
                         zu_Str_strip(nullptr), zu_Str_stripChars(nullptr, W("a"), 0)}));
}

TEST(Str, ncpyAnswersOneForExactlyCount)
{
    const std::tuple<WideLiteral, int32_t, int32_t, WideLiteral> rows[] = {
        {W("abcdef"), 3, 1, W("abc")}, {W("abc"), 3, 1, W("abc")}, {W("ab"), 3, 0, W("ab")},
        {W("ab"), 0, 1, W("")},        {W("ab"), -1, 0, W("")},    {nullptr, 3, 0, W("")},
    };
    for (const auto& [source, rowCount, result, rowCopy] : rows) {
        WideBuffer<4> copy{W("###")}; // three units and their terminator: count + 1 are written
        EXPECT_EQ(zu_Str_ncpy(copy, source, rowCount), result) << rowCount;
        EXPECT_EQ(copy.str(), rowCopy) << rowCount;
    }
    const std::vector<zu_wchar> unterminated = {W('x'), W('y')};
    WideBuffer<3> copy;
    EXPECT_EQ(zu_Str_ncpy(copy, unterminated.data(), 2), 1);
    EXPECT_EQ(copy.str(), W("xy"));
    EXPECT_EQ(zu_Str_ncpy(nullptr, W("a"), 1), 0);
}

TEST(Str, duplicates)
{
    for (const auto& duplicate : {zu_Str_dup, zu_Str_dupW}) {
        zu_wchar* const copy = duplicate(W("a\u0416"));
        EXPECT_EQ(str(copy), W("a\u0416"));
        zu_Free(copy);
        EXPECT_EQ(duplicate(nullptr), nullptr);
    }
}

TEST(Str, onlyAsciiLettersChangeCase)
{
    WideBuffer<12> text{W("@AZ[`az{\u00c4\u00e4")};
    EXPECT_EQ(zu_Str_toLower(text, text), static_cast<zu_wchar*>(text));
    EXPECT_EQ(text.str(), W("@az[`az{\u00c4\u00e4"));
    zu_Str_toUpper(text, W("@AZ[`az{\u00c4\u00e4"));
    EXPECT_EQ(text.str(), W("@AZ[`AZ{\u00c4\u00e4"));
}

TEST(Str, stripping)
{
    const std::tuple<WideLiteral, WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {W("-+a+"), W("+-"), W("a+"), W("a")},
        {W("---"), W("-"), W(""), W("")},
        {W("-a"), nullptr, W("-a"), W("-a")},
    };
    for (const auto& [rowText, set, rowLeading, rowEverywhere] : rows) {
        WideBuffer<8> leading{rowText};
        EXPECT_EQ(zu_Str_stripChars(leading, set, -1), static_cast<zu_wchar*>(leading));
        EXPECT_EQ(leading.str(), rowLeading);
        WideBuffer<8> everywhere{rowText};
        zu_Str_stripChars(everywhere, set, 0);
        EXPECT_EQ(everywhere.str(), rowEverywhere);
    }
    WideBuffer<8> text{W(" a\tb a ")};
    zu_Str_strip(text);
    EXPECT_EQ(text.str(), W("a\tba")) << "a tab is no space";
    zu_Str_stripChar(text, W('a'));
    EXPECT_EQ(text.str(), W("\tb"));
}

} // namespace
