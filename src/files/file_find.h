// The enumeration of directory entries, of which the process has one at a time.
#pragma once

#include "platform/directories.h"

namespace zu {

// The entries that a pattern stands for. Ends the enumeration that is open.
platform::Matches enumerate(WideView pattern);

} // namespace zu
