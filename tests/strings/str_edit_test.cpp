#include "support/memory.h"
#include "support/wide.h"
#include "zu_Memory.h"
#include "zu_Str.h"

namespace {

using namespace zutest;

constexpr WideLiteral letters = W("abcde");

TEST(Str, blanksAreWhiteSpaceOfAllKinds)
{
    const struct
    {
        const char* what;
        WideLiteral text, left, right, both;
    } rows[] = {
        {"none", W("a b"), W("a b"), W("a b"), W("a b")},
        {"spaces", W("  a "), W("a "), W("  a"), W("a")},
        {"controls", W("\t\r\n\v\fa\n"), W("a\n"), W("\t\r\n\v\fa"), W("a")},
        {"Unicode", W("\u00a0\u3000a\u2003"), W("a\u2003"), W("\u00a0\u3000a"), W("a")},
        {"blanks only", W(" \t "), W(""), W(""), W("")},
        {"empty", W(""), W(""), W(""), W("")},
    };
    for (const auto& row : rows) {
        WideBuffer<10> left{row.text};
        zu_Str_rlb(left);
        EXPECT_EQ(left.str(), row.left) << row.what;
        WideBuffer<10> right{row.text};
        zu_Str_rtb(right);
        EXPECT_EQ(right.str(), row.right) << row.what;
        WideBuffer<10> both{row.text};
        zu_Str_delBlks(both);
        EXPECT_EQ(both.str(), row.both) << row.what;
    }
    zu_Str_rlb(nullptr);
    zu_Str_rtb(nullptr);
    zu_Str_delBlks(nullptr);
}

TEST(Str, justification)
{
    const struct
    {
        WideLiteral text;
        int32_t width;
        WideLiteral left, right, centre;
    } rows[] = {
        {W("ab"), 5, W("ab   "), W("   ab"), W(" ab  ")},
        {W("ab"), 4, W("ab  "), W("  ab"), W(" ab ")},
        {W("ab"), 3, W("ab "), W(" ab"), W("ab ")},
        {W("abc"), 9, W("abc      "), W("      abc"), W("   abc   ")},
        {W("ab"), 2, W("ab"), W("ab"), W("ab")},
        {W("abcdef"), 3, W("abc"), W("abc"), W("abc")},
        {W(""), 2, W("  "), W("  "), W("  ")},
        {W("ab"), 0, W(""), W(""), W("")},
        {W("ab"), -2, W(""), W(""), W("")},
        {W("ab"), INT32_MIN, W(""), W(""), W("")},
    };
    zu_wchar* (*const operations[])(zu_wchar*, int32_t) = {zu_Str_lj, zu_Str_rj, zu_Str_cj};
    for (const auto& row : rows) {
        const WideLiteral expected[] = {row.left, row.right, row.centre};
        for (int which = 0; which < 3; ++which) {
            WideBuffer<10> text{row.text};
            EXPECT_EQ(operations[which](text, row.width), static_cast<zu_wchar*>(text));
            EXPECT_EQ(text.str(), expected[which]) << which << " to " << row.width;
            EXPECT_EQ(operations[which](nullptr, row.width), nullptr);
        }
    }

    WideBuffer<6> text{W("ab")};
    zu_Str_pad(text, 1);
    EXPECT_EQ(text.str(), W("ab")) << "never shortens";
    zu_Str_pad(text, 5);
    EXPECT_EQ(text.str(), W("ab   "));
    zu_Str_pad(nullptr, 5);
}

TEST(Str, substrIsOneBased)
{
    const struct
    {
        int32_t start, count;
        WideLiteral part;
    } rows[] = {
        {2, 3, W("bcd")},       {1, 5, W("abcde")},    {0, 2, W("ab")}, {-7, 1, W("a")}, {4, 9, W("de")},
        {5, 1, W("e")},         {6, 1, W("")},         {900, 1, W("")}, {1, 0, W("")},   {2, -1, W("")},
        {5, INT32_MAX, W("e")}, {INT32_MAX, 2, W("")}, {1, 1, W("a")},
    };
    for (const auto& row : rows) {
        WideBuffer<8> part{W("#######")};
        zu_Str_substr(part, letters, row.start, row.count);
        EXPECT_EQ(part.str(), row.part) << row.start << ", " << row.count;
    }
    WideBuffer<8> self{letters};
    zu_Str_substr(self, self, 3, 2);
    EXPECT_EQ(self.str(), W("cd"));
    zu_Str_substr(self, nullptr, 1, 2);
    EXPECT_EQ(self.str(), W(""));
    zu_Str_substr(nullptr, letters, 1, 2);
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
    EXPECT_EQ(zu_Str_cpy(nullptr, W("a")), nullptr);
    EXPECT_EQ(zu_Str_cat(nullptr, W("a")), nullptr);
}

TEST(Str, ncpyAnswersOneForExactlyCount)
{
    const struct
    {
        WideLiteral source;
        int32_t count, result;
        WideLiteral copy;
    } rows[] = {
        {W("abcdef"), 3, 1, W("abc")}, {W("abc"), 3, 1, W("abc")}, {W("ab"), 3, 0, W("ab")}, {W("ab"), 0, 1, W("")},
        {W("ab"), -1, 0, W("")},       {W(""), 1, 0, W("")},       {nullptr, 3, 0, W("")},
    };
    for (const auto& row : rows) {
        WideBuffer<4> copy{W("###")}; // three units and their terminator: count + 1 are written
        EXPECT_EQ(zu_Str_ncpy(copy, row.source, row.count), row.result) << row.count;
        EXPECT_EQ(copy.str(), row.copy) << row.count;
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
        zu_wchar* copy = nullptr;
        sweepAllocations([&] { copy = duplicate(W("a\u0416")); }, [&] { EXPECT_EQ(copy, nullptr); });
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
    zu_Str_toUpper(text, nullptr);
    EXPECT_EQ(text.str(), W(""));
    EXPECT_EQ(zu_Str_toLower(nullptr, W("a")), nullptr);
}

TEST(Str, stripping)
{
    const struct
    {
        WideLiteral text, set;
        WideLiteral leading, everywhere;
    } rows[] = {
        {W("--a-b"), W("-"), W("a-b"), W("ab")}, {W("-+a+"), W("+-"), W("a+"), W("a")},
        {W("a--"), W("-"), W("a--"), W("a")},    {W("---"), W("-"), W(""), W("")},
        {W("-a"), W(""), W("-a"), W("-a")},      {W("-a"), nullptr, W("-a"), W("-a")},
    };
    for (const auto& row : rows) {
        WideBuffer<8> leading{row.text};
        EXPECT_EQ(zu_Str_stripChars(leading, row.set, -1), static_cast<zu_wchar*>(leading));
        EXPECT_EQ(leading.str(), row.leading);
        WideBuffer<8> everywhere{row.text};
        zu_Str_stripChars(everywhere, row.set, 0);
        EXPECT_EQ(everywhere.str(), row.everywhere);
    }
    WideBuffer<8> text{W(" a\tb a ")};
    zu_Str_strip(text);
    EXPECT_EQ(text.str(), W("a\tba")) << "a tab is no space";
    zu_Str_stripChar(text, W('a'));
    EXPECT_EQ(text.str(), W("\tb"));
    EXPECT_EQ(zu_Str_stripChar(text, 0), static_cast<zu_wchar*>(text));
    EXPECT_EQ(text.str(), W("\tb"));
    EXPECT_EQ(zu_Str_strip(nullptr), nullptr);
    EXPECT_EQ(zu_Str_stripChars(nullptr, W("a"), 0), nullptr);
}

} // namespace
