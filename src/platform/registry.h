// The machine-wide part of the system's registry, read only. A system without one reads the text file that the
// environment variable ZU_REGISTRY names: an export in the usual form, in UTF-8 or marked as UTF-16.
#pragma once

#include "platform/wide.h"

#include <memory>
#include <optional>

namespace zu::platform {

class RegistryKey
{
public:
    // An open key; none when it does not exist or may not be read. The path has backslashes and starts at the root.
    static std::optional<RegistryKey> open(WideView path);
    std::optional<RegistryKey> subKey(WideView name) const;

    // The names of the keys below, in alphabetical order, without those longer than 256 units.
    HookVector<WideString> subKeyNames() const;

    // A text value up to its first zero, not expanded; none when it is missing, no text, or takes more bytes.
    std::optional<WideString> text(WideView name, std::size_t mostBytes) const;

private:
    RegistryKey(std::shared_ptr<void> keyState, WideString keyPath);

    std::shared_ptr<void> state; // the port's
    WideString path;
};

} // namespace zu::platform
