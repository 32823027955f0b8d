#include "host/holder.h"

#include "frame/host_services.h"
#include "host/builtin/builtin.h"
#include "host/builtin/classes.h"
#include "zu_Host.h"

#include <new>

namespace zu::host {
namespace {

// The order of the members is that of the requests, and in reverse that of the releases.
struct Services
{
    ComPtr<HostApplication> application;
    ComPtr<HostTranslator> translator;
    ComPtr<IniCache> iniCache;
    ComPtr<HostFileService> fileService;
    BuiltInClasses classes; // with the built-in application
};

Services* holder = nullptr;

template <class Service>
void fetch(ComPtr<Service>& service, HostApplication* application, HRESULT (HostApplication::*getter)(Service**))
{
    Service* found = nullptr;
    checkComCall((application->*getter)(&found), application);
    service = ComPtr<Service>(found);
}

Services requestServices()
{
    Services made;
    made.application = createComponent<HostApplication>(ZU_CLSID_HostApplication);
    if (!made.application && zu_Host_getBuiltIn() != 0) {
        made.application = makeBuiltInApplication();
        made.classes = BuiltInClasses::registered();
    }
    HostApplication* const application = made.application.get();
    if (application == nullptr)
        return made;
    try {
        fetch(made.translator, application, &HostApplication::get_Translator);
        fetch(made.iniCache, application, &HostApplication::get_IniCache);
        fetch(made.fileService, application, &HostApplication::get_FileService);
    } catch (const _com_error&) {
        // What was fetched before the failure stays, the rest is absent.
    }
    return made;
}

// The holder, made if it is absent; null when there is no memory for it, so that the next request tries again.
const Services* services()
{
    if (holder != nullptr)
        return holder;
    void* const block = zu_Malloc(sizeof(Services));
    if (block == nullptr)
        return nullptr;
    // It is there, empty, while the host is asked: the host may call back, even to end it.
    Services* const fresh = new (block) Services;
    holder = fresh;
    Services made = requestServices();
    if (holder == fresh)
        *holder = std::move(made);
    return holder;
}

template <class Service>
ComPtr<Service> service(ComPtr<Service> Services::*which)
{
    const Services* const held = services();
    return held == nullptr ? ComPtr<Service>() : held->*which;
}

} // namespace

ComPtr<HostApplication> application()
{
    return service(&Services::application);
}

ComPtr<HostTranslator> translator()
{
    return service(&Services::translator);
}

ComPtr<IniCache> iniCache()
{
    return service(&Services::iniCache);
}

ComPtr<HostFileService> fileService()
{
    return service(&Services::fileService);
}

ComPtr<HostField> newField()
{
    ComPtr<HostField> field = createComponent<HostField>(ZU_CLSID_HostField);
    return !field && zu_Host_getBuiltIn() != 0 ? makeBuiltInField() : field;
}

ComPtr<HostFieldCollection> newFieldCollection()
{
    ComPtr<HostFieldCollection> collection = createComponent<HostFieldCollection>(ZU_CLSID_HostFieldCollection);
    return !collection && zu_Host_getBuiltIn() != 0 ? makeBuiltInFieldCollection() : collection;
}

void destroyHolder()
{
    Services* const old = std::exchange(holder, nullptr);
    if (old == nullptr)
        return;
    old->~Services();
    zu_Free(old);
}

} // namespace zu::host
