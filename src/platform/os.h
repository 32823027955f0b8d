// What a port must supply of the operating system's record of itself.
#pragma once

#include <cstdint>

namespace zu::platform {

enum class OsFamily : std::uint32_t
{
    windows9x = 1,
    windowsNt = 2,
    windowsCe = 3,
    other = 10
};

struct OsRecord
{
    OsFamily family = OsFamily::other;
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t build = 0;
    std::uint32_t productType = 0; // the edition; asked for version 6.0 only
};

OsRecord operatingSystem();

// The user's default language as a Windows language identifier: the primary language in the low 8 bits (strictly, the
// low 10), the region above.
std::uint16_t userLanguage();

} // namespace zu::platform
