#include "platform/runtime.h"

#include "platform/utf8.h"

#include <cstdlib>
#include <ctime>

namespace zu::platform {

const void* routineBehind(const void* routine)
{
    return routine;
}

std::optional<WideString> environmentVariable(WideView name)
{
    const char* const value = std::getenv(utf8::encode(name).c_str());
    if (value == nullptr)
        return std::nullopt;
    return utf8::decode(value);
}

void setEnvironmentVariable(WideView name, const std::optional<WideString>& value)
{
    const ByteString variable = utf8::encode(name);
    if (value)
        ::setenv(variable.c_str(), utf8::encode(*value).c_str(), 1);
    else
        ::unsetenv(variable.c_str());
}

std::optional<WideString> userConfigurationDirectory()
{
    // A relative path is to be ignored by the rules for this variable.
    const char* const configured = std::getenv("XDG_CONFIG_HOME");
    if (configured != nullptr && configured[0] == '/')
        return utf8::decode(configured);
    const char* const home = std::getenv("HOME");
    if (home == nullptr || home[0] == '\0')
        return std::nullopt;
    return utf8::decode(home) + ZU_W("/.config");
}

std::int64_t elapsedMilliseconds()
{
    timespec now;
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

} // namespace zu::platform
