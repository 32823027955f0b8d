#include "platform/message_box.h"

#include "platform/message_line.h"

namespace zu::platform {

void showMessage(const zu_wchar* caption, const zu_wchar* text, MessageIcon, bool)
{
    writeMessageLine(caption, text);
}

} // namespace zu::platform
