#include "platform/profile.h"

namespace zu::platform {

std::optional<WideString> profileString(const zu_wchar*, const zu_wchar*, const zu_wchar*, std::size_t)
{
    return std::nullopt;
}

} // namespace zu::platform
