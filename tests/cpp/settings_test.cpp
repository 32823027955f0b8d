// INI files, session variables and aliases of the C++ interface.
#include "support/configured.h"
#include "support/host.h"
#include "support/memory.h"
#include "zu.hpp"

#include <functional>

namespace {

using namespace zutest;
using namespace std::string_literals;

TEST(CppIni, readsAndWrites)
{
    const Configured sandbox("[PIPE.1]\nTAG = %ROOT%-1\nEMPTY =\n[PIPE.4]\nTAG = b\n[OTHER]\n");
    const zu::ini file(sandbox.file());
    EXPECT_TRUE(zu::alias::set("ROOT", "P"));
    EXPECT_EQ(file.get("PIPE.1", "TAG"), W("P-1"s));
    EXPECT_EQ(file.get("PIPE.1", "TAG", zu::references::keep), W("%ROOT%-1"s));
    EXPECT_EQ(file.get("PIPE.1", "EMPTY"), std::nullopt);
    EXPECT_EQ(file.get("PIPE.1", "NONE"), std::nullopt);
    EXPECT_EQ(file.next_suffix("PIPE"), W("5"));
    EXPECT_EQ(file.groups("PIPE").size(), 2u);
    EXPECT_EQ(file.groups().size(), 3u);
    EXPECT_FALSE(file.groups("VALVE"));

    EXPECT_TRUE(file.set("PIPE.1", "SIZE", "114.3"));
    EXPECT_TRUE(file.set_verified("PIPE.1", "SIZE", "88.9"));
    EXPECT_FALSE(file.set_verified("PIPE.1", "SIZE", "")) << "reads as none";
    const auto group = file.group("PIPE.4");
    ASSERT_TRUE(group);
    EXPECT_EQ(group.get<std::string>("tag").value(), "b");
    EXPECT_EQ(*file.group("PIPE.1", zu::references::keep).get<std::string>("TAG"), "%ROOT%-1");
    EXPECT_FALSE(file.group("NONE"));

    EXPECT_TRUE(file.replace_group("PIPE.4", zu::fields::of("A", 1)));
    EXPECT_EQ(file.get("PIPE.4", "TAG"), std::nullopt);
    EXPECT_EQ(file.get("PIPE.4", "A"), W("1"s));
    EXPECT_TRUE(file.update_group("NEW", zu::fields::of("B", "x")));
    EXPECT_EQ(file.get("NEW", "B"), W("x"s));
    EXPECT_FALSE(file.add_group("NEW")) << "exists already";
    EXPECT_TRUE(file.add_group("NEWER"));
    EXPECT_TRUE(file.remove_group("NEW"));
    EXPECT_FALSE(file.group("NEW"));
    EXPECT_TRUE(zu::alias::remove("ROOT"));
}

TEST(CppIni, pastTheCache)
{
    const Sandbox sandbox;
    const zu::ini file(sandbox.path(W("a.ini")));
    EXPECT_TRUE(file.write_group_in_file("G", zu::fields::of("A", "x", "B", 2)));
    EXPECT_EQ(*file.group_in_file("G").get<std::string>("b"), "2");
    EXPECT_FALSE(file.group_in_file("H"));
    EXPECT_FALSE(zu::ini(sandbox.path(W("none.ini"))).group_in_file("G"));
    EXPECT_EQ(zu::ini(sandbox.path(W("none.ini"))).path(), sandbox.path(W("none.ini")));
}

// Without a host nothing can be read or written.
TEST(CppIni, withoutAHost)
{
    const Sandbox sandbox;
    const std::int32_t before = zu_Host_setBuiltIn(0);
    zu_Global_destroyData();
    const zu::ini file(sandbox.path(W("a.ini")));
    EXPECT_FALSE(file.set("G", "K", "x"));
    EXPECT_EQ(file.get("G", "K"), std::nullopt);
    zu_Host_setBuiltIn(before);
    zu_Global_destroyData();
}

TEST(CppIni, errorsOfTheHostPassThrough)
{
    TestHost host;
    const zu::ini file(W("C:\\f.ini"));
    host.iniValue(W("C:\\f.ini"), W("G"), W("K")) = W("value");
    const auto list = zu::fields::of("K", "x");
    EXPECT_EQ(file.get("G", "K"), W("value"s));
    const struct
    {
        const char* method;
        std::function<void()> call;
    } rows[] = {
        {"IniCache.GetValue",
         [&] {
             static_cast<void>(file.get("G", "K"));
         }},
        {"IniCache.SetValue",
         [&] {
             static_cast<void>(file.set("G", "K", "a text of some length"));
         }},
        {"IniCache.GetGroup",
         [&] {
             static_cast<void>(file.group("G"));
         }},
        {"IniCache.RemoveGroup",
         [&] {
             static_cast<void>(file.replace_group("G", zu::fields::of("K", "y")));
         }},
        {"FileService.FileExists",
         [&] {
             static_cast<void>(zu::files::exists("C:\\f.ini"));
         }},
    };
    for (const auto& row : rows) {
        host.fail(row.method, E_ACCESSDENIED);
        const auto before = liveBlocks();
        EXPECT_THROW(
            {
                const auto scratch = zu::string_list::of("released", "on the way");
                row.call();
            },
            _com_error)
            << row.method;
        EXPECT_EQ(liveBlocks(), before) << row.method;
        host.fail(row.method, S_OK);
    }
    EXPECT_EQ(file.get("G", "K"), W("value"s));
}

TEST(CppSettings, session)
{
    const Configured sandbox;
    EXPECT_EQ(zu::session::get("A"), std::nullopt);
    zu::session::set("A", u8"Öl");
    EXPECT_EQ(zu::session::get("A"), W("\u00D6l"s));
    zu::session::set("a", "oil");
    EXPECT_EQ(zu::session::get("A"), W("oil"s));
    EXPECT_EQ(zu::session::all().size(), 1u);
    EXPECT_EQ(zu::expand("100%% %A% %nothing%!"), W("100% oil !"));
    EXPECT_TRUE(zu::session::remove("A"));
    EXPECT_FALSE(zu::session::remove("A"));
    zu::session::set("B", "x");
    zu::session::clear();
    EXPECT_EQ(zu::session::get("B"), std::nullopt);
}

TEST(CppSettings, configurationFile)
{
    const Configured sandbox("[GENERAL]\nKV = net\n");
    EXPECT_EQ(zu::config::get("GENERAL", "KV"), W("net"s));
    EXPECT_EQ(zu::config::get("GENERAL", "NONE"), std::nullopt);
    EXPECT_TRUE(zu::config::set("GENERAL", "RUNS", "1"));
    EXPECT_EQ(*zu::config::group("GENERAL").get<std::string>("runs"), "1");
    EXPECT_FALSE(zu::config::group("NONE"));
}

TEST(CppSettings, aliases)
{
    EXPECT_TRUE(zu::alias::set("CPP", "x"));
    EXPECT_EQ(zu::alias::get("cpp"), W("x"s));
    EXPECT_FALSE(zu::alias::set("CPP", nullptr));
    EXPECT_EQ(zu::alias::get("cpp"), W("x"s)) << "null does not delete";
    EXPECT_TRUE(zu::alias::remove("CPP"));
    EXPECT_FALSE(zu::alias::remove("CPP"));
    EXPECT_EQ(zu::alias::get("CPP"), std::nullopt);
}

} // namespace
