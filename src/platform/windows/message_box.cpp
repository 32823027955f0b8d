#include "platform/message_box.h"

#include "platform/message_line.h"
#include "platform/runtime.h"

#include <windows.h>

namespace zu::platform {

void showMessage(const zu_wchar* caption, const zu_wchar* text, MessageIcon icon, bool systemModal)
{
    if (environmentVariable(L"ZU_MESSAGE_BOX") == WideString(L"console")) {
        writeMessageLine(caption, text);
        return;
    }
    const UINT style = (icon == MessageIcon::exclamation ? MB_ICONEXCLAMATION : MB_ICONSTOP) |
                       (systemModal ? MB_SYSTEMMODAL : 0u) | MB_OK;
    ::MessageBoxW(nullptr, text, caption, style);
}

} // namespace zu::platform
