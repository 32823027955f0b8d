// Alias expansion for the other sources of this folder: of any length, without a buffer to overrun.
#pragma once

#include "platform/wide.h"

namespace zu {

WideString expandAliases(WideView text);

} // namespace zu
