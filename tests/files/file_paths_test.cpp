#include "files_support.h"
#include "zu_File.h"

#include <cstdlib>

namespace {

using namespace zutest;

TEST(File, relativeNames)
{
    const struct
    {
        const char* what;
        WideLiteral base, target, relative;
    } rows[] = {
        {"below", W("D:\\a\\b"), W("D:\\a\\b\\c\\x.txt"), W("c\\x.txt")},
        {"below, with a separator", W("D:\\a\\b\\"), W("D:\\a\\b\\c\\x.txt"), W("c\\x.txt")},
        {"beside", W("D:\\a\\b"), W("D:\\a\\c\\x.txt"), W("..\\c\\x.txt")},
        {"beside, with a separator", W("D:\\a\\b\\"), W("D:\\a\\c\\x.txt"), W("..\\c\\x.txt")},
        {"above", W("D:\\a\\b\\c"), W("D:\\a\\b"), W("..\\..\\b")},
        {"begins alike", W("D:\\a\\b"), W("D:\\a\\bc\\x"), W("..\\bc\\x")},
        {"the base itself", W("D:\\a\\b"), W("D:\\a\\b"), W("..\\b")},
        {"the base itself, with a separator", W("D:\\a\\"), W("D:\\a\\"), W("")},
        {"far apart", W("D:\\one\\two\\three"), W("D:\\x"), W("..\\..\\..\\x")},
        {"drive letters of either case", W("d:\\a\\b"), W("D:\\a\\b\\x"), W("x")},
        {"case counts behind them", W("D:\\A\\b"), W("D:\\a\\b\\x"), W("..\\..\\a\\b\\x")},
        {"another drive", W("C:\\a\\b"), W("D:\\a\\x"), W("D:\\a\\x")},
        {"base too short", W("D:\\"), W("D:\\a"), nullptr},
        {"target too short", W("D:\\a"), W("D:\\"), nullptr},
        {"no base", nullptr, W("D:\\a"), nullptr},
        {"no target", W("D:\\a"), nullptr, nullptr},
    };
    for (const auto& row : rows)
        EXPECT_EQ(str(zu_File_getRelativeFilename(row.base, row.target)), str(row.relative)) << row.what;

    const Wide longest = Wide(W("D:\\")).append(509, W('t'));
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("D:\\b"), (longest + W("t")).c_str())), W("<null>"));
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("C:\\b"), longest.c_str())), longest);
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("D:\\b"), longest.c_str())), W("..\\") + longest.substr(3));
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("D:\\b\\c"), longest.c_str())), W("<null>")) << "515 units";
}

// Going the relative way from the base must lead to the target.
TEST(File, relativeNamesLeadToTheTarget)
{
    const std::string letters = noise(4'000, 11);
    std::size_t at = 0;
    const auto path = [&] {
        std::string text = "D:\\";
        for (int depth = static_cast<unsigned char>(letters[at++]) % 5 + 1; depth > 0; --depth) {
            const int pick = static_cast<unsigned char>(letters[at++]);
            text += std::string(1 + (pick & 1), (pick & 2) != 0 ? 'a' : 'b') + "\\";
        }
        text.pop_back();
        return text;
    };
    for (int count = 0; count < 250; ++count) {
        const std::string base = path();
        const std::string target = path();
        const zu_wchar* const relative = zu_File_getRelativeFilename(widen(base).c_str(), widen(target).c_str());
        if (base.size() < 4 || target.size() < 4)
            continue;
        ASSERT_NE(relative, nullptr);
        std::string way = base + "\\" + std::string(relative, relative + Wide(relative).size());
        std::replace(way.begin(), way.end(), '\\', '/');
        way = std::filesystem::path(way).lexically_normal().generic_string();
        std::replace(way.begin(), way.end(), '/', '\\');
        EXPECT_EQ(way, target) << "from " << base;
    }
}

TEST(File, networkNamesOfUnmappedPaths)
{
    const struct
    {
        const char* what;
        Wide path;
    } rows[] = {
        {"no colon", W("\\\\server\\share\\x")}, {"a drive of this machine", W("C:\\dir\\file")},
        {"no such drive", W("Q:\\x:y")},         {"no drive", W("http://x")},
        {"nothing in front", W(":x")},           {"empty", Wide()},
    };
    for (const auto& row : rows)
        EXPECT_EQ(str(zu_File_getUNCPathName(row.path.c_str())), row.path) << row.what;
    EXPECT_EQ(str(zu_File_getUNCPathName(nullptr)), W(""));
    EXPECT_EQ(str(zu_File_getUNCPathName(Wide(600, W('x')).c_str())), Wide(511, W('x')));
}

// Mounts under a name of the network what lies in memory: who asks cannot tell.
TEST(File, networkNamesOfMappedPaths)
{
    Sandbox sandbox;
    std::filesystem::create_directories(sandbox.native(W("mount")));
    const std::string place = sandbox.native(W("mount")).string();
    const auto run = [](const std::string& command) {
        return onWindows ? -1 : std::system(command.c_str());
    };
    const struct
    {
        const char* what;
        std::string device;
        Wide name;
    } rows[] = {
        {"share", "//server/Share", W("\\\\server\\Share")},
        {"export", "server:/exports/data/", W("\\\\server\\exports\\data")},
    };
    for (const auto& row : rows) {
        if (run("mount -t tmpfs '" + row.device + "' '" + place + "' 2>/dev/null") != 0)
            GTEST_SKIP() << "nothing can be mounted here";
        std::filesystem::create_directory(sandbox.native(W("mount\\Sub")));
        sandbox.setEnvironment("ZU_DRIVE_Q", place);
        EXPECT_EQ(str(zu_File_getUNCPathName(W("q:\\x\\y.txt"))), row.name + W("\\x\\y.txt")) << row.what;
        EXPECT_EQ(str(zu_File_getUNCPathName(W("q:"))), row.name) << row.what;
        sandbox.setEnvironment("ZU_DRIVE_Q", place + "/Sub");
        EXPECT_EQ(str(zu_File_getUNCPathName(W("Q:\\x"))), row.name + W("\\Sub\\x")) << row.what;
        EXPECT_EQ(str(zu_File_getUNCPathName(Wide(W("Q:")).append(600, W('x')).c_str())).size(), 511u) << row.what;
        EXPECT_EQ(run("umount '" + place + "'"), 0);
    }
}

} // namespace
