// Paths as callers write them, and the system's own. "\" and "/" both separate; drive C: is the root directory; any
// other drive is the directory that the environment variable ZU_DRIVE_<letter> names, and does not exist without it.
#pragma once

#include "platform/wide.h"

#include <optional>

namespace zu::posix {

// The system's path. A component that does not exist as written is looked up ignoring the case of ASCII letters; what
// is not found then stays as written. None when the drive does not exist or the path is empty or holds a zero.
std::optional<ByteString> nativePath(WideView path);

// The absolute, normalised form with a drive letter and backslashes. It need not exist.
std::optional<WideString> absolutePath(WideView path);

// The form with a drive letter of an absolute path of the system: the drive whose root covers it most closely.
WideString withDrive(std::string_view native);

bool isSeparator(zu_wchar unit);
bool hasDrive(WideView path);

} // namespace zu::posix
