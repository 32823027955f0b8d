#include "files_support.h"
#include "support/lists.h"
#include "zu_Dir.h"
#include "zu_File.h"

#include <fstream>

namespace {

using namespace zutest;

Wide lower(Wide text)
{
    for (zu_wchar& unit : text) {
        if (unit >= W('A') && unit <= W('Z'))
            unit = static_cast<zu_wchar>(unit + 0x20);
    }
    return text;
}

TEST(Dir, createMakesALowerCaseChain)
{
    Sandbox sandbox;
    const Wide path = sandbox.path(W("New\\Sub"));
    EXPECT_EQ(zu_Dir_create(path.c_str()), 0);
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"new/"}));
    EXPECT_EQ(entriesOf(sandbox, W("new")), (std::vector<std::string>{"sub/"}));
    EXPECT_EQ(zu_Dir_create(path.c_str()), -1) << "exists already";
    EXPECT_EQ(zu_Dir_create((path + W("\\third\\")).c_str()), 0);
    sandbox.write(W("file"), "");
    EXPECT_EQ(zu_Dir_create(sandbox.path(W("file\\below")).c_str()), -1);
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"file", "new/"}));
}

TEST(Dir, deleteTakesEmptyDirectoriesOnly)
{
    Sandbox sandbox;
    std::filesystem::create_directories(sandbox.native(W("Outer\\Inner")));
    sandbox.write(W("file"), "");
    EXPECT_EQ(zu_Dir_delete(sandbox.path(W("outer")).c_str()), -1);
    EXPECT_EQ(zu_Dir_delete(sandbox.path(W("file")).c_str()), -1);
    EXPECT_EQ(zu_Dir_delete(sandbox.path(W("outer\\INNER\\")).c_str()), 0);
    EXPECT_EQ(zu_Dir_delete(sandbox.path(W("Outer")).c_str()), 0);
    std::filesystem::current_path(std::filesystem::path(sandbox.native()));
    EXPECT_EQ(zu_Dir_delete(Wide(sandbox.path(), 0, 3).c_str()), -1) << "a root";
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"file"}));
}

void makeTree(const Sandbox& sandbox)
{
    for (WideLiteral name : {W("Tree\\File.TXT"), W("Tree\\Sub One\\b.dat"), W("Tree\\Sub One\\Deep\\C.dat"),
                             W("Tree\\\u0416\\d"), W("Tree\\empty\\.hidden")}) {
        std::filesystem::create_directories(sandbox.native(name).parent_path());
        sandbox.write(name, "x");
    }
}

TEST(Dir, deleteTreeRemovesMixedCase)
{
    Sandbox sandbox;
    for (WideLiteral name : {W("Tree"), W("tree\\"), W("TREE")}) {
        makeTree(sandbox);
        EXPECT_EQ(zu_Dir_deleteTree(sandbox.path(name).c_str()), 0) << testing::PrintToString(Wide(name));
        EXPECT_TRUE(entriesOf(sandbox).empty());
    }
    sandbox.write(W("file"), "");
    EXPECT_EQ(zu_Dir_deleteTree(sandbox.path(W("file")).c_str()), -1);
    std::filesystem::current_path(sandbox.native());
    EXPECT_EQ(zu_Dir_deleteTree(W("")), -1);
    EXPECT_EQ(zu_Dir_deleteTree(Wide(sandbox.path(), 0, 2).c_str()), -1);
    EXPECT_TRUE(sandbox.exists(W("file")));
}

TEST(Dir, deleteTreeOfNamesThatDifferInCaseOnly)
{
    if (onWindows)
        GTEST_SKIP() << "there are no such names";
    Sandbox sandbox;
    for (WideLiteral name : {W("Tree\\Sub\\a"), W("Tree\\sub\\b"), W("Tree\\SUB\\c"), W("tree\\Sub\\keep")}) {
        std::filesystem::create_directories(sandbox.native(name).parent_path());
        sandbox.write(name, "x");
    }
    EXPECT_EQ(zu_Dir_deleteTree(sandbox.path(W("Tree")).c_str()), 0);
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"tree/"}));
    EXPECT_TRUE(sandbox.exists(W("tree\\Sub\\keep"))) << "another directory";
}

TEST(Dir, deleteTreeDoesNotLeaveTheTree)
{
    Sandbox sandbox;
    sandbox.write(W("outside"), "x");
    std::filesystem::create_directories(sandbox.native(W("other")));
    sandbox.write(W("other\\inner"), "x");
    makeTree(sandbox);
    const std::filesystem::path tree = sandbox.native(W("Tree"));
    makeLink(sandbox.native(W("other")), tree / "link");
    makeLink(tree / "loop", tree / "loop");
    makeLink(tree, tree / "Sub One" / "up");
    EXPECT_EQ(zu_Dir_deleteTree(sandbox.path(W("tree")).c_str()), 0);
    EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"other/", "outside"}));
    if (onWindows)
        return;
    for (WideLiteral name : {W("link"), W("link\\"), W("link/"), W("link\\\\")}) {
        makeLink(sandbox.native(W("other")), sandbox.native(W("link")));
        EXPECT_EQ(zu_Dir_deleteTree((sandbox.path() + W("\\") + name).c_str()), 0);
        EXPECT_EQ(entriesOf(sandbox), (std::vector<std::string>{"other/", "outside"})) << "the link alone";
    }
    EXPECT_TRUE(sandbox.exists(W("other\\inner")));

    // Names that would be read as paths are left, and so is their directory.
    std::filesystem::create_directories(tree);
    sandbox.write(W("Tree\\good"), "");
    std::ofstream(tree / "..\\outside") << "y";
    EXPECT_EQ(zu_Dir_deleteTree(sandbox.path(W("tree")).c_str()), -1);
    EXPECT_EQ(entriesOf(sandbox, W("Tree")), (std::vector<std::string>{"..\\outside"}));
    EXPECT_EQ(sandbox.read(W("outside")), "x");
}

TEST(Dir, listsInLowerCase)
{
    Sandbox sandbox;
    makeTree(sandbox);
    StrList* const list = zu_Dir_list(sandbox.path(W("Tree\\*")).c_str());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->current, nullptr);
    const Wide front = lower(sandbox.path(W("Tree\\")));
    std::vector<Wide> expected;
    for (WideLiteral name : {W("."), W(".."), W("empty"), W("file.txt"), W("sub one"), W("\u0416")})
        expected.push_back(front + name);
    EXPECT_EQ(takeStrings(list), expected);
    EXPECT_EQ(zu_Dir_list(Wide(600, W('*')).c_str()), nullptr);
}

TEST(Dir, changeAndCurrent)
{
    Sandbox sandbox;
    std::filesystem::create_directories(sandbox.native(W("Sub\\Deep")));
    const Wide sub = sandbox.path(W("Sub"));
    const Wide drive = sub.substr(0, 2);
    EXPECT_EQ(zu_Dir_change((sub + W("\\")).c_str()), 0);
    EXPECT_EQ(lower(str(zu_Dir_current())), lower(sub));
    EXPECT_EQ(zu_Dir_change(W("DEEP")), 0);
    EXPECT_EQ(lower(str(zu_Dir_current())), lower(sub) + W("\\deep"));
    EXPECT_EQ(zu_Dir_change(drive.c_str()), 0) << "the current drive";
    EXPECT_EQ(zu_Dir_change(W("")), -1);
    EXPECT_EQ(zu_Dir_change(W("1:\\x")), -1) << "no drive";
    EXPECT_EQ(lower(str(zu_Dir_current())), lower(sub) + W("\\deep")) << "unchanged by all of these";
    EXPECT_EQ(zu_Dir_change((drive + W("\\")).c_str()), 0);
    EXPECT_EQ(str(zu_Dir_current()).size(), 3u) << "a root keeps its separator";
}

TEST(Dir, changeSwitchesDrives)
{
    if (onWindows)
        GTEST_SKIP() << "a second drive cannot be made";
    Sandbox sandbox;
    std::filesystem::create_directories(sandbox.native(W("Drive\\Sub")));
    sandbox.setEnvironment("ZU_DRIVE_Q", sandbox.native(W("Drive")).string());
    const Wide outside = sandbox.path();
    EXPECT_EQ(zu_Dir_change(outside.c_str()), 0);
    EXPECT_EQ(zu_Dir_change(W("q:\\sub")), 0);
    EXPECT_EQ(str(zu_Dir_current()), W("Q:\\Sub"));
    EXPECT_EQ(zu_Drive_set(zu_Drive_num(W('q'))), 0);
    EXPECT_EQ(str(zu_Dir_current()), W("Q:\\Sub")) << "the drive was current already";
    EXPECT_EQ(zu_Dir_change(outside.c_str()), 0);
    EXPECT_EQ(zu_Dir_change(W("q:\\none")), -1);
    EXPECT_EQ(str(zu_Dir_current()), W("Q:\\")) << "the drive stays switched";
    EXPECT_EQ(zu_Drive_set(24), 0) << "no such drive";
    EXPECT_EQ(str(zu_Dir_current()), W("Q:\\"));
    EXPECT_EQ(zu_Drive_num(W('1')), -15);
    EXPECT_TRUE(allAre(-1, {zu_Drive_set(0), zu_Drive_set(-3), zu_Drive_get()}));
}

TEST(Dir, parents)
{
    const std::tuple<const char*, WideLiteral, WideLiteral> rows[] = {
        {"two levels", W("c:\\a\\b"), W("c:\\a\\")},
        {"a root", W("c:\\"), nullptr},
        {"normalised", W("c:\\a\\.\\x\\..\\b"), W("c:\\a\\")},
    };
    for (const auto& [what, path, parent] : rows)
        EXPECT_EQ(lower(str(zu_Dir_getParent(path))), str(parent)) << what;
    Sandbox sandbox;
    std::filesystem::current_path(sandbox.native());
    EXPECT_EQ(lower(str(zu_Dir_getParent(W("x")))), lower(sandbox.path() + W("\\")));
    EXPECT_EQ(zu_Dir_getParent(Wide(W("C:\\")).append(600, W('x')).c_str()), nullptr);
}

} // namespace
