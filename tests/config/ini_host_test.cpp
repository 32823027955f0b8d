// INI files through a host's own cache: what is asked of it, and what becomes of its failures.
#include "support/host.h"
#include "support/lists.h"
#include "support/memory.h"
#include "support/sandbox.h"
#include "support/trace.h"
#include "zu_Env.h"
#include "zu_Ini.h"
#include "zu_Sys.h"

namespace {

using namespace zutest;

using Calls = std::vector<std::string>;
const zu_wchar* const end = nullptr;
constexpr const zu_wchar* file = W("C:\\f.ini");

TEST(IniHost, whatTheCacheIsAsked)
{
    TestHost host;
    host.iniValue(file, W("G"), W("K")) = W("  value ");
    const Fields list(zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end));
    EXPECT_EQ(str(zu_Ini_get(file, W("G"), W("K"))), W("value ")) << "leading blanks go, trailing ones stay";
    host.calls();
    EXPECT_EQ(zu_Ini_setGroupEx(file, W("G"), list.get()), 1);
    EXPECT_EQ(host.calls(), (Calls{"IniCache.RemoveGroup C:\\f.ini G", "IniCache.AddGroup C:\\f.ini G",
                                   "IniCache.SetValue C:\\f.ini G K x", "IniCache.GetGroup C:\\f.ini G"}));
    EXPECT_EQ(zu_Ini_updateGroup(file, W("G"), list.get()), 1);
    EXPECT_EQ(host.calls(),
              (Calls{"IniCache.GetGroup C:\\f.ini G", "IniCacheGroup.RemoveAll", "IniCacheGroup.SetValue K x"}));
    zu_Ini_reload(file);
    zu_Ini_resetCache();
    zu_Ini_viewCache();
    EXPECT_EQ(host.calls(), (Calls{"FileService.Revalidate C:\\f.ini", "IniCache.Reload C:\\f.ini",
                                   "IniCache.ResetCache", "IniCache.ViewCache"}));
}

TEST(IniHost, aHostMayWriteFilesOfTheDirectoryWhenItIsToldOfOne)
{
    TestHost host;
    Sandbox sandbox;
    const Fields list(zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end));
    const Wide other = sandbox.path(W("other.ini"));
    bool isFirst = true;
    host.whenCalled = [&](const std::string& call) {
        if (call.starts_with("FileService.Revalidate") && std::exchange(isFirst, false)) {
            EXPECT_EQ(zu_Ini_setGroupItems(other.c_str(), W("G"), list.get()), 1);
        }
    };
    EXPECT_EQ(zu_Ini_setGroupItems(sandbox.path(W("f.ini")).c_str(), W("G"), list.get()), 1);
    EXPECT_EQ(sandbox.read(W("other.ini")).substr(0, 3), "[G]");
    EXPECT_EQ(sandbox.read(W("f.ini")), sandbox.read(W("other.ini")));
    host.calls();
    EXPECT_EQ(zu_Ini_setGroupItems(sandbox.path(W("no\\f.ini")).c_str(), W("G"), list.get()), 0);
    EXPECT_TRUE(host.calls().empty()) << "nothing was moved";
}

TEST(IniHost, aFailingCallIsRaisedAndNothingLeaks)
{
    TestHost host;
    host.iniValue(file, W("G"), W("K")) = W("value");
    const Fields list(zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end));
    zu_Ini_get(file, W("G"), W("K"));
    const auto raises = [&](std::initializer_list<const char*> methods, const std::function<void()>& call) {
        for (const char* method : methods) {
            const std::int64_t before = liveBlocks();
            const int objects = host.liveObjects;
            host.fail(method, E_ACCESSDENIED);
            EXPECT_EQ(raisedBy(call), E_ACCESSDENIED) << method;
            host.fail(method, S_OK);
            EXPECT_EQ(liveBlocks(), before) << method;
            EXPECT_EQ(host.liveObjects, objects) << method;
        }
    };
    raises({"IniCache.GetValue"}, [] { zu_Ini_get(file, W("G"), W("K")); });
    raises({"IniCache.SetValue"}, [] { zu_Ini_set(file, W("G"), W("K"), W("x")); });
    raises({"IniCache.GetGroup", "IniCacheGroup.Count", "IniCacheGroup.Item", "IniCacheEntry.Name"},
           [] { zu_Ini_getGroup(file, W("G")); });
    raises({"IniCacheEntry.Value"}, [] { zu_Ini_getGroupAbsolute(file, W("G")); });
    raises({"IniCache.GetGroups", "IniCacheGroups.Count", "IniCacheGroups.Item", "IniCacheGroup.Name"},
           [] { zu_Ini_findAllGroups(file); });
    raises({"IniCache.RemoveGroup"}, [] { zu_Ini_removeGroup(file, W("G")); });
    raises({"IniCache.AddGroup"}, [] { zu_Ini_addGroup(file, W("New")); });
    raises({"IniCacheGroup.RemoveAll", "IniCacheGroup.SetValue"},
           [&] { zu_Ini_updateGroup(file, W("G"), list.get()); });
    raises({"IniCache.Reload", "FileService.Revalidate"}, [] { zu_Ini_reload(file); });
    raises({"Application.get_ConfigurationDirectory"}, [] { zu_Env_getIni(W("G"), W("K")); });
    raises({"Application.get_ApplicationGroup"}, [] { zu_Sys_getApplicationGroup(WideBuffer<8>(), 7); });
    raises({"Application.put_ApplicationGroup"}, [] { zu_Sys_setApplicationGroup(W("x")); });
}

TEST(IniHost, aGroupThatCannotBeAddedRaisesThePointerError)
{
    TestHost host;
    host.refusesNewGroups = true;
    const Fields list(zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end));
    const Fields empty(zu_FldList_create(end));
    EXPECT_EQ(raisedBy([&] { zu_Ini_updateGroup(file, W("None"), list.get()); }), E_POINTER);
    EXPECT_EQ(zu_Ini_updateGroup(file, W("None"), empty.get()), 1) << "nothing to be set";
    EXPECT_EQ(zu_Ini_addGroup(file, W("None")), 0);
}

TEST(IniHost, displayingAnError)
{
    EXPECT_EQ(printedBy([] { EXPECT_EQ(zu_Ini_displayError(W("f"), W("g"), nullptr), 68); }),
              "Error reading Ini File\nFile Name f\nGroup Name g\nVariable Name (null)");
}

} // namespace
