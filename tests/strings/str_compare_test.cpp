#include "support/wide.h"
#include "zu_Str.h"

#include <random>

namespace {

using namespace zutest;
using testing::PrintToString;

// A text of up to `longest` units over a small alphabet, so that coincidences are frequent.
Wide generated(std::mt19937& random, WideView alphabet, std::size_t longest)
{
    Wide text(random() % (longest + 1), W(' '));
    for (zu_wchar& unit : text)
        unit = alphabet[random() % alphabet.size()];
    return text;
}

TEST(Str, comparisonIgnoringCase)
{
    const std::tuple<WideLiteral, WideLiteral, int32_t> rows[] = {
        {W("abc"), W("ABC"), 0},       {W("ab"), W("ABC"), -1},
        {W("abd"), W("ABC"), 1},       {W("_"), W("a"), 1}, // the upper-cased units are compared
        {W("\u00e4"), W("\u00c4"), 1}, {W("\uffff"), W("a"), 1},
        {W(""), W("a"), -1},           {nullptr, W("a"), 1}, // null sorts after every text
        {nullptr, W(""), 0},           {nullptr, nullptr, 0},
    };
    for (const auto& [rowA, rowB, order] : rows) {
        EXPECT_EQ(zu_Str_cmpi(rowA, rowB), order) << PrintToString(str(rowA)) << PrintToString(str(rowB));
        EXPECT_EQ(zu_Str_cmpi(rowB, rowA), -order) << PrintToString(str(rowB)) << PrintToString(str(rowA));
        EXPECT_EQ(zu_Str_ncmpi(rowA, rowB, UINT32_MAX), order) << PrintToString(str(rowA)) << PrintToString(str(rowB));
    }
    EXPECT_EQ(zu_Str_ncmpi(W("abX"), W("ABY"), 2), 0);
    EXPECT_EQ(zu_Str_ncmpi(W("abX"), W("ABY"), 3), -1);
    EXPECT_EQ(zu_Str_ncmpi(W("a"), W("b"), 0), 0);
    EXPECT_EQ(zu_Str_ncmpi(nullptr, W("b"), 0), 0);
    const std::vector<zu_wchar> unterminated = {W('a'), W('b')};
    EXPECT_EQ(zu_Str_ncmpi(unterminated.data(), W("ABC"), 2), 0);
}

TEST(Str, index)
{
    const std::tuple<WideLiteral, WideLiteral, int32_t, int32_t> rows[] = {
        {W("Hello"), W("LL"), -1, 2}, {W("aXab"), W("ab"), 2, 2},  {W("aab"), W("ab"), 1, 1},
        {W("AbaB"), W("ab"), -1, 0},  {W("ab"), W("abc"), -1, -1}, {W("ab"), W(""), 0, 0},
        {W(""), W(""), 0, 0},         {W(""), W("a"), -1, -1},     {W("\u00c4"), W("\u00e4"), -1, -1},
        {nullptr, W("a"), -1, -1},    {W("a"), nullptr, -1, -1},
    };
    for (const auto& [text, part, exact, folded] : rows) {
        EXPECT_EQ(zu_Str_index(text, part, 0), exact) << PrintToString(str(text));
        EXPECT_EQ(zu_Str_index(text, part, 5), folded) << PrintToString(str(text));
    }
}

TEST(Str, wildcardRows)
{
    const std::tuple<WideLiteral, WideLiteral, int32_t, int32_t> rows[] = {
        {W("aXcYc"), W("a*c"), 0, 0}, {W("ab"), W("ab??"), 1, 1}, {W("abc"), W("a*?c"), 0, 0},
        {W("ABC"), W("a*c"), 0, 1},   {W("abc"), W("A?c"), 0, 1}, {W(""), W("*"), 1, 1},
        {nullptr, W("*"), 0, 0},      {W("a"), nullptr, 0, 0},    {W("xay"), W("*A*"), 0, 1},
    };
    for (const auto& [text, pattern, exact, folded] : rows) {
        EXPECT_EQ(zu_Str_matchWildcard(text, pattern), exact)
            << PrintToString(str(text)) << PrintToString(str(pattern));
        EXPECT_EQ(zu_Str_matchWildcardi(text, pattern), folded)
            << PrintToString(str(text)) << PrintToString(str(pattern));
    }
}

// The rules of wildcards, read as a definition.
bool matchesByDefinition(WideView text, WideView pattern)
{
    if (pattern.empty())
        return text.empty();
    if (pattern[0] == W('?'))
        return matchesByDefinition(text.substr(std::min<std::size_t>(1, text.size())), pattern.substr(1));
    if (pattern[0] == W('*')) {
        if (pattern.size() == 1)
            return true;
        if (pattern[1] == W('*'))
            return matchesByDefinition(text, pattern.substr(1));
        const std::size_t next = text.find(pattern[1]);
        return next != WideView::npos && matchesByDefinition(text.substr(next + 1), pattern.substr(2));
    }
    return !text.empty() && text[0] == pattern[0] && matchesByDefinition(text.substr(1), pattern.substr(1));
}

TEST(Str, wildcardsFollowTheirDefinition)
{
    std::mt19937 random(7);
    int matched = 0;
    for (int round = 0; round < 50'000; ++round) {
        const Wide text = generated(random, W("ab?"), 6);
        const Wide pattern = generated(random, W("ab?**"), 6);
        const bool expected = matchesByDefinition(text, pattern);
        matched += expected;
        ASSERT_EQ(zu_Str_matchWildcard(text.c_str(), pattern.c_str()), expected)
            << PrintToString(text) << " " << PrintToString(pattern);
    }
    EXPECT_GT(matched, 2'000);
}

TEST(Str, yesAndNo)
{
    const std::tuple<WideLiteral, int32_t, int32_t> rows[] = {
        {W("1"), 1, 0},     {W("true"), 1, 0}, {W("yes"), 1, 0}, {W("On"), 1, 0}, {W("0"), 0, 1},
        {W("False"), 0, 1}, {W("no"), 0, 1},   {W("OFF"), 0, 1}, {W(""), 0, 0},   {W("maybe"), 0, 0},
        {W("ye"), 0, 0},    {W("yes "), 0, 0}, {nullptr, 0, 0},
    };
    for (const auto& [text, yes, no] : rows) {
        EXPECT_EQ(zu_Str_isAffirmative(text), yes) << PrintToString(str(text));
        EXPECT_EQ(zu_Str_isNegative(text), no) << PrintToString(str(text));
    }
}

TEST(Str, versions)
{
    const std::tuple<WideLiteral, WideLiteral, int32_t, int32_t> rows[] = {
        {W("08.11.05"), W("8.11.5"), 0, 0}, {W("1.10"), W("1.9"), 1, -1},
        {W("2"), W("10"), -1, 1},           {W("1.x"), W("1.0"), 0, 0}, // no number counts as 0
        {W("1.-1"), W("1"), -1, 0},         {W(" 1 . 2 "), W("1.2"), 0, 0},
        {W("Beta"), W("bETA"), 0, 0},       {W(""), W("1"), 0, 1},
    };
    for (const auto& [a, b, order, reversed] : rows) {
        EXPECT_EQ(zu_Str_compareVersion(a, b), order) << PrintToString(str(a)) << " " << PrintToString(str(b));
        EXPECT_EQ(zu_Str_compareVersion(b, a), reversed) << PrintToString(str(b)) << " " << PrintToString(str(a));
    }
    EXPECT_EQ(zu_Str_compareVersion(W("nano.2"), W("nano.1")), 1) << "what is not a number does not decide";
}

} // namespace
