#include "platform/os.h"

#include <windows.h>

namespace zu::platform {
namespace {

// The edition of version 6.0; earlier systems do not have the routine.
std::uint32_t productType(const OSVERSIONINFOEXW& version)
{
    using GetProductInfo = BOOL(WINAPI*)(DWORD, DWORD, DWORD, DWORD, PDWORD);
    const auto routine = reinterpret_cast<GetProductInfo>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"KERNEL32.DLL"), "GetProductInfo")));
    DWORD type = 0;
    if (routine != nullptr)
        routine(version.dwMajorVersion, version.dwMinorVersion, version.wServicePackMajor, version.wServicePackMinor,
                &type);
    return type;
}

} // namespace

OsRecord operatingSystem()
{
    OSVERSIONINFOEXW version = {};
    auto* const basic = reinterpret_cast<OSVERSIONINFOW*>(&version);
    version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOW);
    if (!::GetVersionExW(basic))
        return OsRecord{};
    if (version.dwPlatformId == VER_PLATFORM_WIN32_NT && version.dwMajorVersion >= 5) {
        version.dwOSVersionInfoSize = sizeof version;
        ::GetVersionExW(basic);
    }
    OsRecord record{static_cast<OsFamily>(version.dwPlatformId), version.dwMajorVersion, version.dwMinorVersion,
                    version.dwBuildNumber & 0xFFFF}; // the high half repeats the version on some systems
    if (record.family == OsFamily::windowsNt && record.major == 6 && record.minor == 0)
        record.productType = productType(version);
    return record;
}

std::uint16_t userLanguage()
{
    return ::GetUserDefaultLangID();
}

} // namespace zu::platform
