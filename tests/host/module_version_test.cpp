#include "host/modules.h"
#include "support/sandbox.h"
#include "zu_Global.h"
#include "zu_Sys.h"

namespace {

using namespace zutest;

TEST(ModuleVersion, theLibraryCarriesItsOwn)
{
    const Wide version = widen(zu_version()) + W(".0");
    EXPECT_EQ(str(zu_Global_getModuleFileVersion(W("zu"))), version);
    EXPECT_EQ(str(zu_Global_getModuleProductVersion(W("ZU.DLL"))), version);
    Wide padded;
    for (std::size_t start = 0; start < version.size(); start += 2)
        padded += W(".0") + version.substr(start, 1);
    EXPECT_EQ(str(zu_Sys_getVersionNumber(W("zu"))), padded.substr(1)) << "two digits a part";
}

TEST(ModuleVersion, namesOfALoadedModule)
{
    const LoadedModule module("zu_test_versioned");
    for (const Wide& name : {Wide(W("zu_test_versioned")), Wide(W("ZU_Test_Versioned.dll")), module.path()}) {
        EXPECT_EQ(str(zu_Sys_getVersionNumber(name.c_str())), W("08.11.09.245")) << "the product's, not the file's";
        EXPECT_EQ(str(zu_Global_getModuleFileVersion(name.c_str())), W("8.11.9.245"));
        EXPECT_EQ(str(zu_Global_getModuleProductVersion(name.c_str())), W("8.11.\t09.beta2")) << "only blanks go";
    }
}

TEST(ModuleVersion, onlyLoadedModulesHaveOne)
{
    const WideLiteral names[] = {nullptr,         W(""),     W("zu_test_versioned"), W("zu_test_versione"),
                                 W("Q:\\zu.dll"), W(".dll"), W("\xD800 \x416")};
    for (WideLiteral name : names) {
        EXPECT_EQ(zu_Sys_getVersionNumber(W("zu")) != nullptr, true);
        EXPECT_EQ(zu_Sys_getVersionNumber(name), nullptr) << "the last result is gone";
        zu_Global_getModuleFileVersion(W("zu"));
        EXPECT_EQ(str(zu_Global_getModuleFileVersion(name)), W(""));
        zu_Global_getModuleProductVersion(W("zu"));
        EXPECT_EQ(str(zu_Global_getModuleProductVersion(name)), W(""));
    }
}

#if !defined(_WIN32)
TEST(ModuleVersion, theUsersLanguageIsPreferred)
{
    const LoadedModule module("zu_test_versioned");
    const std::tuple<const char*, WideLiteral> rows[] = {
        {"de_DE.UTF-8", W("1.2.3.4")},
        {"de", W("1.2.3.4")},
        {"en_GB", W("8.11.9.245")},
        {"xx_YY.Z@", W("8.11.9.245")},
    };
    for (const auto& [locale, version] : rows) {
        Sandbox sandbox;
        sandbox.setEnvironment("LC_ALL", locale);
        EXPECT_EQ(str(zu_Global_getModuleFileVersion(W("zu_test_versioned"))), version) << locale;
    }
}

TEST(ModuleVersion, theProgramIsAModuleToo)
{
    const LoadedModule module("zu_test_versioned");
    const LoadedModule plain("zu_test_plain");
    EXPECT_EQ(zu_Sys_getVersionNumber(W("zu_test_plain")), nullptr);
    // It has no version, unlike a library of nearly its name.
    EXPECT_EQ(zu_Sys_getVersionNumber(W("zu_test_services")), nullptr);
    // The name that programs are linked with carries the numbers that tell breaks of the interface.
    Wide linked = W("libzu.so.") + widen(std::to_string(ZU_VERSION_MAJOR));
    if (ZU_VERSION_MAJOR == 0)
        linked += W(".") + widen(std::to_string(ZU_VERSION_MINOR));
    EXPECT_NE(zu_Sys_getVersionNumber(linked.c_str()), nullptr);
    EXPECT_EQ(zu_Sys_getVersionNumber((linked + W("0")).c_str()), nullptr);
}
#endif

} // namespace
