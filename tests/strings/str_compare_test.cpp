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
        {W("_"), W("a"), 1}, // the upper-cased units are compared
        {W("\u00e4"), W("\u00c4"), 1}, {W("\uffff"), W("a"), 1},
        {nullptr, W("a"), 1}, // null sorts after every text
        {nullptr, W(""), 0},
    };
    for (const auto& [rowA, rowB, order] : rows) {
        EXPECT_EQ(zu_Str_cmpi(rowA, rowB), order) << PrintToString(str(rowA)) << PrintToString(str(rowB));
        EXPECT_EQ(zu_Str_cmpi(rowB, rowA), -order) << PrintToString(str(rowB)) << PrintToString(str(rowA));
        EXPECT_EQ(zu_Str_ncmpi(rowA, rowB, UINT32_MAX), order) << PrintToString(str(rowA)) << PrintToString(str(rowB));
    }
    EXPECT_EQ(zu_Str_ncmpi(W("abX"), W("ABY"), 3), -1);
    EXPECT_EQ(zu_Str_ncmpi(nullptr, W("b"), 0), 0);
    const std::vector<zu_wchar> unterminated = {W('a'), W('b')};
    EXPECT_EQ(zu_Str_ncmpi(unterminated.data(), W("ABC"), 2), 0);
}

TEST(Str, index)
{
    const std::tuple<WideLiteral, WideLiteral, int32_t, int32_t> rows[] = {
        {W("Hello"), W("LL"), -1, 2}, {W("aab"), W("ab"), 1, 1}, {W("ab"), W("abc"), -1, -1},
        {W("ab"), W(""), 0, 0},       {W(""), W(""), 0, 0},      {W("\u00c4"), W("\u00e4"), -1, -1},
        {nullptr, W("a"), -1, -1},    {W("a"), nullptr, -1, -1},
    };
    for (const auto& [text, part, exact, folded] : rows) {
        EXPECT_EQ(zu_Str_index(text, part, 0), exact) << PrintToString(str(text));
        EXPECT_EQ(zu_Str_index(text, part, 5), folded) << PrintToString(str(text));
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
    EXPECT_EQ(zu_Str_matchWildcard(W("xay"), W("*A*")), 0);
    EXPECT_EQ(zu_Str_matchWildcardi(W("xay"), W("*A*")), 1);
    EXPECT_TRUE(allAre(0, {zu_Str_matchWildcard(nullptr, W("*")), zu_Str_matchWildcardi(W("a"), nullptr)}));
}

TEST(Str, yesAndNo)
{
    for (const WideLiteral yes : {W("1"), W("true"), W("yes"), W("On")})
        EXPECT_TRUE(zu_Str_isAffirmative(yes) == 1 && zu_Str_isNegative(yes) == 0) << PrintToString(str(yes));
    for (const WideLiteral no : {W("0"), W("False"), W("no"), W("OFF")})
        EXPECT_TRUE(zu_Str_isAffirmative(no) == 0 && zu_Str_isNegative(no) == 1) << PrintToString(str(no));
    for (const WideLiteral neither : {W(""), W("ye"), W("yes "), WideLiteral{nullptr}})
        EXPECT_EQ(zu_Str_isAffirmative(neither) + zu_Str_isNegative(neither), 0) << PrintToString(str(neither));
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
