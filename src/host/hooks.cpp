#include "frame/host_services.h"
#include "frame/text.h"
#include "zu_Drawing.h"
#include "zu_Kelvane.h"
#include "zu_Memory.h"
#include "zu_RM.h"

#include <utility>

using namespace zu;

namespace {

// Raw, because at the end of the process the hook that would release it may be gone.
zu_wchar* ignoredDrawing = nullptr;
uint8_t ignoreFlag = 0;

zu_FuncTrackCallback funcTrack = nullptr;

} // namespace

const zu_wchar* zu_Drawing_IgnoreSaveEvents(const zu_wchar* drawing, uint8_t ignore)
{
    // The name given may be the one held.
    zu_wchar* const copy = drawing == nullptr ? nullptr : text::duplicate(drawing);
    if (copy == nullptr)
        return nullptr;
    zu_Free(std::exchange(ignoredDrawing, copy));
    ignoreFlag = ignore;
    return ignoredDrawing;
}

uint8_t zu_Drawing_IsSaveIgnored(const zu_wchar* drawing)
{
    const bool isStored = drawing != nullptr && ignoredDrawing != nullptr &&
                          text::equalIgnoringCase(WideView(drawing), WideView(ignoredDrawing));
    return isStored ? ignoreFlag : uint8_t{0};
}

zu_wchar* zu_Kelvane_getBaseSectionName(void)
{
    static text::Buffer<ZU_KELVANE_NAME_SIZE> name;
    if (name.view().empty()) {
        if (const ComPtr<HostApplication> application = host::application()) {
            Bstr section;
            checkComCall(application->get_BaseSectionName(section.out()), application.get());
            name.set(section.view());
        }
    }
    return name.units;
}

zu_FuncTrackCallback zu_RM_setFuncTrackObject(zu_FuncTrackCallback callback)
{
    return funcTrack = callback;
}

int32_t zu_RM_callFuncTrackObject(void* a, void* b, void* c, void* d)
{
    return funcTrack == nullptr ? 0 : funcTrack(a, b, c, d);
}
