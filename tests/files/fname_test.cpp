#include "support/sandbox.h"
#include "zu_Fname.h"

#include <random>
#include <set>

namespace {

using namespace zutest;
using testing::PrintToString;

TEST(Fname, extensions)
{
    const struct
    {
        const char* what;
        WideLiteral name, added, kept, removed, stripped, extension;
    } rows[] = {
        // the name          addExt "dat"        modExt "dat", 0     modExt "", 1    rmvExt          extractExt
        {"dotted directory", W("D:\\a.b\\f"), W("D:\\a.b\\f.dat"), W("D:\\a.b\\f.dat"), W("D:\\a.b\\f"),
         W("D:\\a.b\\f"), W("")},
        {"slash is ordinary", W("a.b/f"), W("a.dat"), W("a.b/f"), W("a"), W("a"), W("b/f")},
        {"colon ends rmvExt only", W("a.b:f"), W("a.dat"), W("a.b:f"), W("a"), W("a.b:f"), W("b:f")},
        {"dot at the end", W("a."), W("a.dat"), W("a."), W("a"), W("a"), W("")},
        {"empty", W(""), W(".dat"), W(".dat"), W(""), W(""), W("")},
    };
    for (const auto& row : rows) {
        WideBuffer<32> name{row.name};
        EXPECT_EQ(zu_Fname_addExt(name, W("dat")), 0);
        EXPECT_EQ(name.str(), row.added) << row.what;
        name = row.name;
        EXPECT_EQ(zu_Fname_modExt(name, W("dat"), 0), 1);
        EXPECT_EQ(name.str(), row.kept) << row.what;
        name = row.name;
        EXPECT_EQ(zu_Fname_modExt(name, W("dat"), 1), 1);
        EXPECT_EQ(name.str(), row.added) << row.what;
        name = row.name;
        EXPECT_EQ(zu_Fname_modExt(name, nullptr, -1), 1);
        EXPECT_EQ(name.str(), row.removed) << row.what;
        name = row.name;
        EXPECT_EQ(zu_Fname_rmvExt(name), 0);
        EXPECT_EQ(name.str(), row.stripped) << row.what;
        EXPECT_EQ(zu_Fname_extractExt(row.name, name), static_cast<int32_t>(Wide(row.extension).size()));
        EXPECT_EQ(name.str(), row.extension) << row.what;
    }
}

TEST(Fname, directories)
{
    const std::tuple<WideLiteral, WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {W("D:\\tmp\\a.txt"), W("D:\\tmp\\"), W("a.txt"), W("D:\\tmp\\a.txt\\")},
        {W("D:file"), W("D:"), W("file"), W("D:file\\")},
        {W("a/b"), W(""), W("a/b"), W("a/b\\")},
        {W(""), W(""), W(""), W("")},
    };
    for (const auto& [name, directory, rest, fixed] : rows) {
        WideBuffer<32> text{name};
        EXPECT_EQ(zu_Fname_extractPath(text, text), static_cast<int32_t>(Wide(directory).size()));
        EXPECT_EQ(text.str(), directory) << PrintToString(str(name));
        text = name;
        EXPECT_EQ(zu_Fname_rmvPath(text), 0);
        EXPECT_EQ(text.str(), rest);
        text = name;
        zu_Fname_fixDir(text);
        EXPECT_EQ(text.str(), fixed);
    }
}

TEST(Fname, build)
{
    const std::tuple<WideLiteral, WideLiteral, WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {W("D"), W("\\tmp"), W("a"), W("txt"), W("D:\\tmp\\a.txt")},
        {nullptr, nullptr, nullptr, W("x"), W(".x")},
        {W("C"), nullptr, W("a"), W("."), W("C:a.")},
        {nullptr, nullptr, nullptr, nullptr, W("")},
    };
    for (const auto& [drive, directory, name, extension, result] : rows) {
        WideBuffer<32> out{W("########")};
        zu_Fname_build(out, drive, directory, name, extension);
        EXPECT_EQ(out.str(), result);
    }
}

TEST(Fname, nullChangesNothing)
{
    WideBuffer<8> text{W("a.b")};
    zu_Fname_fixDir(nullptr);
    EXPECT_TRUE(
        allAre(0, {zu_Fname_addExt(nullptr, W("a")), zu_Fname_addExt(text, nullptr),
                   zu_Fname_modExt(nullptr, W("a"), 1), zu_Fname_extractPath(W("a\\b"), nullptr),
                   zu_Fname_extractExt(W("a.b"), nullptr), zu_Fname_rmvPath(nullptr), zu_Fname_rmvExt(nullptr)}));
    EXPECT_EQ(zu_Fname_extractPath(nullptr, text), 0);
    EXPECT_EQ(text.str(), W(""));
    zu_Fname_build(nullptr, W("D"), nullptr, nullptr, nullptr);
    EXPECT_EQ(str(zu_Fname_fullPath(nullptr)), W(""));
    EXPECT_EQ(str(zu_Fname_abbreviate(nullptr, 20)), W(""));
}

TEST(Fname, fullPath)
{
    const Sandbox sandbox;
    std::filesystem::current_path(sandbox.native());
    EXPECT_EQ(str(zu_Fname_fullPath(W("a\\.\\b\\..\\c.txt"))), sandbox.path(W("a\\c.txt")));
    EXPECT_EQ(str(zu_Fname_fullPath(zu_Fname_fullPath(W("x")))), sandbox.path(W("x")));
    EXPECT_EQ(str(zu_Fname_fullPath(W("C:\\a\\..\\b"))), W("C:\\b"));
    // A result beyond the buffer counts as unresolved: the name as given, cut.
    const Wide longName(600, W('n'));
    EXPECT_EQ(str(zu_Fname_fullPath(longName.c_str())), longName.substr(0, 512));
    const Wide name(500, W('n'));
    EXPECT_EQ(str(zu_Fname_fullPath(name.c_str())), name);
}

TEST(Fname, createTemp)
{
    std::set<Wide> names;
    for (int round = 0; round < 100; ++round) {
        const Wide name = zu_Fname_createTemp();
        ASSERT_EQ(name.size(), 8u);
        EXPECT_EQ(name.substr(0, 3), W("zu_"));
        EXPECT_EQ(name.find_first_not_of(W("0123456789"), 3), Wide::npos) << PrintToString(name);
        EXPECT_LE(name.substr(3), W("32766"));
        names.insert(name);
    }
    EXPECT_GT(names.size(), 90u);
}

TEST(Fname, abbreviationRows)
{
    const std::tuple<const char*, WideLiteral, int32_t, WideLiteral> rows[] = {
        {"fits without its blanks", W("  D:\\one\\f.txt "), 12, W("D:\\one\\f.txt")},
        {"a slash separates nothing", W("a/b/c/d"), 3, W("a/b")},
        {"a colon ends the directory", W("D:\\directory\\x:abc"), 2, W("ab")},
        {"negative width", W("a\\b"), -1, W("")},
        {"width 512", W("a\\b"), 512, W("a\\b")},
        {"width 513", W("a\\b"), 513, W("")},
    };
    for (const auto& [what, path, width, result] : rows)
        EXPECT_EQ(str(zu_Fname_abbreviate(path, width)), result) << what;
    const Wide longName(600, W('n'));
    const Wide longTail = W("C:\\x\\") + longName + W("\\");
    EXPECT_EQ(str(zu_Fname_abbreviate(longTail.c_str(), 20)), longName.substr(0, 512)) << "cut to the buffer";
}

// A second way to the same: all forms that the growth passes through are written out, and the last that fits is taken.
Wide abbreviatedByForms(const Wide& path, std::size_t width)
{
    const Wide name = path.substr(path.find_last_of(W("\\:")) + 1);
    if (path.size() <= width || path.find(W('\\')) == Wide::npos)
        return path.substr(0, width);
    std::vector<Wide> tokens(1);
    for (zu_wchar unit : path + W("\\")) {
        if (unit != W('\\'))
            tokens.back() += unit;
        else if (!tokens.back().empty())
            tokens.emplace_back();
    }
    tokens.pop_back();
    if (name.size() > width || tokens.size() < 2)
        return name.substr(0, name.size() > width ? width : width - 1);
    const Wide leading = path.substr(0, path.find_first_not_of(W('\\')));
    const Wide trailing = path.substr(path.find_last_not_of(W('\\')) + 1);
    const auto form = [&](std::size_t fromLeft, std::size_t fromRight) {
        Wide text = leading;
        for (std::size_t index = 0; index < fromLeft; ++index)
            text += tokens[index] + W("\\");
        text += W("...");
        for (std::size_t index = tokens.size() - fromRight; index < tokens.size(); ++index)
            text += W("\\") + tokens[index];
        return text + trailing;
    };
    if (form(1, 1).size() > width) {
        const Wide tail = tokens.back() + trailing;
        return tail.size() + 4 <= width ? W("...\\") + tail : tail;
    }
    std::size_t taken[] = {1, 1}; // at the end, at the beginning
    bool closed[] = {false, false};
    for (int side = 0; !closed[0] || !closed[1]; side = 1 - side) {
        if (closed[side])
            continue;
        if (taken[0] + taken[1] == tokens.size() || form(taken[1], taken[0]).size() == width)
            break;
        ++taken[side];
        closed[side] = form(taken[1], taken[0]).size() > width;
        taken[side] -= closed[side];
    }
    return form(taken[1], taken[0]);
}

TEST(Fname, abbreviationsAgreeWithTheirModel)
{
    std::mt19937 random(17);
    for (int round = 0; round < 30'000; ++round) {
        Wide path(1 + random() % 40, W('x'));
        for (zu_wchar& unit : path)
            unit = W("abc\\\\:")[random() % 6];
        const auto width = 1 + random() % 40;
        ASSERT_EQ(str(zu_Fname_abbreviate(path.c_str(), static_cast<int32_t>(width))), abbreviatedByForms(path, width))
            << PrintToString(path) << " to " << width;
    }
}

} // namespace
