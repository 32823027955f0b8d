#include "files_support.h"
#include "zu_File.h"

#include <cstdlib>

namespace {

using namespace zutest;

TEST(File, relativeNames)
{
    const std::tuple<const char*, WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {"the base itself", W("D:\\a\\b"), W("D:\\a\\b"), W("..\\b")},
        {"drive letters of either case", W("d:\\a\\b"), W("D:\\a\\b\\x"), W("x")},
        {"case counts behind them", W("D:\\A\\b"), W("D:\\a\\b\\x"), W("..\\..\\a\\b\\x")},
        {"another drive", W("C:\\a\\b"), W("D:\\a\\x"), W("D:\\a\\x")},
        {"target too short", W("D:\\a"), W("D:\\"), nullptr},
    };
    for (const auto& [what, base, target, relative] : rows)
        EXPECT_EQ(str(zu_File_getRelativeFilename(base, target)), str(relative)) << what;

    const Wide longest = Wide(W("D:\\")).append(509, W('t'));
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("D:\\b"), (longest + W("t")).c_str())), W("<null>"));
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("C:\\b"), longest.c_str())), longest);
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("D:\\b\\c"), longest.c_str())), W("<null>")) << "515 units";
}

// Going the relative way from the base must lead to the target.
TEST(File, relativeNamesLeadToTheTarget)
{
    const zu_wchar* const before = zu_File_getRelativeFilename(W("C:\\ab"), W("D:\\xx.txt"));
    EXPECT_EQ(str(zu_File_getRelativeFilename(W("D:\\a\\b\\c"), before)), W("..\\..\\..\\xx.txt"))
        << "of the result of the call before";
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
    for (const WideLiteral path : {W("\\\\server\\share\\x"), W("C:\\dir\\file"), W("http://x")})
        EXPECT_EQ(str(zu_File_getUNCPathName(path)), path);
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
    const std::tuple<const char*, std::string, Wide> rows[] = {
        {"share", "//server/Share", W("\\\\server\\Share")},
        {"export", "server:/exports/data/", W("\\\\server\\exports\\data")},
    };
    for (const auto& [what, device, name] : rows) {
        if (run("mount -t tmpfs '" + device + "' '" + place + "' 2>/dev/null") != 0)
            GTEST_SKIP() << "nothing can be mounted here";
        std::filesystem::create_directory(sandbox.native(W("mount\\Sub")));
        sandbox.setEnvironment("ZU_DRIVE_Q", place);
        EXPECT_EQ(str(zu_File_getUNCPathName(W("q:\\x\\y.txt"))), name + W("\\x\\y.txt")) << what;
        EXPECT_EQ(str(zu_File_getUNCPathName(W("q:"))), name) << what;
        sandbox.setEnvironment("ZU_DRIVE_Q", place + "/Sub");
        EXPECT_EQ(str(zu_File_getUNCPathName(W("Q:\\x"))), name + W("\\Sub\\x")) << what;
        EXPECT_EQ(str(zu_File_getUNCPathName(Wide(W("Q:")).append(600, W('x')).c_str())).size(), 511u) << what;
        EXPECT_EQ(run("umount '" + place + "'"), 0);
    }
}

} // namespace
