#include "support/configured.h"
#include "zu_Alias.h"
#include "zu_Dir.h"
#include "zu_Sys.h"

namespace {

using namespace zutest;

using PathBuffer = WideBuffer<ZU_SYS_PATH_SIZE + 1>;

// What the directory operations make of a path: ASCII letters in lower case.
Wide lowered(Wide path)
{
    for (zu_wchar& unit : path) {
        if (unit >= W('A') && unit <= W('Z'))
            unit = static_cast<zu_wchar>(unit + 0x20);
    }
    return path;
}

TEST(SysLocations, directoriesFollowTheSettings)
{
    const Configured world("[GENERAL]\nKV=D:\\Net\nKVSPECS=D:\\Specs\\\nZU_BIN_DIR=D:\\Programs\n");
    PathBuffer path;
    EXPECT_EQ(str(zu_Sys_getNetDir(path)), W("d:\\net\\"));
    EXPECT_EQ(str(zu_Sys_getLocalDir(path)), W("d:\\net\\")) << "the network directory stands in";
    EXPECT_EQ(str(zu_Sys_getSpecDir(path, W("Piping"))), W("d:\\specs\\piping\\"));
    EXPECT_EQ(str(zu_Env_getSes(W("KVSPECS"))), W("D:\\Specs\\")) << "remembered as it was configured";
    EXPECT_EQ(str(zu_Sys_getSpecName(path, nullptr, W("A.ini"))), W("d:\\specs\\a.ini"));
    EXPECT_EQ(str(zu_Sys_getBinDir(path)), W("d:\\programs\\"));
    zu_Env_setSes(W("KVWS"), W("E:\\Work"));
    zu_Env_setSes(W("KV"), W("F:"));
    zu_Env_setSes(W("ZU_BIN_DIR"), W("G:\\never")); // the configuration alone counts here
    EXPECT_EQ(str(zu_Sys_getLocalName(path, W("X"))), W("e:\\work\\x"));
    EXPECT_EQ(str(zu_Sys_getNetName(path, W("File.TXT"))), W("f:\\file.txt"));
    EXPECT_EQ(str(zu_Sys_getBinName(path, W("A.EXE"))), W("d:\\programs\\a.exe"));
    EXPECT_EQ(zu_Sys_is64bitSystem(), 1);
}

TEST(SysLocations, theTemporaryDirectoryOfASession)
{
    const Configured world;
    world.write(W("zu.ini"), "\xEF\xBB\xBF[GENERAL]\nKVTMP=%ZU_S1%\\Tmp\nKV=%ZU_S1%\n");
    zu_Alias_put(W("ZU_S1"), world.path().c_str());
    namespace fs = std::filesystem;
    fs::create_directories(world.native(W("tmp\\1")));
    fs::create_directories(world.native(W("tmp\\2")));
    PathBuffer path;
    EXPECT_EQ(str(zu_Sys_getTempDir(path, 1)), lowered(world.path(W("tmp\\3\\"))));
    EXPECT_EQ(str(zu_Env_getSes(W("KVSES"))), W("3"));
    EXPECT_EQ(str(zu_Env_getSes(W("KVTMP"))), world.path(W("Tmp")));
    EXPECT_EQ(str(zu_Sys_getTempName(path, W("A.tmp"), 1)), lowered(world.path(W("tmp\\3\\a.tmp")))) << "chosen once";
    EXPECT_EQ(str(zu_Sys_getTempName(path, nullptr, 0)), lowered(world.path(W("tmp\\"))));

    zu_Env_resetSes();
    world.write(W("zu.ini"), "\xEF\xBB\xBF[GENERAL]\nKV=%ZU_S1%\n");
    EXPECT_EQ(str(zu_Sys_getTempDir(path, 0)), lowered(world.path(W("kvtmp\\"))));
    EXPECT_TRUE(world.exists(W("kvtmp")));
    EXPECT_EQ(zu_Env_getSes(W("KVTMP")), nullptr) << "the fallback is not remembered";
}

TEST(SysLocations, programsOfAVersion)
{
    const Configured world;
    world.write(W("zu.ini"), "\xEF\xBB\xBF[GENERAL]\nZU_DEV_BIN_DIR=%ZU_S2%\\bin\n");
    zu_Alias_put(W("ZU_S2"), world.path().c_str());
    zu_Env_setSes(W("ACADVER"), W("R18"));
    std::filesystem::create_directories(world.native(W("bin\\r18")));
    world.write(W("bin\\r18\\there.exe"), "");
    PathBuffer path;
    EXPECT_EQ(str(zu_Sys_getVersionBinName(path, W("There.exe"), 1)), lowered(world.path(W("bin\\r18\\there.exe"))));
    EXPECT_EQ(str(zu_Sys_getVersionBinName(path, W("none.exe"), 1)), lowered(world.path(W("bin\\none.exe"))));
    zu_Env_setSes(W("ACADVER"), W("R19"));
    EXPECT_EQ(str(zu_Sys_getVersionBinName(path, W("None.exe"), 0)), lowered(world.path(W("bin\\r19\\none.exe"))));
    EXPECT_TRUE(world.exists(W("bin\\r19"))) << "created";
    zu_Env_setSes(W("ACADVER"), nullptr);
    EXPECT_EQ(str(zu_Sys_getVersionBinName(path, nullptr, 1)), lowered(world.path(W("bin\\"))));
}

TEST(SysLocations, whatTheHostNames)
{
    const Configured world("[GENERAL]\nA=1\n");
    PathBuffer path;
    EXPECT_EQ(str(zu_Sys_getCfgDir(path)), lowered(world.path() + W("\\")));
    EXPECT_EQ(str(zu_Sys_getCfgName(path, W("Zu.INI"))), lowered(world.path(W("zu.ini"))));
    EXPECT_EQ(str(zu_Env_getIni(W("general"), W("a"))), W("1")) << "found under its lower-case path";
    WideBuffer<8> group(W("old"));
    EXPECT_EQ(zu_Sys_setApplicationGroup(W("Piping")), 1);
    EXPECT_EQ(zu_Sys_getApplicationGroup(group, 4), 1);
    EXPECT_EQ(group.str(), W("Pipi"));
    EXPECT_TRUE(allAre(0, {zu_Sys_getApplicationGroup(nullptr, 4), zu_Sys_setApplicationGroup(nullptr)}));
    EXPECT_EQ(zu_Sys_setShowModeSelectGUI(7), 0) << "written";
    EXPECT_EQ(zu_Sys_getShowModeSelectGUI(), 1);

    zu_Host_setBuiltIn(0);
    zu_Global_destroyData();
    EXPECT_EQ(str(zu_Sys_getCfgDir(path)), W(""));
    EXPECT_EQ(str(zu_Sys_getCfgName(path, W("Zu.INI"))), W("zu.ini"));
    EXPECT_EQ(zu_Sys_getApplicationGroup(group, 4), 0);
    EXPECT_EQ(group.str(), W(""));
    EXPECT_EQ(zu_Sys_setApplicationGroup(W("x")), 0);
    EXPECT_EQ(zu_Sys_setShowModeSelectGUI(1), 1) << "not written";
}

} // namespace
