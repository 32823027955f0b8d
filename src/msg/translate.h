// The core of the catalogue: one text, translated or laid out.
#pragma once

#include "platform/wide.h"

#include <cstdint>

namespace zu {

// The result stands in one buffer, which the next call overwrites. Raises COM errors of the translator.
zu_wchar* translate(WideView text, WideView section, std::int32_t n);

} // namespace zu
