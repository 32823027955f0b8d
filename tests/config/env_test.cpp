#include "support/configured.h"
#include "support/lists.h"
#include "support/trace.h"
#include "zu_Alias.h"
#include "zu_Sys.h"

namespace {

using namespace zutest;

using Strings = std::vector<Wide>;

TEST(Env, sessionVariables)
{
    const Configured world;
    EXPECT_EQ(zu_Env_setSes(W("One"), W("1")), 1) << "it did not exist";
    EXPECT_EQ(zu_Env_setSesLocal(W("Two"), W("a = b ")), 1);
    EXPECT_EQ(zu_Env_setSes(W("ONE"), W("uno")), 0) << "replaced";
    EXPECT_EQ(str(zu_Env_getSes(W("one"))), W("uno"));
    EXPECT_EQ(str(zu_Env_getSesLocal(W("TWO"))), W("a = b"));
    EXPECT_EQ(takeStrings(zu_Env_getSesList()), (Strings{W("ONE = uno"), W("Two = a = b ")})) << "in its old place";
    EXPECT_EQ(zu_Env_setSes(W("one"), W("")), 0) << "removed";
    EXPECT_EQ(zu_Env_getSes(W("one")), nullptr);
    zu_Env_resetSesLocal();
    EXPECT_TRUE(takeStrings(zu_Env_getSesList()).empty());
    zu_Env_setSesApp();
}

TEST(Env, aSettingHidesThoseBehindIt)
{
    Configured world("[GENERAL]\nZU_T1=general\nZU_T2=general\n");
    world.setEnvironment("ZU_T1", "environment");
    world.setEnvironment("ZU_T3", "environment");
    zu_Env_setSes(W("ZU_T1"), W("session"));
    EXPECT_EQ(str(zu_Env_expandStr(W("%ZU_T1% %zu_t2% %ZU_T3% %ZU_T4%."))), W("session general environment ."));
    zu_Env_setSes(W("ZU_T1"), nullptr);
    zu_Host_setBuiltIn(0);
    zu_Global_destroyData();
    EXPECT_EQ(str(zu_Env_expandStr(W("%ZU_T1% %ZU_T2%"))), W("environment ")) << "without a host";
}

TEST(Env, expansionOfATextAndOfOneReference)
{
    const Configured world;
    zu_Env_setSes(W("A"), W("x%B%"));
    const struct
    {
        WideLiteral text, expanded;
    } rows[] = {
        {W("tail%"), W("tail")},        {W("%%A%%"), W("%A%")}, {W("%A"), W("x%B%")},
        {W("a%A%%A%"), W("ax%B%x%B%")}, {nullptr, W("")},
    };
    for (const auto& row : rows)
        EXPECT_EQ(str(zu_Env_expandStr(row.text)), row.expanded) << testing::PrintToString(str(row.text));
    zu_Env_setSes(W("Long"), Wide(400, W('y')).c_str());
    EXPECT_EQ(str(zu_Env_expandStr(W("%Long%%Long%"))), Wide(512, W('y'))) << "cut to the buffer";
    EXPECT_EQ(str(zu_Env_expandStr(zu_Env_expandStr(W("a%%b")))), W("a")) << "of the result of the call before";

    const std::tuple<const char*, WideLiteral, int32_t, WideLiteral, int32_t> references[] = {
        {"in the middle", W("ab%A%cd"), 2, W("x%B%"), 5},
        {"not at a sign", W("ab%A%"), 0, W(""), 0},
        {"beyond the end", W("%A%"), 9, W(""), 9},
    };
    for (const auto& [what, rowText, rowPosition, value, after] : references) {
        int32_t position = rowPosition;
        EXPECT_EQ(str(zu_Env_expandVar(rowText, &position)), value) << what;
        EXPECT_EQ(position, after) << what;
    }
}

TEST(Env, theConfigurationFile)
{
    const Configured world("[Group]\nKey=%ZU_T5%\\x\n");
    zu_Alias_put(W("ZU_T5"), W("alias"));
    EXPECT_EQ(str(zu_Env_getIni(W("group"), W("key"))), W("alias\\x"));
    EXPECT_EQ(zu_Env_setIni(W("Group"), W("New"), W("1")), 0);
    EXPECT_EQ(zu_FldList_count(Fields(zu_Env_getIniGroup(W("GROUP"))).get()), 2u);
    EXPECT_EQ(world.read(W("zu.ini")), "[Group]\nKey=%ZU_T5%\\x\nNew=1\n");
    const std::string said = printedBy([] { EXPECT_GT(zu_Env_displayIniError(W("G"), W("K")), 50); });
    EXPECT_NE(said.find("zu.ini\nGroup Name G\nVariable Name K"), std::string::npos);
}

TEST(Env, splitting)
{
    EXPECT_EQ(takeStrings(zu_Env_split(W(";a ;; b c; ;"))), (Strings{W("a"), W("b c")}));
    EXPECT_EQ(zu_Env_split(W(";; ;")), nullptr);
    EXPECT_TRUE(allNull({zu_Env_split(nullptr), zu_Env_getSes(nullptr), zu_Env_getWin(nullptr, W("S"), W("K"))}));
    EXPECT_EQ(zu_Env_setSes(nullptr, W("x")), 1);
}

} // namespace
