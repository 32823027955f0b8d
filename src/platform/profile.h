// The system's own reader of profile files, where it has one.
#pragma once

#include "platform/wide.h"

#include <optional>

namespace zu::platform {

// The value of a key, cut to capacity units, with an empty default; none when the system has no such reader.
std::optional<WideString> profileString(const zu_wchar* file, const zu_wchar* section, const zu_wchar* key,
                                        std::size_t capacity);

} // namespace zu::platform
