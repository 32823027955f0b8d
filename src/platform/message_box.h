// Messages to the user that need no window of the host.
#pragma once

#include "platform/wide.h"

namespace zu::platform {

enum class MessageIcon
{
    exclamation,
    stop
};

// Shows a message with an OK button and waits for it; where the system has no such thing, or the environment variable
// ZU_MESSAGE_BOX is "console", writes one line "caption: text" to standard error instead and never waits.
void showMessage(const zu_wchar* caption, const zu_wchar* text, MessageIcon icon, bool systemModal = false);

} // namespace zu::platform
