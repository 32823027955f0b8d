#include "platform/registry.h"

#include "platform/windows/handle.h"

#include <algorithm>

namespace zu::platform {
namespace {

void closeKey(void* key)
{
    if (key != nullptr)
        ::RegCloseKey(static_cast<HKEY>(key));
}

std::shared_ptr<void> openKey(HKEY parent, WideView path)
{
    const WideString terminated(path);
    HKEY key = nullptr;
    if (::RegOpenKeyExW(parent, terminated.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return nullptr;
    return std::shared_ptr<void>(key, closeKey, HookAllocator<char>());
}

} // namespace

RegistryKey::RegistryKey(std::shared_ptr<void> keyState, WideString keyPath)
    : state(std::move(keyState)), path(std::move(keyPath))
{
}

std::optional<RegistryKey> RegistryKey::open(WideView path)
{
    auto key = openKey(HKEY_LOCAL_MACHINE, path);
    if (key == nullptr)
        return std::nullopt;
    return RegistryKey(std::move(key), WideString());
}

std::optional<RegistryKey> RegistryKey::subKey(WideView name) const
{
    auto key = openKey(static_cast<HKEY>(state.get()), name);
    if (key == nullptr)
        return std::nullopt;
    return RegistryKey(std::move(key), WideString());
}

HookVector<WideString> RegistryKey::subKeyNames() const
{
    HookVector<WideString> names;
    for (DWORD index = 0;; ++index) {
        wchar_t name[257];
        auto length = static_cast<DWORD>(std::size(name));
        const LSTATUS status =
            ::RegEnumKeyExW(static_cast<HKEY>(state.get()), index, name, &length, nullptr, nullptr, nullptr, nullptr);
        if (status == ERROR_SUCCESS)
            names.emplace_back(name, length);
        else if (status != ERROR_MORE_DATA)
            return names;
    }
}

std::optional<WideString> RegistryKey::text(WideView name, std::size_t mostBytes) const
{
    const WideString terminated(name);
    // A value need not have a terminator, nor an even number of bytes.
    WideString value(mostBytes / 2 + 1, L'\0');
    auto size = static_cast<DWORD>(mostBytes);
    DWORD type = REG_NONE;
    if (::RegQueryValueExW(static_cast<HKEY>(state.get()), terminated.c_str(), nullptr, &type,
                           reinterpret_cast<BYTE*>(value.data()), &size) != ERROR_SUCCESS ||
        (type != REG_SZ && type != REG_EXPAND_SZ))
        return std::nullopt;
    value.resize(std::min(value.find(L'\0'), std::size_t{size} / 2));
    return value;
}

} // namespace zu::platform
