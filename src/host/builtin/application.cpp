#include "host/builtin/builtin.h"
#include "host/builtin/com_object.h"

namespace zu::host {
namespace {

class Application final : public ComObject<HostApplication>
{
public:
    HRESULT get_Translator(HostTranslator** service) override
    {
        if (service == nullptr)
            return E_POINTER;
        *service = nullptr; // there is none
        return S_OK;
    }
    HRESULT get_IniCache(IniCache** service) override { return giveService(service, iniCache); }
    HRESULT get_FileService(HostFileService** service) override { return giveService(service, fileService); }

    HRESULT get_ConfigurationDirectory(BSTR* directory) override
    {
        if (directory == nullptr)
            return E_POINTER;
        *directory = nullptr;
        return guarded(E_OUTOFMEMORY, [&] { return give(directory, configurationDirectory()); });
    }

    HRESULT get_ApplicationGroup(BSTR* name) override { return give(name, group); }
    HRESULT put_ApplicationGroup(BSTR name) override
    {
        return guarded(E_OUTOFMEMORY, [&] {
            group = viewOf(name);
            return S_OK;
        });
    }

    // The group of the library's own configuration file.
    HRESULT get_BaseSectionName(BSTR* name) override { return give(name, ZU_W("GENERAL")); }

private:
    template <class Service>
    static HRESULT giveService(Service** out, const ComPtr<Service>& service)
    {
        if (out == nullptr)
            return E_POINTER;
        *out = ComPtr<Service>(service).release();
        return S_OK;
    }

    ComPtr<IniCache> iniCache = makeBuiltInIniCache();
    ComPtr<HostFileService> fileService = makeBuiltInFileService();
    WideString group;
};

} // namespace

ComPtr<HostApplication> makeBuiltInApplication()
{
    return makeObject<Application, HostApplication>();
}

} // namespace zu::host
