#include "support/host.h"
#include "zu_Drawing.h"
#include "zu_Global.h"
#include "zu_Host.h"
#include "zu_Kelvane.h"
#include "zu_RM.h"

namespace {

using namespace zutest;

TEST(Drawing, onlyTheLastOneIsRemembered)
{
    EXPECT_EQ(zu_Drawing_IsSaveIgnored(W("")), 0);
    Wide name = W("C:\\Jobs\\Plan \u00e4.dwg");
    EXPECT_EQ(str(zu_Drawing_IgnoreSaveEvents(name.c_str(), 200)), name);
    const Wide stored = name;
    name[0] = W('X');
    EXPECT_EQ(zu_Drawing_IsSaveIgnored(stored.c_str()), 200) << "a copy is kept";
    EXPECT_EQ(zu_Drawing_IsSaveIgnored(W("c:\\JOBS\\pLAN \u00e4.DWG")), 200);

    // The name may be the one held; null leaves everything as it is.
    const zu_wchar* const held = zu_Drawing_IgnoreSaveEvents(stored.c_str(), 1);
    EXPECT_EQ(str(zu_Drawing_IgnoreSaveEvents(held, 2)), stored);
    EXPECT_EQ(zu_Drawing_IgnoreSaveEvents(nullptr, 3), nullptr);
    EXPECT_EQ(zu_Drawing_IsSaveIgnored(stored.c_str()), 2);
}

TEST(Kelvane, theHostIsAskedUntilItHasAName)
{
    const std::vector<std::string> asked{"Application.get_BaseSectionName"};
    {
        TestHost host;
        EXPECT_EQ(str(zu_Kelvane_getBaseSectionName()), W(""));
        host.calls();
        host.fail("Application.get_BaseSectionName", E_FAIL);
        EXPECT_THROW(zu_Kelvane_getBaseSectionName(), _com_error);
        EXPECT_EQ(host.calls(), asked);
    }
    const int32_t builtIn = zu_Host_setBuiltIn(0);
    zu_Global_destroyData();
    EXPECT_EQ(str(zu_Kelvane_getBaseSectionName()), W("")) << "without a host";
    zu_Host_setBuiltIn(builtIn);
    TestHost host;
    host.baseSectionName = W("Section \u00e4 ") + Wide(600, W('x'));
    const Wide name = host.baseSectionName.substr(0, ZU_KELVANE_NAME_SIZE);
    EXPECT_EQ(str(zu_Kelvane_getBaseSectionName()), name);
    host.calls();
    host.baseSectionName = W("another");
    EXPECT_EQ(str(zu_Kelvane_getBaseSectionName()), name);
    EXPECT_TRUE(host.calls().empty());
}

std::vector<void*> tracked;

int32_t track(void* a, void* b, void* c, void* d)
{
    tracked = {a, b, c, d};
    return -3;
}

TEST(Rm, theCallbackReceivesAllArguments)
{
    int things[3] = {};
    EXPECT_EQ(zu_RM_setFuncTrackObject(track), track);
    EXPECT_EQ(zu_RM_callFuncTrackObject(&things[0], &things[1], &things[2], nullptr), -3);
    EXPECT_EQ(tracked, (std::vector<void*>{&things[0], &things[1], &things[2], nullptr}));
    tracked.clear();
    EXPECT_EQ(zu_RM_setFuncTrackObject(nullptr), nullptr);
    EXPECT_EQ(zu_RM_callFuncTrackObject(things, things, things, things), 0);
    EXPECT_TRUE(tracked.empty());
}

} // namespace
