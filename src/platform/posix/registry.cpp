#include "platform/registry.h"

#include "platform/files.h"
#include "platform/posix/reg_text.h"
#include "platform/runtime.h"

namespace zu::platform {

using posix::RegistryText;

RegistryKey::RegistryKey(std::shared_ptr<void> keyState, WideString keyPath)
    : state(std::move(keyState)), path(std::move(keyPath))
{
}

std::optional<RegistryKey> RegistryKey::open(WideView path)
{
    const auto file = environmentVariable(ZU_W("ZU_REGISTRY"));
    const auto content = file ? readContent(*file) : std::nullopt;
    if (!content)
        return std::nullopt;
    const auto text = std::allocate_shared<RegistryText>(HookAllocator<RegistryText>(), *content);
    if (!text->hasKey(path))
        return std::nullopt;
    return RegistryKey(text, WideString(path));
}

std::optional<RegistryKey> RegistryKey::subKey(WideView name) const
{
    WideString subPath = path;
    subPath += ZU_W('\\');
    subPath += name;
    if (!static_cast<const RegistryText*>(state.get())->hasKey(subPath))
        return std::nullopt;
    return RegistryKey(state, std::move(subPath));
}

HookVector<WideString> RegistryKey::subKeyNames() const
{
    return static_cast<const RegistryText*>(state.get())->subKeyNames(path);
}

std::optional<WideString> RegistryKey::text(WideView name, std::size_t mostBytes) const
{
    const auto* const value = static_cast<const RegistryText*>(state.get())->value(path, name);
    if (value == nullptr || value->size > mostBytes)
        return std::nullopt;
    return value->text;
}

} // namespace zu::platform
