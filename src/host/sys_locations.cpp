#include "frame/format.h"
#include "frame/guard.h"
#include "frame/host_services.h"
#include "frame/text.h"
#include "platform/files.h"
#include "zu_Dir.h"
#include "zu_Env.h"
#include "zu_Sys.h"

using namespace zu;

namespace {

constexpr const zu_wchar* generalGroup = ZU_W("GENERAL");
constexpr int mostSessions = 1000;

// Copies a result into the caller's buffer, in lower case.
zu_wchar* publish(zu_wchar* buffer, WideView path)
{
    text::copyCut(buffer, ZU_SYS_PATH_SIZE, path);
    text::makeLower(buffer);
    return buffer;
}

// Fills a caller's buffer with what `path` gives; empty without memory.
template <class Path>
zu_wchar* fill(zu_wchar* buffer, Path path)
{
    if (buffer == nullptr)
        return nullptr;
    buffer[0] = 0;
    return guarded(buffer, [&] { return publish(buffer, path()); });
}

WideString asDirectory(WideString path)
{
    if (!path.empty() && path.back() != ZU_W('\\'))
        path += ZU_W('\\');
    return path;
}

// A setting of the configuration alone; empty when there is none.
WideString configured(const zu_wchar* key)
{
    return WideString(text::view(zu_Env_getIni(generalGroup, key)));
}

WideString sessionValue(const zu_wchar* key)
{
    return WideString(text::view(zu_Env_getSes(key)));
}

// Session, then configuration. What came from the configuration is remembered in the session when `remember` is set.
WideString setting(const zu_wchar* key, bool remember = false)
{
    WideString value = sessionValue(key);
    if (!value.empty())
        return value;
    value = configured(key);
    if (remember && !value.empty())
        zu_Env_setSes(key, value.c_str());
    return value;
}

bool exists(const WideString& path)
{
    return platform::hasAccess(path, platform::Access::exists);
}

WideString netDirectory()
{
    return asDirectory(setting(ZU_W("KV")));
}

WideString localDirectory()
{
    const WideString local = setting(ZU_W("KVWS"));
    return local.empty() ? netDirectory() : asDirectory(local);
}

// The number of the session's sub-directory: chosen once, the first that nothing has yet.
WideString sessionNumber(const WideString& directory)
{
    for (int number = 1; number <= mostSessions && sessionValue(ZU_W("KVSES")).empty(); ++number) {
        if (!exists(formatted(ZU_W("%s%d"), directory, number)))
            zu_Env_setSes(ZU_W("KVSES"), formatted(ZU_W("%d"), number).c_str());
    }
    return sessionValue(ZU_W("KVSES"));
}

WideString tempDirectory(bool perSession)
{
    const WideString named = setting(ZU_W("KVTMP"), true);
    WideString directory = named.empty() ? localDirectory() + ZU_W("kvtmp\\") : asDirectory(named);
    if (perSession)
        directory = asDirectory(directory + sessionNumber(directory));
    if (!exists(directory))
        zu_Dir_create(directory.c_str());
    return directory;
}

WideString specDirectory(WideView subDirectory)
{
    WideString directory = setting(ZU_W("KVSPECS"), true);
    if (directory.empty()) {
        directory = netDirectory() + ZU_W("specs");
        zu_Env_setSes(ZU_W("KVSPECS"), directory.c_str());
    }
    directory = asDirectory(std::move(directory));
    directory += subDirectory;
    return asDirectory(std::move(directory));
}

WideString binDirectory()
{
    for (const zu_wchar* key : {ZU_W("ZU_DEV_BIN_DIR"), ZU_W("ZU_BIN_DIR")}) {
        const WideString directory = configured(key);
        if (!directory.empty())
            return asDirectory(directory);
    }
    return netDirectory() + ZU_W("bin\\");
}

WideString versionBinName(WideView name, bool preferVersion)
{
    const WideString base = binDirectory();
    const WideString version = sessionValue(ZU_W("ACADVER"));
    const WideString directory = asDirectory(base + version);
    if (preferVersion && !name.empty()) {
        const WideString preferred = directory + WideString(name);
        return exists(preferred) ? preferred : base + WideString(name);
    }
    if (!exists(directory))
        zu_Dir_create(directory.c_str());
    return directory + WideString(name);
}

WideString cfgDirectory()
{
    const ComPtr<HostApplication> application = host::application();
    if (!application)
        return WideString();
    Bstr directory;
    checkComCall(application->get_ConfigurationDirectory(directory.out()), application.get());
    return asDirectory(WideString(directory.view()));
}

} // namespace

zu_wchar* zu_Sys_getNetDir(zu_wchar* buffer)
{
    return fill(buffer, netDirectory);
}

zu_wchar* zu_Sys_getNetName(zu_wchar* buffer, const zu_wchar* name)
{
    return fill(buffer, [&] { return netDirectory() += text::view(name); });
}

zu_wchar* zu_Sys_getLocalDir(zu_wchar* buffer)
{
    return fill(buffer, localDirectory);
}

zu_wchar* zu_Sys_getLocalName(zu_wchar* buffer, const zu_wchar* name)
{
    return fill(buffer, [&] { return localDirectory() += text::view(name); });
}

zu_wchar* zu_Sys_getTempDir(zu_wchar* buffer, int32_t perSession)
{
    return fill(buffer, [&] { return tempDirectory(perSession != 0); });
}

zu_wchar* zu_Sys_getTempName(zu_wchar* buffer, const zu_wchar* name, int32_t perSession)
{
    return fill(buffer, [&] { return tempDirectory(perSession != 0) += text::view(name); });
}

zu_wchar* zu_Sys_getSpecDir(zu_wchar* buffer, const zu_wchar* subDirectory)
{
    return fill(buffer, [&] { return specDirectory(text::view(subDirectory)); });
}

zu_wchar* zu_Sys_getSpecName(zu_wchar* buffer, const zu_wchar* subDirectory, const zu_wchar* name)
{
    return fill(buffer, [&] { return specDirectory(text::view(subDirectory)) += text::view(name); });
}

zu_wchar* zu_Sys_getBinDir(zu_wchar* buffer)
{
    return fill(buffer, binDirectory);
}

zu_wchar* zu_Sys_getBinName(zu_wchar* buffer, const zu_wchar* name)
{
    return fill(buffer, [&] { return binDirectory() += text::view(name); });
}

zu_wchar* zu_Sys_getVersionBinName(zu_wchar* buffer, const zu_wchar* name, int32_t preferVersion)
{
    return fill(buffer, [&] {
        WideString lowered(text::view(name));
        text::makeLower(lowered.data());
        return versionBinName(lowered, preferVersion != 0);
    });
}

zu_wchar* zu_Sys_getCfgDir(zu_wchar* buffer)
{
    return fill(buffer, cfgDirectory);
}

zu_wchar* zu_Sys_getCfgName(zu_wchar* buffer, const zu_wchar* name)
{
    return fill(buffer, [&] { return cfgDirectory() += text::view(name); });
}

int32_t zu_Sys_getApplicationGroup(zu_wchar* buffer, int32_t capacity)
{
    if (buffer == nullptr)
        return 0;
    buffer[0] = 0;
    const ComPtr<HostApplication> application = host::application();
    if (!application)
        return 0;
    Bstr group;
    checkComCall(application->get_ApplicationGroup(group.out()), application.get());
    if (group.view().empty())
        return 0;
    text::copyCut(buffer, static_cast<std::size_t>(std::max(capacity, 0)), group.view());
    return 1;
}

int32_t zu_Sys_setApplicationGroup(const zu_wchar* group)
{
    if (group == nullptr)
        return 0;
    const ComPtr<HostApplication> application = host::application();
    if (!application)
        return 0;
    return guarded(0, [&] {
        checkComCall(application->put_ApplicationGroup(Bstr(WideView(group)).get()), application.get());
        return 1;
    });
}

int32_t zu_Sys_getShowModeSelectGUI(void)
{
    return text::view(zu_Env_getIni(generalGroup, ZU_W("ShowModeSelectionGUI"))) == ZU_W("1");
}

int32_t zu_Sys_setShowModeSelectGUI(int32_t flag)
{
    return zu_Env_setIni(generalGroup, ZU_W("ShowModeSelectionGUI"), flag != 0 ? ZU_W("1") : ZU_W("0"));
}

int32_t zu_Sys_is64bitSystem(void)
{
    return 1;
}
