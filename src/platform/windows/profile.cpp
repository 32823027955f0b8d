#include "platform/profile.h"

#include <windows.h>

namespace zu::platform {

std::optional<WideString> profileString(const zu_wchar* file, const zu_wchar* section, const zu_wchar* key,
                                        std::size_t capacity)
{
    WideString value(capacity + 1, L'\0');
    const DWORD length =
        ::GetPrivateProfileStringW(section, key, L"", value.data(), static_cast<DWORD>(value.size()), file);
    value.resize(length);
    return value;
}

} // namespace zu::platform
