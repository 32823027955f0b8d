#include "platform/runtime.h"

#include "platform/windows/handle.h"

#include <cstring>

namespace zu::platform {

const void* routineBehind(const void* routine)
{
    // An import stub is "jmp [rip + offset]" to a slot that holds the routine's address.
    const auto* const code = static_cast<const unsigned char*>(routine);
    if (code == nullptr || code[0] != 0xFF || code[1] != 0x25)
        return routine;
    std::int32_t offset;
    std::memcpy(&offset, code + 2, sizeof offset);
    const void* target;
    std::memcpy(&target, code + 6 + offset, sizeof target);
    return target;
}

std::optional<WideString> environmentVariable(WideView name)
{
    const WideString terminated(name);
    WideString value;
    for (DWORD size = 256;;) {
        value.resize(size);
        ::SetLastError(ERROR_SUCCESS);
        const DWORD length = ::GetEnvironmentVariableW(terminated.c_str(), value.data(), size);
        if (length == 0 && ::GetLastError() != ERROR_SUCCESS)
            return std::nullopt;
        if (length < size) {
            value.resize(length);
            return value;
        }
        size = length;
    }
}

void setEnvironmentVariable(WideView name, const std::optional<WideString>& value)
{
    ::SetEnvironmentVariableW(WideString(name).c_str(), value ? value->c_str() : nullptr);
}

std::optional<WideString> userConfigurationDirectory()
{
    const auto directory = environmentVariable(L"APPDATA");
    return directory && !directory->empty() ? directory : std::nullopt;
}

std::int64_t elapsedMilliseconds()
{
    return static_cast<std::int64_t>(::GetTickCount64());
}

} // namespace zu::platform
