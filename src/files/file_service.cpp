#include "files/file_service.h"

#include "frame/host_services.h"

namespace zu::file_service {
namespace {

bool ask(WideView path, HRESULT (HostFileService::*question)(BSTR, VARIANT_BOOL*))
{
    const ComPtr<HostFileService> service = host::fileService();
    if (!service)
        return false;
    const Bstr text(path);
    VARIANT_BOOL exists = VARIANT_FALSE;
    checkComCall((service.get()->*question)(text.get(), &exists), service.get());
    return exists != VARIANT_FALSE;
}

} // namespace

bool fileExists(WideView path)
{
    return ask(path, &HostFileService::FileExists);
}

bool folderExists(WideView path)
{
    return ask(path, &HostFileService::FolderExists);
}

void revalidate(WideView path)
{
    const ComPtr<HostFileService> service = host::fileService();
    if (!service)
        return;
    const Bstr text(path);
    checkComCall(service->Revalidate(text.get()), service.get());
}

} // namespace zu::file_service
