#include "files/file_service.h"
#include "frame/guard.h"
#include "frame/text.h"
#include "host/os_code.h"
#include "platform/shell.h"
#include "zu_Global.h"

using namespace zu;

namespace {

const platform::OsRecord& operatingSystem()
{
    static const platform::OsRecord record = platform::operatingSystem();
    return record;
}

} // namespace

int32_t zu_Global_isVista(void)
{
    return classify(operatingSystem()) == OsCode::windowsVista;
}

int32_t zu_Global_isOSWithUACSupport(void)
{
    return operatingSystem().family == platform::OsFamily::windowsNt && operatingSystem().major >= 6;
}

intptr_t zu_Global_openFileinNotepad(const zu_wchar* path)
{
    return guarded<intptr_t>(0, [&]() -> intptr_t {
        const WideView file = text::view(path);
        return !file.empty() && file_service::fileExists(file) ? platform::openInEditor(file) : 0;
    });
}
