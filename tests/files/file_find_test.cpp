#include "files_support.h"
#include "zu_Dir.h"
#include "zu_File.h"

namespace {

using namespace zutest;
using Names = std::vector<Wide>;

Names found(const Wide& pattern)
{
    Names names;
    WideBuffer<300> name;
    for (int32_t result = zu_File_findFirst(pattern.c_str(), name); result == 0; result = zu_File_findNext(name))
        names.push_back(name.str());
    EXPECT_EQ(name.str(), W("")) << "nothing is left of a name when there is none";
    return names;
}

TEST(File, enumerationByWildcards)
{
    Sandbox sandbox;
    for (WideLiteral name : {W("b.TXT"), W("A.txt"), W("ab"), W("a.b.c"), W(".dot"), W("Sub\\inner.txt")}) {
        std::filesystem::create_directories(sandbox.native(name).parent_path());
        sandbox.write(name, "");
    }
    const std::tuple<WideLiteral, Names> rows[] = {
        {W("*.*"), {W("."), W(".."), W(".dot"), W("a.b.c"), W("A.txt"), W("ab"), W("b.TXT"), W("Sub")}},
        {W("a*"), {W("a.b.c"), W("A.txt"), W("ab")}},
        {W("AB"), {W("ab")}},
        {W("sub\\*.TXT"), {W("inner.txt")}},
        {W("ab\\*"), {}},
    };
    for (const auto& [pattern, names] : rows)
        EXPECT_EQ(found(sandbox.path(pattern)), names) << testing::PrintToString(Wide(pattern));

    std::filesystem::current_path(sandbox.native(W("Sub")));
    EXPECT_EQ(found(W("i*")), (Names{W("inner.txt")})) << "in the current directory";
    EXPECT_EQ(found(Wide(sandbox.path(), 0, 2) + W("i*")), (Names{W("inner.txt")})) << "of the drive";
}

TEST(File, oneEnumerationAtATime)
{
    Sandbox sandbox;
    sandbox.write(W("a1"), "");
    sandbox.write(W("a2"), "");
    const Wide all = sandbox.path(W("a*"));
    const std::vector<std::function<void()>> enders = {
        [&] { zu_StrList_destroy(zu_Dir_list(all.c_str())); },
        [&] { EXPECT_EQ(zu_File_delete(sandbox.path(W("b*")).c_str(), 0), 0); },
    };
    for (const auto& ends : enders) {
        WideBuffer<300> name;
        ASSERT_EQ(zu_File_findFirst(all.c_str(), name), 0);
        ends();
        EXPECT_NE(zu_File_findNext(name), 0);
    }
    WideBuffer<300> name;
    ASSERT_EQ(zu_File_findFirst(all.c_str(), name), 0);
    EXPECT_EQ(zu_File_deleteSingle(sandbox.path(name.str()).c_str()), 1) << "deleting one file does not end it";
    EXPECT_EQ(zu_File_findNext(name), 0);
    EXPECT_EQ(name.str(), W("a2"));
    EXPECT_NE(zu_File_findNext(name), 0);
}

// What a pattern means, written down as plainly as possible.
bool modelMatches(std::string_view pattern, std::string_view name)
{
    if (pattern.empty())
        return name.empty();
    const bool moreStops = name.find('.', 1) != std::string_view::npos;
    const char next = pattern.size() > 1 ? pattern[1] : '\0';
    switch (pattern[0]) {
    case '*':
        if (modelMatches(pattern.substr(1), name))
            return true;
        return !name.empty() && (next != '.' || name[0] != '.' || moreStops) && modelMatches(pattern, name.substr(1));
    case '?':
        if (name.empty() || name[0] == '.')
            return modelMatches(pattern.substr(1), name);
        return modelMatches(pattern.substr(1), name.substr(1));
    case '.':
        if (name.empty())
            return (next == '*' || next == '?') && modelMatches(pattern.substr(1), name);
        [[fallthrough]];
    default: return !name.empty() && name[0] == pattern[0] && modelMatches(pattern.substr(1), name.substr(1));
    }
}

TEST(File, wildcardsAgreeWithAModel)
{
    if (onWindows)
        GTEST_SKIP() << "there the system matches, short names too";
    Sandbox sandbox;
    const std::string letters = noise(20'000, 5);
    std::size_t at = 0;
    const auto draw = [&](std::string_view from, std::size_t most) {
        std::string text;
        for (std::size_t length = static_cast<unsigned char>(letters[at++]) % most + 1; length > 0; --length)
            text += from[static_cast<unsigned char>(letters[at++]) % from.size()];
        return text;
    };
    for (int count = 0; count < 150; ++count)
        sandbox.write(Wide(W("n")).append(widen(draw("ab.", 6))), "");
    std::vector<std::string> names = entriesOf(sandbox);
    for (int count = 0; count < 600; ++count) {
        // A full stop at the end has a meaning of its own, tested below.
        std::string pattern = draw("ab.*?*?", 6);
        if (pattern.find_first_of("*?") == std::string::npos || pattern.back() == '.' || pattern == "*.*")
            continue;
        Names expected;
        for (const std::string& name : names) {
            if (modelMatches(pattern, name))
                expected.push_back(widen(name));
        }
        Names matched = found(sandbox.path(widen(pattern)));
        std::erase(matched, W("."));
        std::erase(matched, W(".."));
        std::sort(matched.begin(), matched.end());
        EXPECT_EQ(matched, expected) << pattern;
    }
    for (const Wide& name : found(sandbox.path(W("n*."))))
        EXPECT_EQ(name.find(W('.')), Wide::npos) << "no full stop, as the pattern says";
    EXPECT_EQ(found(sandbox.path(Wide(200, W('*')) + W("x"))), Names()) << "many ways to fail, tried once";
}

TEST(File, deleteByPatternAndByList)
{
    Sandbox sandbox;
    for (WideLiteral name : {W("One.tmp"), W("two.TMP"), W("three.txt"), W("x1"), W("x2"), W("x3")})
        sandbox.write(name, "");
    std::filesystem::create_directory(sandbox.native(W("dir.tmp")));
    EXPECT_EQ(zu_File_delete(sandbox.path(W("*.tmp")).c_str(), 0), 2) << "directories stay";
    EXPECT_EQ(zu_File_delete(sandbox.path(W("three.TXT")).c_str(), 0), 1);

    // The list names files in the current directory: the sandbox's own path cannot be written in every text mode.
    std::filesystem::current_path(sandbox.native());
    const std::string cut = std::string(".\\x2").append(520, ' ');
    sandbox.write(W("list"), "\xEF\xBB\xBFx1\r\nnone\n\n" + cut + "\nx3");
    EXPECT_EQ(zu_File_delete(W("list"), 1), 2) << "the last line has no end, and counts";
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"dir.tmp/", "list", "x2"}));
}

TEST(File, directoriesOfManyEntries)
{
    const std::size_t many = onWindows ? 2'000 : 100'000;
    Sandbox sandbox;
    std::filesystem::create_directory(sandbox.native(W("Many")));
    sandbox.write(W("Many\\0"), "");
    const std::filesystem::path first = sandbox.native(W("Many\\0"));
    // Links are made faster than files; a file takes only so many of them.
    for (std::size_t count = 1; count < many; ++count) {
        const std::filesystem::path name = first.parent_path() / std::to_string(count);
        if (count % 50'000 == 0)
            sandbox.write(W("Many\\") + widen(std::to_string(count)), "");
        else
            std::filesystem::create_hard_link(count < 50'000 ? first : first.parent_path() / "50000", name);
    }
    const Wide all = sandbox.path(W("Many\\*"));
    StrList* const list = zu_Dir_list(sandbox.path(W("many\\*")).c_str());
    EXPECT_EQ(zu_StrList_count(list), many + 2);
    zu_StrList_destroy(list);
    EXPECT_EQ(zu_File_delete(all.c_str(), 0), static_cast<int32_t>(many));
    EXPECT_EQ(zu_Dir_delete(sandbox.path(W("many")).c_str()), 0);
}

} // namespace
