// INI files, session variables and aliases of the C++ interface.
#include "support/configured.h"
#include "support/host.h"
#include "support/memory.h"
#include "zu.hpp"

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
    EXPECT_EQ(file.next_suffix("PIPE"), W("5"));
    EXPECT_EQ(file.groups("PIPE").size(), 2u);

    EXPECT_TRUE(file.set("PIPE.1", "SIZE", "114.3"));
    EXPECT_TRUE(file.set_verified("PIPE.1", "SIZE", "88.9"));
    EXPECT_FALSE(file.set_verified("PIPE.1", "SIZE", "")) << "reads as none";
    EXPECT_EQ(file.group("PIPE.4").get<std::string>("tag").value(), "b");
    EXPECT_FALSE(file.group("NONE"));
    EXPECT_TRUE(file.replace_group("PIPE.4", zu::fields::of("A", 1)));
    EXPECT_EQ(file.get("PIPE.4", "A"), W("1"s));
    EXPECT_TRUE(file.update_group("NEW", zu::fields::of("B", "x")));
    EXPECT_FALSE(file.add_group("NEW")) << "exists already";
    EXPECT_TRUE(file.remove_group("NEW"));
    EXPECT_TRUE(zu::alias::remove("ROOT"));
}

TEST(CppIni, errorsOfTheHostPassThrough)
{
    TestHost host;
    const zu::ini file(W("C:\\f.ini"));
    host.iniValue(W("C:\\f.ini"), W("G"), W("K")) = W("value");
    EXPECT_EQ(file.get("G", "K"), W("value"s));
    host.fail("IniCache.SetValue", E_ACCESSDENIED);
    const auto before = liveBlocks();
    EXPECT_THROW(
        {
            const auto scratch = zu::string_list::of("released", "on the way");
            static_cast<void>(file.set("G", "K", "a text of some length"));
        },
        _com_error);
    EXPECT_EQ(liveBlocks(), before);
    host.fail("FileService.FileExists", E_ACCESSDENIED);
    EXPECT_THROW(static_cast<void>(zu::files::exists("C:\\f.ini")), _com_error);
}

TEST(CppSettings, sessionConfigurationAndAliases)
{
    const Configured sandbox("[GENERAL]\nKV = net\n");
    EXPECT_EQ(zu::session::get("A"), std::nullopt);
    zu::session::set("A", u8"Öl");
    EXPECT_EQ(zu::session::get("a"), W("\u00D6l"s));
    EXPECT_EQ(zu::expand("100%% %A% %nothing%!"), W("100% \u00D6l !"));
    EXPECT_TRUE(zu::session::remove("A"));
    EXPECT_FALSE(zu::session::remove("A"));
    EXPECT_EQ(zu::config::get("GENERAL", "KV"), W("net"s));
    EXPECT_TRUE(zu::config::set("GENERAL", "RUNS", "1"));
    EXPECT_EQ(*zu::config::group("GENERAL").get<std::string>("runs"), "1");
    EXPECT_TRUE(zu::alias::set("CPP", "x"));
    EXPECT_FALSE(zu::alias::set("CPP", nullptr));
    EXPECT_EQ(zu::alias::get("cpp"), W("x"s)) << "null does not delete";
    EXPECT_TRUE(zu::alias::remove("CPP"));
    EXPECT_EQ(zu::alias::get("CPP"), std::nullopt);
}

} // namespace
