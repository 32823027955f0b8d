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
    const std::tuple<const char*, std::optional<std::string>, std::optional<std::string>, Wide> rows[] = {
        {"its own variable", utf8(sandbox.native(W("cfg"))), home, sandbox.path(W("cfg"))},
        {"relative", "no\\such", home, sandbox.path(W("no\\such"))},
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

TEST(BuiltInHost, keepsTheApplicationGroup)
{
    const auto application = host::makeBuiltInApplication();
    BSTR text = nullptr;
    for (const WideLiteral group : {W(""), W("Piping \u0416"), W("")}) {
        EXPECT_EQ(application->get_ApplicationGroup(&text), S_OK);
        EXPECT_EQ(takeBstr(text), group);
        const Bstr next(W("Piping \u0416"));
        EXPECT_EQ(application->put_ApplicationGroup(*group == 0 ? next.get() : nullptr), S_OK);
    }
    EXPECT_EQ(application->get_BaseSectionName(&text), S_OK);
    EXPECT_EQ(takeBstr(text), W("GENERAL"));
}

TEST(BuiltInHost, answersByTheRulesOfCom)
{
    const auto application = host::makeBuiltInApplication();
    HostTranslator* translator = reinterpret_cast<HostTranslator*>(1);
    EXPECT_EQ(application->get_Translator(&translator), S_OK);
    EXPECT_EQ(translator, nullptr);
    EXPECT_TRUE(allAre(E_POINTER, {application->get_IniCache(nullptr), application->get_ConfigurationDirectory(nullptr),
                                   host::makeBuiltInFileService()->FileExists(nullptr, nullptr)}));

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

TEST(BuiltInHost, knowsTheFilesOfTheSystem)
{
    Sandbox sandbox;
    sandbox.write(W("file"), "");
    const auto service = host::makeBuiltInFileService();
    const Bstr file(sandbox.path(W("file")));
    const Bstr folder(sandbox.path());
    const Bstr missing(sandbox.path(W("missing")));
    VARIANT_BOOL isFile = 1;
    VARIANT_BOOL isFolder = 1;
    for (BSTR path : {file.get(), folder.get(), missing.get(), BSTR(nullptr)}) {
        EXPECT_EQ(service->FileExists(path, &isFile), S_OK);
        EXPECT_EQ(service->FolderExists(path, &isFolder), S_OK);
        EXPECT_EQ(isFile, path == file.get() ? VARIANT_TRUE : VARIANT_FALSE);
        EXPECT_EQ(isFolder, path == folder.get() ? VARIANT_TRUE : VARIANT_FALSE);
    }
    EXPECT_EQ(service->Revalidate(missing.get()), S_OK);
}

} // namespace
