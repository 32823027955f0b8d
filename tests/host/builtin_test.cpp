// The application object and the file service of the built-in host.
#include "host/builtin/builtin.h"
#include "support/host.h"
#include "support/memory.h"
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
    const struct
    {
        const char* what;
        std::optional<std::string> own;
        std::optional<std::string> users;
        Wide directory;
    } rows[] = {
        {"its own variable", utf8(sandbox.native(W("cfg"))), home, sandbox.path(W("cfg"))},
        {"with separators at the end", utf8(sandbox.native(W("cfg"))) + "//", home, sandbox.path(W("cfg"))},
        {"relative", "no\\such", home, sandbox.path(W("no\\such"))},
        {"of the user", none, home, sandbox.path(W("home\\zu"))},
        {"empty counts as not set", "", home, sandbox.path(W("home\\zu"))},
    };
    const auto application = host::makeBuiltInApplication();
    for (const auto& row : rows) {
        sandbox.setEnvironment("ZU_CFG_DIR", row.own);
        sandbox.setEnvironment(variable, row.users);
        BSTR directory = nullptr;
        EXPECT_EQ(application->get_ConfigurationDirectory(&directory), S_OK);
        EXPECT_EQ(takeBstr(directory), row.directory) << row.what;
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
    EXPECT_EQ(application->get_ConfigurationDirectory(nullptr), E_POINTER);
}

TEST(BuiltInHost, keepsTheApplicationGroup)
{
    const auto application = host::makeBuiltInApplication();
    BSTR text = nullptr;
    EXPECT_EQ(application->get_ApplicationGroup(&text), S_OK);
    EXPECT_EQ(takeBstr(text), W(""));
    EXPECT_EQ(application->put_ApplicationGroup(Bstr(W("Piping \u0416")).get()), S_OK);
    EXPECT_EQ(application->get_ApplicationGroup(&text), S_OK);
    EXPECT_EQ(takeBstr(text), W("Piping \u0416"));
    EXPECT_EQ(application->put_ApplicationGroup(nullptr), S_OK);
    EXPECT_EQ(application->get_ApplicationGroup(&text), S_OK);
    EXPECT_EQ(takeBstr(text), W(""));
    EXPECT_EQ(application->get_BaseSectionName(&text), S_OK);
    EXPECT_EQ(takeBstr(text), W("GENERAL"));
}

TEST(BuiltInHost, answersByTheRulesOfCom)
{
    const auto application = host::makeBuiltInApplication();
    HostTranslator* translator = reinterpret_cast<HostTranslator*>(1);
    EXPECT_EQ(application->get_Translator(&translator), S_OK);
    EXPECT_EQ(translator, nullptr);
    EXPECT_EQ(application->get_IniCache(nullptr), E_POINTER);

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
    UINT count = 9;
    EXPECT_EQ(service->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0u);
}

TEST(BuiltInHost, knowsTheFilesOfTheSystem)
{
    Sandbox sandbox;
    sandbox.write(W("file"), "");
    const auto service = host::makeBuiltInFileService();
    const Bstr file(sandbox.path(W("file")));
    const Bstr folder(sandbox.path());
    const Bstr missing(sandbox.path(W("missing")));
    VARIANT_BOOL answer = 1;
    const auto isFile = [&](BSTR path) {
        return service->FileExists(path, &answer) == S_OK && answer == VARIANT_TRUE;
    };
    const auto isFolder = [&](BSTR path) {
        return service->FolderExists(path, &answer) == S_OK && answer == VARIANT_TRUE;
    };
    EXPECT_TRUE(isFile(file.get()));
    EXPECT_FALSE(isFile(folder.get()));
    EXPECT_FALSE(isFile(missing.get()));
    EXPECT_FALSE(isFile(nullptr));
    EXPECT_TRUE(isFolder(folder.get()));
    EXPECT_FALSE(isFolder(file.get()));
    EXPECT_FALSE(isFolder(nullptr));
    EXPECT_EQ(service->FileExists(file.get(), nullptr), E_POINTER);
    EXPECT_EQ(service->Revalidate(missing.get()), S_OK);
}

} // namespace
