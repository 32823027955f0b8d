// The application object and the file service of the built-in host.
#include "host/builtin/builtin.h"
#include "support/host.h"
#include "support/sandbox.h"

namespace {

using namespace zutest;
using namespace zu;

std::string utf8(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

TEST(BuiltInHost, findsTheConfigurationDirectory)
{
    Sandbox sandbox;
    std::filesystem::create_directory(sandbox.native(W("cfg")));
    std::filesystem::current_path(sandbox.native());
#if defined(_WIN32)
    const std::string variable = "APPDATA";
#else
    const std::string variable = "XDG_CONFIG_HOME";
#endif
    const std::string home = utf8(sandbox.native(W("home")));
    const std::optional<std::string> none;
    const std::tuple<const char*, std::optional<std::string>, std::optional<std::string>, Wide> rows[] = {
        {"its own variable", utf8(sandbox.native(W("cfg"))), home, sandbox.path(W("cfg"))},
        {"of the user", none, home, sandbox.path(W("home\\zu"))},
        {"empty counts as not set", "", home, sandbox.path(W("home\\zu"))},
    };
    const auto application = host::makeBuiltInApplication();
    for (const auto& [what, own, users, rowDirectory] : rows) {
        sandbox.setEnvironment("ZU_CFG_DIR", own);
        sandbox.setEnvironment(variable, users);
        BSTR directory = nullptr;
        EXPECT_EQ(application->get_ConfigurationDirectory(&directory), S_OK);
        EXPECT_EQ(takeBstr(directory), rowDirectory) << what;
    }
    sandbox.setEnvironment("ZU_CFG_DIR", none);
    BSTR directory = nullptr;
#if !defined(_WIN32)
    for (const char* useless : {"", "relative"}) {
        sandbox.setEnvironment(variable, useless);
        sandbox.setEnvironment("HOME", home);
        EXPECT_EQ(application->get_ConfigurationDirectory(&directory), S_OK);
        EXPECT_EQ(takeBstr(directory), sandbox.path(W("home\\.config\\zu"))) << useless;
    }
    sandbox.setEnvironment("HOME", none);
#endif
    sandbox.setEnvironment(variable, none);
    EXPECT_EQ(application->get_ConfigurationDirectory(&directory), S_OK);
    EXPECT_EQ(takeBstr(directory), W(""));
}

TEST(BuiltInHost, answersByTheRulesOfCom)
{
    const auto application = host::makeBuiltInApplication();
    HostTranslator* translator = reinterpret_cast<HostTranslator*>(1);
    EXPECT_EQ(application->get_Translator(&translator), S_OK);
    EXPECT_EQ(translator, nullptr);

    ComPtr<HostFileService> service;
    ASSERT_EQ(application->get_FileService(service.out()), S_OK);
    void* object = nullptr;
    EXPECT_EQ(service->QueryInterface(ZU_IID_IniCache, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    for (const IID* iid : {&IID_IUnknown, &IID_IDispatch, &ZU_IID_HostFileService}) {
        ASSERT_EQ(service->QueryInterface(*iid, &object), S_OK);
        EXPECT_EQ(object, service.get());
        service->Release();
    }
}

} // namespace
