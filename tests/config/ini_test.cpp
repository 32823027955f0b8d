#include "support/configured.h"
#include "support/lists.h"
#include "support/memory.h"
#include "zu_Alias.h"
#include "zu_Ini.h"

namespace {

using namespace zutest;

using Pairs = std::vector<std::pair<Wide, Wide>>;
using Strings = std::vector<Wide>;

Pairs takePairs(FldList* list)
{
    Pairs pairs;
    for (const LnkNode* node = list == nullptr ? nullptr : list->first; node != nullptr; node = node->next) {
        const auto* const field = static_cast<const FldNode*>(node->data);
        pairs.emplace_back(str(field->name), str(field->value.text));
    }
    if (list == nullptr)
        pairs.emplace_back(W("<no list>"), W(""));
    zu_FldList_destroy(list);
    return pairs;
}

const zu_wchar* const end = nullptr;

TEST(Ini, singleValues)
{
    const Configured world(
        "; comment\n[ One ]\nKey = value  \nBlank=   \nAlias=%ZU_I1%-x\nNo sign\n[Two]\nkey==  = deep\n");
    zu_Alias_put(W("ZU_I1"), W("expanded"));
    const Wide file = world.file();
    const std::tuple<WideLiteral, WideLiteral, WideLiteral> rows[] = {
        {W("one"), W("KEY"), W("value")},        {W("ONE"), W("blank"), W("<null>")},
        {W("One"), W("Alias"), W("expanded-x")}, {W("One"), W("No sign"), W("<null>")},
        {W("two"), W("key"), W("deep")},         {nullptr, nullptr, W("<null>")},
    };
    for (const auto& [group, key, value] : rows)
        EXPECT_EQ(str(zu_Ini_get(file.c_str(), group, key)), value) << testing::PrintToString(str(key));
    EXPECT_EQ(str(zu_Ini_getAbsolute(file.c_str(), W("One"), W("Alias"))), W("%ZU_I1%-x"));
}

TEST(Ini, valuesAreCut)
{
    const Configured world("[G]\nK=" + std::string(700, 'v') + "\nA=%ZU_I2%%ZU_I2%%ZU_I2%\n");
    zu_Alias_put(W("ZU_I2"), Wide(250, W('a')).c_str());
    EXPECT_EQ(str(zu_Ini_get(world.file().c_str(), W("G"), W("K"))), Wide(512, W('v')));
    EXPECT_EQ(str(zu_Ini_get(world.file().c_str(), W("G"), W("A"))), Wide(512, W('a'))) << "after expansion too";
    EXPECT_EQ(str(zu_Ini_getValue(world.file().c_str(), W("G"), W("K"), 0, 3)), W("vvv"));
    EXPECT_EQ(zu_Ini_getValue(world.file().c_str(), W("G"), W("K"), 0, -3), nullptr);
}

TEST(Ini, writingAndVerifying)
{
    const Configured world("[G]\nK=old\n");
    int32_t status = 7;
    EXPECT_EQ(zu_Ini_setAndVerify(world.file().c_str(), W("g"), W("k"), W("New Value"), &status), 1);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(world.read(W("zu.ini")), "[G]\nK=New Value\n");
    EXPECT_EQ(zu_Ini_setAndVerify(world.file().c_str(), W("H"), W("k"), W(""), nullptr), 0) << "empty reads as none";
}

TEST(Ini, groupsAsFieldLists)
{
    const Configured world("[Full]\nb=1\nA=%ZU_I3%\nEmpty=\n[Hollow]\nx=\n[None]\n");
    zu_Alias_put(W("ZU_I3"), W("al"));
    const Wide file = world.file();
    EXPECT_EQ(takePairs(zu_Ini_getGroup(file.c_str(), W("FULL"))), (Pairs{{W("B"), W("1")}, {W("A"), W("al")}}));
    EXPECT_EQ(takePairs(zu_Ini_getGroupWithNulls(file.c_str(), W("full"))),
              (Pairs{{W("B"), W("1")}, {W("A"), W("al")}, {W("EMPTY"), W("")}}));
    EXPECT_EQ(takePairs(zu_Ini_getGroupAbsolute(file.c_str(), W("full"))),
              (Pairs{{W("B"), W("1")}, {W("A"), W("%ZU_I3%")}}));
    EXPECT_EQ(takePairs(zu_Ini_getGroupValues(file.c_str(), W("hollow"), 1)), Pairs{}) << "an empty list";
    EXPECT_EQ(zu_Ini_getGroup(file.c_str(), W("none")), nullptr);
}

TEST(Ini, writingGroups)
{
    const Configured world("[A]\n; lost\nold=1\n[B]\nx=1\n");
    const Wide file = world.file();
    const Fields list(zu_FldList_create(W("t"), ZU_FLD_CHAR, W("x"), W("n"), ZU_FLD_REAL, 2.5, end));
    const Pairs written{{W("T"), W("x")}, {W("N"), W("2.500000")}};
    EXPECT_EQ(zu_Ini_updateGroup(file.c_str(), W("a"), list.get()), 1);
    EXPECT_EQ(takePairs(zu_Ini_getGroup(file.c_str(), W("A"))), written);
    EXPECT_EQ(zu_Ini_setGroupEx(file.c_str(), W("B"), list.get()), 1);
    EXPECT_EQ(takePairs(zu_Ini_getGroup(file.c_str(), W("B"))), written);
    EXPECT_EQ(zu_Ini_addGroup(file.c_str(), W("b")), 0) << "it exists";
    EXPECT_EQ(zu_Ini_addGroup(file.c_str(), W("D")), 1);
    EXPECT_EQ(zu_Ini_setGroup(file.c_str(), W("D"), list.get(), 0), -3) << "the last field's status, literally";
    EXPECT_EQ(takePairs(zu_Ini_getGroup(file.c_str(), W("D"))), written);
    EXPECT_EQ(zu_Ini_removeGroup(file.c_str(), W("A")), 1);
    EXPECT_EQ(zu_Ini_getGroup(file.c_str(), W("A")), nullptr);
    EXPECT_EQ(zu_Ini_setGroup(world.path(W("missing.ini")).c_str(), W("G"), list.get(), 0), 0) << "no write access";
}

TEST(Ini, groupNamesAndSuffixes)
{
    const Configured world("[PIPE.1]\n[valve.9]\n[pipe.7]\n[PIPE.x]\n[Pipe]\n");
    const Wide file = world.file();
    EXPECT_EQ(takeStrings(zu_Ini_findPrefixGroups(file.c_str(), W("pipe."))),
              (Strings{W("PIPE.1"), W("pipe.7"), W("PIPE.x")}));
    EXPECT_EQ(str(zu_Ini_getNextIncrSuffix(file.c_str(), W("PIPE."))), W("8"));
    EXPECT_EQ(str(zu_Ini_getGroupNameSuffix(W("A.B.C"))), W("B.C"));
}

TEST(Ini, linesOfAGroup)
{
    Configured world;
    world.write(W("zu.ini"), "before=0\n  [ G ] tail\n\n; note\n  k = v  \n\t\nempty=\n=nokey\n" +
                                 std::string(2000, 'l') + "=1\n[H]\nz=1");
    const Wide file = world.file();
    EXPECT_EQ(takeStrings(zu_Ini_getGroupLines(file.c_str(), W("g"), 1)),
              (Strings{W("; note"), W("k = v  "), W("empty="), W("=nokey"), Wide(1024, W('l'))}));
    EXPECT_EQ(takePairs(zu_Ini_getGroupItems(file.c_str(), W("G"))), (Pairs{{W("K"), W("v")}}));
    EXPECT_EQ(takePairs(zu_Ini_getGroupItems(file.c_str(), W("h"))), (Pairs{{W("Z"), W("1")}})) << "no final line end";

    world.write(W("marked.ini"), "\xEF\xBB\xBF[G]\r\nk=\xC3\xA4\r\n");
    EXPECT_EQ(takePairs(zu_Ini_getGroupItems(world.path(W("marked.ini")).c_str(), W("G"))),
              (Pairs{{W("K"), W("\u00e4")}}));
}

TEST(Ini, rewritingAGroupInTheFile)
{
    const Configured world;
    const Fields list(zu_FldList_create(W("a"), ZU_FLD_CHAR, W("1"), W("b"), ZU_FLD_INT, 2, end));
    const std::string members = "A=1\nB=2\n";
    const std::string longLine(3000, 'x');
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"in the middle", "; top\n[X]\nx=1\n [ g ]\nold=1\n; gone\n\n[Y]\ny\n",
         "; top\n[X]\nx=1\n [ g ]\n" + members + "\n[Y]\ny\n"},
        {"without a final line end", "[X]\nx=1", "[X]\nx=1\n[G]\n" + members + "\n"},
        {"long lines and odd bytes", longLine + "\n\xFF\x01=\n[G]\n[X]\n",
         longLine + "\n\xFF\x01=\n[G]\n" + members + "\n[X]\n"},
        {"line ends of the file", "[X]\r\nx=1\r\n[G]\r\nold=1\r\n", "[X]\r\nx=1\r\n[G]\r\nA=1\r\nB=2\r\n\r\n"},
    };
    for (const auto& [what, rowBefore, after] : rows) {
        world.write(W("f.ini"), rowBefore);
        EXPECT_EQ(zu_Ini_setGroupItems(world.path(W("f.ini")).c_str(), W("G"), list.get()), 1) << what;
        EXPECT_EQ(world.read(W("f.ini")), after) << what;
    }
    // Without a line end to go by, the lines end as the system's text files do.
    EXPECT_EQ(zu_Ini_setGroupItems(world.path(W("new.ini")).c_str(), W("G"), list.get()), 1);
    std::string made = world.read(W("new.ini"));
    std::erase(made, '\r');
    EXPECT_EQ(made, "[G]\n" + members + "\n");
    EXPECT_FALSE(world.exists(W("zu_tmp.ini")));

    EXPECT_TRUE(allAre(0, {zu_Ini_setGroupItems(nullptr, W("G"), list.get()), zu_Ini_findGroup(nullptr, W("b")),
                           zu_Ini_setGroupItems(world.path(W("f.ini")).c_str(), W("G"), nullptr)}));
    EXPECT_TRUE(allNull({zu_Ini_get(nullptr, W("One"), W("Key")), zu_Ini_getGroupNameSuffix(nullptr)}));
    std::filesystem::create_directory(world.native(W("zu_tmp.ini")));
    const std::string before = world.read(W("f.ini"));
    EXPECT_EQ(zu_Ini_setGroupItems(world.path(W("f.ini")).c_str(), W("H"), list.get()), 0) << "no temporary file";
    EXPECT_EQ(world.read(W("f.ini")), before);
}

TEST(Ini, aReadOnlyFileStays)
{
    const Configured world("[G]\nk=1\n");
    namespace fs = std::filesystem;
    fs::permissions(world.native(W("zu.ini")),
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    const Fields list(zu_FldList_create(W("k"), ZU_FLD_INT, 2, end));
    EXPECT_EQ(zu_Ini_setGroupItems(world.file().c_str(), W("G"), list.get()), 0);
    EXPECT_EQ(zu_Ini_set(world.file().c_str(), W("G"), W("k"), W("2")), 1);
    EXPECT_EQ(world.read(W("zu.ini")), "[G]\nk=1\n");
    fs::permissions(world.native(W("zu.ini")), fs::perms::owner_write, fs::perm_options::add);
}

TEST(Ini, theLineParsers)
{
    const std::tuple<WideLiteral, WideLiteral, WideLiteral> members[] = {
        {W("k = = = v=w"), W("k"), W("v=w")},
        {W("no sign "), W("no sign"), W("")},
        {W("k=\x20\t=\xA0v w"), W("k"), W("v w")},
        {nullptr, W(""), W("")},
    };
    for (const auto& [line, rowKey, rowValue] : members) {
        WideBuffer<64> key(W("old"));
        WideBuffer<64> value(W("old"));
        zu_Ini_parse(line, key, value);
        EXPECT_EQ(key.str(), rowKey);
        EXPECT_EQ(value.str(), rowValue);
    }
    WideBuffer<64> both(W(" key = value "));
    zu_Ini_parse(both, nullptr, both);
    EXPECT_EQ(both.str(), W("value"));

    WideBuffer<64> header(W("  [ A B ] c"));
    WideBuffer<64> name(W("old"));
    EXPECT_EQ(zu_Ini_getGroupName(header, name), 1);
    EXPECT_EQ(name.str(), W("A B"));
    EXPECT_EQ(header.str(), W("[ A B ] c")) << "leading white space is removed";
    header = W("; [x]");
    EXPECT_EQ(zu_Ini_getGroupName(header, name), 0);
    EXPECT_EQ(name.str(), W(""));
}

TEST(Ini, shortageOfMemory)
{
    const Configured world("[G]\nk=1\nl=2\n");
    const Wide file = world.file();
    zu_Ini_get(file.c_str(), W("G"), W("k")); // the holder outlives the sweep
    const Fields list(zu_FldList_create(W("k"), ZU_FLD_INT, 3, end));
    int32_t result = 0;
    sweepAllocations([&] { result = zu_Ini_setGroupItems(file.c_str(), W("G"), list.get()); },
                     [&] {
                         EXPECT_EQ(result, 0);
                         EXPECT_EQ(world.read(W("zu.ini")), "[G]\nk=1\nl=2\n");
                     });
}

TEST(Ini, withoutACache)
{
    const Configured world("[G]\nk=1\n");
    zu_Host_setBuiltIn(0);
    zu_Global_destroyData();
    const Wide file = world.file();
    const Fields list(zu_FldList_create(W("k"), ZU_FLD_INT, 3, end));
    EXPECT_EQ(zu_Ini_get(file.c_str(), W("G"), W("k")), nullptr);
    EXPECT_EQ(zu_Ini_set(file.c_str(), W("G"), W("k"), W("2")), 1);
    EXPECT_TRUE(allNull({zu_Ini_getGroup(file.c_str(), W("G")), zu_Ini_findAllGroups(file.c_str())}));
    EXPECT_TRUE(allAre(0, {zu_Ini_setGroupEx(file.c_str(), W("G"), list.get()),
                           zu_Ini_updateGroup(file.c_str(), W("G"), list.get()), zu_Ini_addGroup(file.c_str(), W("H")),
                           zu_Ini_removeGroup(file.c_str(), W("G"))}));
    zu_Ini_reload(file.c_str());
    EXPECT_EQ(takePairs(zu_Ini_getGroupItems(file.c_str(), W("G"))), (Pairs{{W("K"), W("1")}}))
        << "the direct way works";
}

} // namespace
