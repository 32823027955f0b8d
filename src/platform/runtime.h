// What a port must supply of the process and its runtime.
#pragma once

#include "platform/wide.h"

#include <cstdint>
#include <optional>

namespace zu::platform {

// The routine that a function pointer ends at. A program that was linked to the runtime through an import stub passes
// the stub's address; two pointers name the same routine when their results are equal. Null gives null.
const void* routineBehind(const void* routine);

// The value of a variable of the process environment; none when it is not set.
std::optional<WideString> environmentVariable(WideView name);

// Sets a variable of the process environment, or removes it when value is none.
void setEnvironmentVariable(WideView name, const std::optional<WideString>& value);

// The directory in which the user's programs keep their configuration; none when the environment names none.
std::optional<WideString> userConfigurationDirectory();

// Milliseconds of elapsed time since a moment that is fixed for the process.
std::int64_t elapsedMilliseconds();

} // namespace zu::platform
