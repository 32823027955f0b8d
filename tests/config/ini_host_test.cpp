// INI files through a host's own cache: what is asked of it, and what becomes of its failures.
#include "support/host.h"
#include "support/memory.h"
#include "support/sandbox.h"
#include "zu_Env.h"
#include "zu_Ini.h"
#include "zu_Sys.h"

#include <functional>

namespace {

using namespace zutest;

using Calls = std::vector<std::string>;
const zu_wchar* const end = nullptr;
constexpr const zu_wchar* file = W("C:\\f.ini");

TEST(IniHost, whatTheCacheIsAsked)
{
    TestHost host;
    host.iniValue(file, W("G"), W("K")) = W("  value ");
    FldList* const list = zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end);
    EXPECT_EQ(str(zu_Ini_get(file, W("G"), W("K"))), W("value ")) << "leading blanks go, trailing ones stay";
    host.calls();
    EXPECT_EQ(zu_Ini_setGroupEx(file, W("G"), list), 1);
    EXPECT_EQ(host.calls(), (Calls{"IniCache.RemoveGroup C:\\f.ini G", "IniCache.AddGroup C:\\f.ini G",
                                   "IniCache.SetValue C:\\f.ini G K x", "IniCache.GetGroup C:\\f.ini G"}));
    EXPECT_EQ(zu_Ini_updateGroup(file, W("G"), list), 1);
    EXPECT_EQ(host.calls(),
              (Calls{"IniCache.GetGroup C:\\f.ini G", "IniCacheGroup.RemoveAll", "IniCacheGroup.SetValue K x"}));
    EXPECT_EQ(zu_Ini_updateGroup(file, W("H"), list), 1);
    EXPECT_EQ(host.calls(), (Calls{"IniCache.GetGroup C:\\f.ini H", "IniCache.AddGroup C:\\f.ini H",
                                   "IniCache.GetGroup C:\\f.ini H", "IniCacheGroup.SetValue K x"}));
    zu_Ini_reload(file);
    zu_Ini_resetCache();
    zu_Ini_viewCache();
    EXPECT_EQ(host.calls(), (Calls{"FileService.Revalidate C:\\f.ini", "IniCache.Reload C:\\f.ini",
                                   "IniCache.ResetCache", "IniCache.ViewCache"}));
    zu_FldList_destroy(list);
}

TEST(IniHost, aFailingCallIsRaisedAndNothingLeaks)
{
    TestHost host;
    host.iniValue(file, W("G"), W("K")) = W("value");
    FldList* const list = zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end);
    const struct
    {
        const char* method;
        std::function<void()> call;
    } rows[] = {
        {"IniCache.GetValue",
         [] {
             zu_Ini_get(file, W("G"), W("K"));
         }},
        {"IniCache.SetValue",
         [] {
             zu_Ini_set(file, W("G"), W("K"), W("x"));
         }},
        {"IniCache.GetGroup",
         [] {
             zu_Ini_getGroup(file, W("G"));
         }},
        {"IniCacheGroup.Count",
         [] {
             zu_Ini_getGroup(file, W("G"));
         }},
        {"IniCacheGroup.Item",
         [] {
             zu_Ini_getGroup(file, W("G"));
         }},
        {"IniCacheEntry.Name",
         [] {
             zu_Ini_getGroup(file, W("G"));
         }},
        {"IniCacheEntry.Value",
         [] {
             zu_Ini_getGroupAbsolute(file, W("G"));
         }},
        {"IniCache.GetGroups",
         [] {
             zu_Ini_findAllGroups(file);
         }},
        {"IniCacheGroups.Count",
         [] {
             zu_Ini_findAllGroups(file);
         }},
        {"IniCacheGroups.Item",
         [] {
             zu_Ini_findAllGroups(file);
         }},
        {"IniCacheGroup.Name",
         [] {
             zu_Ini_findAllGroups(file);
         }},
        {"IniCache.RemoveGroup",
         [] {
             zu_Ini_removeGroup(file, W("G"));
         }},
        {"IniCache.AddGroup",
         [] {
             zu_Ini_addGroup(file, W("New"));
         }},
        {"IniCacheGroup.RemoveAll",
         [&] {
             zu_Ini_updateGroup(file, W("G"), list);
         }},
        {"IniCacheGroup.SetValue",
         [&] {
             zu_Ini_updateGroup(file, W("G"), list);
         }},
        {"IniCache.ResetCache",
         [] {
             zu_Ini_resetCache();
         }},
        {"IniCache.Reload",
         [] {
             zu_Ini_reload(file);
         }},
        {"FileService.Revalidate",
         [] {
             zu_Ini_reload(file);
         }},
        {"IniCache.ViewCache",
         [] {
             zu_Ini_viewCache();
         }},
        {"Application.get_ConfigurationDirectory",
         [] {
             zu_Env_getIni(W("G"), W("K"));
         }},
        {"Application.get_ApplicationGroup",
         [] {
             WideBuffer<8> group;
             zu_Sys_getApplicationGroup(group, 7);
         }},
        {"Application.put_ApplicationGroup",
         [] {
             zu_Sys_setApplicationGroup(W("x"));
         }},
    };
    zu_Ini_get(file, W("G"), W("K"));
    for (const auto& row : rows) {
        const std::int64_t before = liveBlocks();
        const int objects = host.liveObjects;
        host.fail(row.method, E_ACCESSDENIED);
        HRESULT raised = S_OK;
        try {
            row.call();
        } catch (const _com_error& error) {
            raised = error.Error();
        }
        host.fail(row.method, S_OK);
        EXPECT_EQ(raised, E_ACCESSDENIED) << row.method;
        EXPECT_EQ(liveBlocks(), before) << row.method;
        EXPECT_EQ(host.liveObjects, objects) << row.method;
    }
    zu_FldList_destroy(list);
}

TEST(IniHost, aGroupThatCannotBeAddedRaisesThePointerError)
{
    TestHost host;
    host.refusesNewGroups = true;
    FldList* const list = zu_FldList_create(W("K"), ZU_FLD_CHAR, W("x"), end);
    FldList* const empty = zu_FldList_create(end);
    HRESULT raised = S_OK;
    try {
        zu_Ini_updateGroup(file, W("None"), list);
    } catch (const _com_error& error) {
        raised = error.Error();
    }
    EXPECT_EQ(raised, E_POINTER);
    EXPECT_EQ(zu_Ini_updateGroup(file, W("None"), empty), 1) << "nothing to be set";
    EXPECT_EQ(zu_Ini_setGroupEx(file, W("None"), list), 0);
    EXPECT_EQ(zu_Ini_addGroup(file, W("None")), 0);
    zu_FldList_destroy(empty);
    zu_FldList_destroy(list);
}

TEST(IniHost, displayingAnError)
{
    testing::internal::CaptureStdout();
    const int32_t printed = zu_Ini_displayError(W("f"), W("g"), nullptr);
    std::fflush(stdout);
    std::string said = testing::internal::GetCapturedStdout();
    said.erase(std::remove(said.begin(), said.end(), '\r'), said.end());
    EXPECT_EQ(said, "Error reading Ini File\nFile Name f\nGroup Name g\nVariable Name (null)");
    EXPECT_EQ(printed, static_cast<int32_t>(said.size()));
}

} // namespace
